#include "testing/TestFiles.h"

#include <QCoreApplication>
#include <QFile>
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
