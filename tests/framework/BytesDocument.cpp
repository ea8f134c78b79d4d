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

void BytesDocument::makeBytes(const QString &typeName, SavePurpose purpose,
                              const SaveJob::Client::Made &made)
{
    const auto hand = [this, made](const std::optional<QByteArray> &bytes, const Error &error) {
        if (const auto happening = std::exchange(duringReview, {}))
            happening();
        made(bytes, error);
    };
    if (!slowWork)
        return Document::makeBytes(typeName, purpose, hand);
    constexpr qsizetype manyBytes = 100'000'000;
    workBeside(QStringLiteral("working"), manyBytes, slowWork,
               [hand, bytes = content](BackgroundWork::Outcome outcome) {
                   using Outcome = BackgroundWork::Outcome;
                   hand(outcome == Outcome::Done ? std::optional(bytes) : std::nullopt,
                        outcome == Outcome::NoMemory ? noMemory({}) : Error());
               });
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
