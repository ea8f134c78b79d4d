#include "document/order/ReferenceList.h"

#include "support/TextConversion.h"

#include <QStringTokenizer>

#include <array>

namespace quillet {

namespace {

constexpr int mostBadLines = 2;
constexpr std::size_t fewestEntries = 3;

/// The three fields of a line; none when there are more or fewer.
std::optional<ReferenceEntry> entryFromLine(QStringView line)
{
    std::array<QStringView, 3> fields;
    std::size_t count = 0;
    for (const QStringView field : line.tokenize(u';')) {
        if (count == fields.size())
            return {};
        fields[count++] = field;
    }
    if (count < fields.size())
        return {};
    return ReferenceEntry{fields[0].toString(), fields[1].toString(), fields[2].toString()};
}

/// The text of a file without the mark of its encoding.
QStringView linesOf(const QString &text)
{
    return QStringView(text).sliced(text.startsWith(QChar::ByteOrderMark) ? 1 : 0);
}

} // namespace

ReferenceLines referenceLinesIn(QByteArrayView data)
{
    const QString text = getAsString(data).value_or(QString());
    ReferenceLines lines;
    forEachLine(linesOf(text), [&lines](QStringView line) {
        ++(entryFromLine(line) ? lines.entries : lines.others);
        return true;
    });
    return lines;
}

std::optional<ReferenceList> referenceListFromData(QByteArrayView data)
{
    const QString text = getAsString(data).value_or(QString());
    ReferenceList entries;
    int badLines = 0;
    forEachLine(linesOf(text), [&entries, &badLines](QStringView line) {
        if (std::optional<ReferenceEntry> entry = entryFromLine(line))
            entries.push_back(*std::move(entry));
        else
            ++badLines;
        return badLines <= mostBadLines;
    });
    if (badLines > mostBadLines)
        return {};
    if (entries.size() < fewestEntries)
        return {};
    return entries;
}

ReferenceList referenceListFromStations(const StationList &stations)
{
    ReferenceList entries;
    for (const StationPtr &station : stations) {
        const QString name = station->stationName();
        const QString number = station->progNumString();
        const QString service = station->service_id().value_or(QString());
        const QString transport = station->transport_id().value_or(QString());
        const QString network = station->originalNetwork_id().value_or(QString());
        if (name.isEmpty() || number.isEmpty() || service.isEmpty() || transport.isEmpty() ||
            network.isEmpty())
            continue;
        entries.push_back(
            {number, name, QStringLiteral("%1-%2-%3").arg(network, transport, service)});
    }
    return entries;
}

} // namespace quillet
