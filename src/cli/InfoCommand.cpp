#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FileWalk.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListChoice.h"
#include "cli/ListFile.h"
#include "files/FileNames.h"
#include "model/CleanName.h"
#include "texts/FindingTexts.h"

#include <algorithm>

namespace quillet {

namespace {

QString encodingName(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf8:
        return QStringLiteral("UTF-8");
    case TextEncoding::Utf16:
        return QStringLiteral("UTF-16");
    case TextEncoding::Latin1:
        return QStringLiteral("ISO-8859-1");
    }
    return {};
}

QString variantName(const ChannelList &list)
{
    return list.isLegacyFormat ? QStringLiteral("json") : QStringLiteral("xml");
}

std::size_t countOf(const StationList &stations, bool (LGStation::*has)() const)
{
    return static_cast<std::size_t>(
        std::count_if(stations.begin(), stations.end(),
                      [has](const StationPtr &each) { return (*each.*has)(); }));
}

QString clean(const std::optional<QString> &text)
{
    return text ? cleanName(*text) : QStringLiteral("not told");
}

void writeText(const ListFile &file, const std::vector<ChosenList> &lists, bool hasTitle,
               Console &console)
{
    QStringList lines;
    if (hasTitle)
        lines.append(QStringLiteral("==> %1 <==").arg(fileTitle(file.path)));
    lines.append(QStringLiteral("Set:       ") + clean(file.list.modelName()));
    lines.append(QStringLiteral("Variant:   ") + variantName(file.list));
    lines.append(
        QStringLiteral("Encoding:  %1 (declared: %2)")
            .arg(encodingName(file.list.text.encoding()), clean(declaredEncoding(file.list.text))));
    lines.append(QStringLiteral("Size:      %1 bytes").arg(file.bytes.size()));
    lines.append(QStringLiteral("Stations:  %1").arg(file.list.stationCount()));
    for (const ChosenList &list : lists)
        lines.append(QStringLiteral("  %1: %2 (skipped: %3, locked: %4)")
                         .arg(titleOf(list))
                         .arg(list.stations->size())
                         .arg(countOf(*list.stations, &LGStation::isSkipped))
                         .arg(countOf(*list.stations, &LGStation::isBlocked)));
    for (const QString &finding : findingTexts(file.list))
        lines.append(QStringLiteral("Finding:   ") + finding);
    console.print(lines.join(u'\n') + u'\n');
}

void writeObject(const ListFile &file, const std::vector<ChosenList> &lists, Console &console)
{
    Dictionary report = jsonReport("info", file.path);
    report.insert(QStringLiteral("set"), jsonText(file.list.modelName()));
    report.insert(QStringLiteral("variant"), variantName(file.list));
    report.insert(QStringLiteral("encoding"), encodingName(file.list.text.encoding()));
    report.insert(QStringLiteral("declaredEncoding"), jsonText(declaredEncoding(file.list.text)));
    report.insert(QStringLiteral("bytes"), Value(qint64(file.bytes.size())));
    report.insert(QStringLiteral("stations"), Value(qint64(file.list.stationCount())));
    Array counts;
    for (const ChosenList &list : lists)
        counts.append(Dictionary{
            {QStringLiteral("source"), sourceName(list.source)},
            {QStringLiteral("mode"), modeName(list.isTV)},
            {QStringLiteral("stations"), jsonNumber(list.stations->size())},
            {QStringLiteral("skipped"), jsonNumber(countOf(*list.stations, &LGStation::isSkipped))},
            {QStringLiteral("locked"), jsonNumber(countOf(*list.stations, &LGStation::isBlocked))},
        });
    report.insert(QStringLiteral("lists"), counts);
    report.insert(QStringLiteral("findings"), jsonFindings(file.list));
    writeJson(report, console);
}

} // namespace

ExitStatus runInfo(const Invocation &invocation, Console &console)
{
    return forEachFile(invocation, console, [&](const QString &path) {
        const auto file = openList(path, invocation, console);
        if (!file)
            return ExitStatus::FileError;
        const auto lists = listsToRead(invocation, file->list.lists);
        if (invocation.isSet(Option::Json))
            writeObject(*file, lists, console);
        else
            writeText(*file, lists, namesSeveral(invocation), console);
        return ExitStatus::Done;
    });
}

} // namespace quillet
