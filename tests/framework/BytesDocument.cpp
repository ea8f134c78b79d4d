#include "BytesDocument.h"

#include <QMainWindow>

namespace quillet::testing {

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

} // namespace quillet::testing
