#include "cli/ListFile.h"

#include "cli/Console.h"
#include "cli/JsonReport.h"
#include "document/read/ListReading.h"
#include "document/repair/FileDiagnosis.h"
#include "files/FileNames.h"
#include "files/FileReading.h"
#include "files/SystemReasons.h"
#include "texts/FindingTexts.h"
#include "texts/FormatTexts.h"

#include <QFile>
#include <QUrl>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace quillet {

namespace {

/// Of a pipe, which has no length: more than any list, as for files.
constexpr qint64 longestInput = qint64{512} << 20;

Error unreadable(const QString &reason)
{
    return {QStringLiteral("ListFile"), 1, qtTrId("kFileUnreadableReason").arg(reason), {}};
}

bool readPipe(std::FILE *pipe, QByteArray &bytes, Error &error)
{
    QFile input;
    if (pipe)
        forgetSystemReason(); // without a pipe it tells why there is none
    if (!pipe || !input.open(pipe, QIODevice::ReadOnly)) {
        error = unreadable(lastSystemReason());
        return false;
    }
    constexpr qint64 step = 0x10000;
    while (bytes.size() <= longestInput) {
        forgetSystemReason();
        const QByteArray part = input.read(step);
        if (part.isEmpty()) {
            if (input.error() == QFileDevice::NoError)
                return true;
            error = unreadable(lastSystemReason());
            return false;
        }
        bytes += part;
    }
    error = {QStringLiteral("ListFile"), 2, qtTrId("kFileTooLargeReason"), {}};
    return false;
}

/// What a shell puts in the place of a file for "<(command)". A window would wait for it, a tool
/// may.
bool isNamedPipe(const QString &path)
{
    std::error_code code;
    return std::filesystem::is_fifo(nativePath(path), code);
}

bool read(const QString &path, QByteArray &bytes, Error &error)
{
    if (isStream(path))
        return readPipe(stdin, bytes, error);
    if (!isNamedPipe(path))
        return readFile(QUrl::fromLocalFile(absolutePath(path)), bytes, error);
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> pipe(
        std::fopen(nativePath(path).string().c_str(), "rb"), &std::fclose);
    return readPipe(pipe.get(), bytes, error);
}

/// Why the text is no channel list at all, in which nothing could be done; empty when it is one.
QString otherFile(const ChannelList &list)
{
    using Kind = FileFinding::Kind;
    for (const FileFinding &finding : diagnose(list)) {
        if (finding.kind == Kind::BinaryList || finding.kind == Kind::NoXML)
            return textOf(finding);
    }
    return {};
}

} // namespace

std::optional<QByteArray> readBytes(const QString &path, QString &problem)
{
    QByteArray bytes;
    Error error;
    if (!read(path, bytes, error)) {
        problem = error.text();
        return {};
    }
    return bytes;
}

std::optional<QByteArray> openBytes(const QString &path, const Invocation &invocation,
                                    Console &console)
{
    QString problem;
    std::optional<QByteArray> bytes = readBytes(path, problem);
    if (!bytes) {
        console.tell(path, problem);
        reportFailure(path, problem, ExitStatus::FileError, invocation, console);
    }
    return bytes;
}

std::optional<ListFile> readList(const QString &path, QString &problem)
{
    std::optional<QByteArray> bytes = readBytes(path, problem);
    if (!bytes)
        return {};
    ListFile file;
    file.path = path;
    file.bytes = std::move(*bytes);
    if (!isStream(path))
        file.state = FileState::of(absolutePath(path), file.bytes);
    const Reading reading = readInto(file.list, file.bytes);
    if (reading == Reading::Done)
        return file;
    problem = reasonAgainst(reading, file.list);
    return {};
}

std::optional<ListFile> openList(const QString &path, const Invocation &invocation,
                                 Console &console)
{
    QString problem;
    std::optional<ListFile> file = readList(path, problem);
    if (file) {
        problem = otherFile(file->list);
        if (problem.isEmpty())
            return file;
    }
    console.tell(path, problem);
    reportFailure(path, problem, ExitStatus::FileError, invocation, console);
    return {};
}

} // namespace quillet
