#include "bench/MemoryUse.h"

#include "bench/SavedDocument.h"

#include <QFile>
#include <QUrl>

namespace quillet::bench {

namespace {

/// A line of /proc/self/status that ends in kB, in bytes. The high-water mark that getrusage()
/// tells is of no use: a new process takes over that of the one that started it.
std::optional<double> processStatus(const QByteArray &name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.startsWith(name + ':'))
            continue;
        bool isNumber = false;
        const double kilobytes =
            line.sliced(name.size() + 1).chopped(2).trimmed().toDouble(&isNumber);
        return isNumber ? std::optional(kilobytes * 1024) : std::nullopt;
    }
    return {};
}

} // namespace

std::optional<double> memoryOfLoading(const QString &file)
{
    TLLDocument document;
    const std::optional<double> before = processStatus("VmRSS");
    Error error;
    const bool isRead =
        document.readFromUrl(QUrl::fromLocalFile(file), TLLDocument::typeName(), error);
    const std::optional<double> peak = processStatus("VmHWM");
    if (!isRead || !before || !peak)
        return {};
    return *peak - *before;
}

std::optional<double> memoryOfSaving(const QString &file)
{
    SavedDocument saved;
    const std::optional<double> before = processStatus("VmRSS");
    if (!saved.open(file))
        return {};
    saved.edit();
    SavedDocument::Ending ending = saved.save();
    if (ending == SavedDocument::Ending::Asked)
        ending = saved.answer(0);
    const std::optional<double> peak = processStatus("VmHWM");
    if (ending != SavedDocument::Ending::Written || !before || !peak)
        return {};
    return *peak - *before;
}

} // namespace quillet::bench
