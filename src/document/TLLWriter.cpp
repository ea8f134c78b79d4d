#include "document/TLLWriter.h"

#include "document/TLLDocument.h"
#include "support/TextConversion.h"
#include "support/Utf8Builder.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array digitalSources{StationSource::Cable, StationSource::Satellite,
                                    StationSource::Antenna};
constexpr std::array analogueSources{StationSource::Analogue};

constexpr QLatin1String betweenSections("</ATV>\r\n<DTV>\r\n");
constexpr QLatin1String analogueEnd("</ATV>\r\n</CHANNEL>\r\n</TLLDATA>\r\n");
constexpr QLatin1String digitalEnd("</DTV>\r\n</CHANNEL>\r\n</TLLDATA>\r\n");

void appendItem(const LGStation &station, Utf8Builder &output)
{
    station.appendXMLItem(output);
}

void appendItem(const LGStation &station, QString &output)
{
    output.append(station.getXMLItem());
}

void appendUtf8(const QByteArray &utf8, Utf8Builder &output)
{
    output.append(QByteArrayView(utf8));
}

void appendUtf8(const QByteArray &utf8, QString &output)
{
    output.append(QString::fromUtf8(utf8));
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
void writeLegacy(const TLLDocument &document, Output &output)
{
    const FileLayout &layout = document.layout();
    const StationList none;
    const StationList &current = document.stations() ? *document.stations() : none;
    document.text().appendFirst(layout.headerLenLegacy(), output);
    appendUtf8(replaceBadChars(document.legacyBroadcast().json(current)), output);
    if (layout.footer())
        output.append(QStringView(*layout.footer()));
}

template<typename Output>
void write(const TLLDocument &document, Output &output)
{
    if (document.isLegacyFormat()) {
        writeLegacy(document, output);
        return;
    }
    const bool hasAnalogue = document.analogStations() >= 1;
    const bool hasDigital = document.digitalStations() >= 1;
    const FileLayout &layout = document.layout();
    output.reserve(document.text().size() + 1000);
    document.text().appendFirst(hasAnalogue ? layout.headerLenATV() : layout.headerLenDTV(),
                                output);

    if (hasAnalogue) {
        appendSources(document.lists(), analogueSources, output);
        if (!hasDigital) {
            appendFooter(layout, analogueEnd, output);
            return;
        }
        output.append(betweenSections);
    }
    if (hasDigital) {
        appendSources(document.lists(), digitalSources, output);
        appendFooter(layout, digitalEnd, output);
    }
}

} // namespace

void forEachStationAsWritten(const StationLists &lists,
                             const std::function<void(const StationPtr &)> &visit)
{
    forEachStation(lists, analogueSources, visit);
    forEachStation(lists, digitalSources, visit);
}

QByteArray writeTLL(const TLLDocument &document)
{
    Utf8Builder output;
    write(document, output);
    if (!output.hasError())
        return output.take();
    // Something in it cannot be written as UTF-8.
    QString text;
    write(document, text);
    return getAsData(text);
}

} // namespace quillet
