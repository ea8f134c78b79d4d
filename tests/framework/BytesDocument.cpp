#include "BytesDocument.h"

#include <QCoreApplication>
#include <QFile>
#include <QMainWindow>
#include <QTranslator>

namespace quillet::testing {

namespace {

class ParameterTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *id, const char *, int) const override
    {
        const QString text = QString::fromLatin1(id);
        const bool hasParameters =
            text.endsWith(QLatin1String("Message")) || text.endsWith(QLatin1String("Reason"));
        return hasParameters ? text + QStringLiteral(" %1 %2") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

CountingWindow::CountingWindow()
    : WindowController(std::make_unique<QMainWindow>(), QStringLiteral("bytes"))
{
}

bool BytesDocument::readFromData(const QByteArray &data, const QString &typeName, Error &error)
{
    if (!canRead(data, typeName, error))
        return false;
    content = data;
    return true;
}

bool BytesDocument::canRead(const QByteArray &data, const QString &, Error &error) const
{
    if (data.startsWith("bad"))
        error = {QStringLiteral("BytesDocument"), -1, QStringLiteral("bad bytes"), {}};
    return !data.isEmpty() && error.isEmpty();
}

QByteArray BytesDocument::dataOfType(const QString &, Error &error)
{
    if (isUnwritable)
        error = {QStringLiteral("BytesDocument"), -2, QStringLiteral("no bytes"), {}};
    return isUnwritable ? QByteArray() : content;
}

void BytesDocument::makeWindowControllers()
{
    addWindowController(std::make_unique<CountingWindow>());
}

void BytesDocument::edit(const QByteArray &bytes)
{
    content = bytes;
    updateChangeCount(Change::Done);
}

CountingWindow &BytesDocument::countingWindow() const
{
    return static_cast<CountingWindow &>(*windowControllers().front());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<cannot be read>");
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

ParameterTexts::ParameterTexts() : m_translator(std::make_unique<ParameterTranslator>())
{
    QCoreApplication::installTranslator(m_translator.get());
}

ParameterTexts::~ParameterTexts()
{
    QCoreApplication::removeTranslator(m_translator.get());
}

} // namespace quillet::testing
