#include "document/write/TLLWriter.h"

#include "document/list/ChannelList.h"
#include "document/write/BroadcastWriting.h"
#include "model/FileWords.h"
#include "support/TextConversion.h"
#include "support/Utf8Builder.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using fileword::endTag;
using fileword::startTag;

constexpr std::array digitalSources{StationSource::Cable, StationSource::Satellite,
                                    StationSource::Antenna};
constexpr std::array analogueSources{StationSource::Analogue};

constexpr FileWord lineEnd("\r\n");
constexpr FileWord listEnd(endTag(fileword::channel), lineEnd, endTag(fileword::root), lineEnd);
constexpr FileWord betweenSections(endTag(fileword::atv), lineEnd, startTag(fileword::dtv),
                                   lineEnd);
constexpr FileWord analogueEnd(endTag(fileword::atv), lineEnd, listEnd);
constexpr FileWord digitalEnd(endTag(fileword::dtv), lineEnd, listEnd);

void appendItem(const LGStation &station, Utf8Builder &output)
{
    station.appendXMLItem(output);
}

void appendItem(const LGStation &station, QString &output)
{
    output.append(station.getXMLItem());
}

void appendJSON(const LegacyBroadcast &broadcast, const StationList &current, Utf8Builder &output)
{
    appendBroadcastJSON(broadcast, current, output);
}

void appendJSON(const LegacyBroadcast &broadcast, const StationList &current, QString &output)
{
    Utf8Builder json;
    appendBroadcastJSON(broadcast, current, json);
    output.append(textFromUtf8(json.text()));
}

template<typename Sources>
void forEachStation(const StationLists &lists, const Sources &sources,
                    const std::function<void(const StationPtr &)> &visit)
{
    for (const StationSource source : sources) {
        for (const bool isTV : {true, false}) {
            const StationListPtr &list = lists.list(isTV, static_cast<int>(source));
            if (list)
                std::for_each(list->begin(), list->end(), visit);
        }
    }
}

template<typename Sources, typename Output>
void appendSources(const StationLists &lists, const Sources &sources, Output &output)
{
    forEachStation(lists, sources,
                   [&output](const StationPtr &station) { appendItem(*station, output); });
}

template<typename Output>
void appendFooter(const FileLayout &layout, QLatin1String substitute, Output &output)
{
    if (layout.footer() && !layout.footer()->isEmpty())
        output.append(QStringView(*layout.footer()));
    else
        output.append(substitute);
}

/// The text up to the JSON station list, the list, and the text after it.
template<typename Output>
void writeLegacy(const ChannelList &list, const StationListPtr &shown, Output &output)
{
    const StationList none;
    const StationList &current = shown ? *shown : none;
    output.reserve(list.text.size() + list.text.size() / 8);
    list.text.appendFirst(list.layout.headerLenLegacy(), output);
    appendJSON(list.broadcast, current, output);
    if (list.layout.footer())
        output.append(QStringView(*list.layout.footer()));
}

template<typename Output>
void write(const ChannelList &list, const StationListPtr &shown, Output &output)
{
    if (list.isLegacyFormat) {
        writeLegacy(list, shown, output);
        return;
    }
    const bool hasAnalogue = list.analogStations >= 1;
    const bool hasDigital = list.digitalStations >= 1;
    const FileLayout &layout = list.layout;
    output.reserve(list.text.size() + 1000);
    list.text.appendFirst(hasAnalogue ? layout.headerLenATV() : layout.headerLenDTV(), output);

    if (hasAnalogue) {
        appendSources(list.lists, analogueSources, output);
        if (!hasDigital) {
            appendFooter(layout, analogueEnd.latin1(), output);
            return;
        }
        output.append(betweenSections.latin1());
    }
    if (hasDigital) {
        appendSources(list.lists, digitalSources, output);
        appendFooter(layout, digitalEnd.latin1(), output);
    }
}

} // namespace

void forEachStationAsWritten(const StationLists &lists,
                             const std::function<void(const StationPtr &)> &visit)
{
    forEachStation(lists, analogueSources, visit);
    forEachStation(lists, digitalSources, visit);
}

QByteArray writeTLL(const ChannelList &list, const StationListPtr &shown)
{
    Utf8Builder output;
    write(list, shown, output);
    if (!output.hasError())
        return output.take();
    // Something in it cannot be written as UTF-8.
    QString text;
    write(list, shown, text);
    return getAsData(text);
}

} // namespace quillet
