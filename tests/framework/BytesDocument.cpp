#include "BytesDocument.h"

#include <QGuiApplication>
#include <QMainWindow>

#include <new>
#include <utility>

namespace quillet::testing {

CountingWindow::CountingWindow()
    : WindowController(std::make_unique<QMainWindow>(), QStringLiteral("bytes"))
{
}

bool BytesDocument::readFromData(const QByteArray &data, const QString &, Error &error)
{
    if (data.startsWith("hog"))
        throw std::bad_alloc();
    if (data.startsWith("bad"))
        error = {QStringLiteral("BytesDocument"), -1, QStringLiteral("bad bytes"), {}};
    hadWaitCursor = QGuiApplication::overrideCursor() != nullptr;
    const bool isReadable = !data.isEmpty() && error.isEmpty();
    if (isReadable)
        content = data;
    return isReadable;
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

void BytesDocument::reviewSave(const QByteArray &bytes, SavePurpose,
                               const SaveJob::Client::Decided &decided)
{
    if (const auto happening = std::exchange(duringReview, {}))
        happening();
    decided(bytes);
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
