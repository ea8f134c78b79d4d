#include "document/text/ReferenceText.h"

#include "document/order/ReferenceList.h"
#include "support/TextConversion.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr QChar separator = u';';
/// Stands for each identifier that is not told. An empty one would be that of stations whose file
/// has an empty text there.
constexpr QChar noIdentifier = u'?';

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

/// The identifiers as a reference list has them; none when they could not be told apart there.
std::optional<QString> identifiersOf(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    QStringList parts;
    for (const QString &key :
         {keys.keyOriginalNetwork_id, keys.keyTransport_id, keys.keyService_id}) {
        const Value *value = station.entry().find(key);
        const QString part = value ? value->description() : QString();
        const bool isPart = !part.isEmpty() && std::none_of(part.begin(), part.end(), [](QChar c) {
            return c == u'-' || c == separator || isLineEnd(c);
        });
        if (!isPart)
            return {};
        parts.append(part);
    }
    return parts.join(u'-');
}

/// By which a reference list is matched.
bool areTexts(const LGStation &station)
{
    return station.service_id() && station.transport_id() && station.originalNetwork_id();
}

/// Identifiers that none of the stations has.
QString noIdentifiers(const StationList &stations)
{
    const auto isService = [&stations](const QString &part) {
        return std::any_of(stations.begin(), stations.end(), [&part](const StationPtr &station) {
            return station->service_id() == part;
        });
    };
    QString part = noIdentifier;
    while (isService(part))
        part += noIdentifier;
    return QStringList(3, part).join(u'-');
}

} // namespace

ReferenceText referenceText(const StationList &stations)
{
    ReferenceText made;
    QString text;
    const QString nothing = noIdentifiers(stations);
    for (const StationPtr &station : stations) {
        QString name = station->shownName();
        bool isChanged = false;
        for (QChar &c : name) {
            if (c != separator && !isLineEnd(c))
                continue;
            c = c == separator ? u',' : u' ';
            isChanged = true;
        }
        const std::optional<QString> identifiers = identifiersOf(*station);
        made.changedNames += isChanged ? 1 : 0;
        made.byNameAlone += identifiers ? 0 : 1;
        made.renamed += !identifiers && station->isRenamed() ? 1 : 0;
        made.withNumbers += identifiers && !areTexts(*station) ? 1 : 0;
        text += station->progNumString() + separator + name + separator +
                identifiers.value_or(nothing) + QStringLiteral("\r\n");
    }
    made.bytes = getAsData(text);
    made.isTooShort = !referenceListFromData(made.bytes);
    return made;
}

} // namespace quillet
