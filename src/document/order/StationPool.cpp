#include "document/order/StationPool.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <utility>
#include <vector>

namespace quillet {

namespace {

template<typename Matches>
StationList extract(const StationList &list, Matches matches)
{
    StationList found;
    std::copy_if(list.begin(), list.end(), std::back_inserter(found),
                 [&matches](const StationPtr &station) { return matches(*station); });
    return found;
}

constexpr char16_t endOfLetters = 0x530; ///< of Latin, Greek and Cyrillic

/// Those that fold to one letter, whatever stands beside them.
bool foldsAlone(char16_t u)
{
    return (u < 0x149 && u != 0xDF && u != 0x130) || (u > 0x149 && u < 0x1F0) ||
           (u >= 0x391 && u < 0x3B0) || (u > 0x3B0 && u < endOfLetters);
}

/// By the letter what it folds to, or 0 when it does not fold alone.
std::array<char16_t, endOfLetters> makeFoldedLetters()
{
    std::array<char16_t, endOfLetters> folded{};
    for (char16_t u = 0; u < endOfLetters; ++u)
        folded.at(u) = foldsAlone(u) ? QChar(u).toCaseFolded().unicode() : u'\0';
    return folded;
}

constexpr int unitsAtOnce = 4;

/// So many at once; false when one of them is not of ASCII.
bool foldASCII(const char16_t *in, char16_t *out)
{
    constexpr quint64 each = 0x0001'0001'0001'0001;
    constexpr quint64 bit = 0x80; // which no character of ASCII has
    quint64 units = 0;
    std::memcpy(&units, in, sizeof units);
    if ((units & 0xFF80 * each) != 0)
        return false;
    const quint64 fromA = units + (bit - u'A') * each;
    const quint64 beyondZ = units + (bit - u'Z' - 1) * each;
    const quint64 capitals = fromA & ~beyondZ & bit * each;
    units |= capitals / bit * (u'a' - u'A');
    std::memcpy(out, &units, sizeof units);
    return true;
}

/// As QString::toCaseFolded, which takes its time over the few letters that are not ASCII. Makes
/// use of the room that there is.
void fold(const QString &name, QString &folded)
{
    folded.resize(name.size());
    static const auto foldedLetters = makeFoldedLetters();
    const auto *in = QStringView(name).utf16();
    const auto *const end = in + name.size();
    auto *out = reinterpret_cast<char16_t *>(folded.data());
    while (in != end) {
        if (end - in >= unitsAtOnce && foldASCII(in, out)) {
            in += unitsAtOnce;
            out += unitsAtOnce;
            continue;
        }
        *out = *in < endOfLetters ? foldedLetters[*in] : u'\0';
        if (*out == 0) {
            folded = name.toCaseFolded();
            return;
        }
        ++in;
        ++out;
    }
}

QString withoutCase(const QString &name)
{
    QString folded;
    fold(name, folded);
    return folded;
}

bool takeText(std::optional<QString> &&given, QString &text)
{
    if (!given)
        return false;
    text = *std::move(given);
    return true;
}

/// The service id of a station, whose digits mostly need not be made a text of their own.
bool takeServiceID(const LGStation &station, QString &text)
{
    const Dictionary &entry = station.entry();
    const qsizetype position = entry.indexOf(station.keys().keyService_id);
    const auto bytes = position == KeyTable::none ? std::nullopt : entry.bytesRead(position);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!bytes || !std::all_of(bytes->begin(), bytes->end(), isDigit))
        return takeText(station.service_id(), text);
    text = QLatin1String(*bytes);
    return true;
}

/// One text for several that no other texts give.
std::optional<QString> joined(std::initializer_list<std::optional<QString>> texts)
{
    QString all;
    for (const std::optional<QString> &text : texts) {
        if (!text)
            return {};
        all += QString::number(text->size()) + u':' + *text;
    }
    return all;
}

/// Whether a station may stand in the list more than once. Stations hardly ever share their place
/// in the file, which is quicker to look at than the stations themselves.
bool mayHoldTwins(const StationList &stations)
{
    constexpr std::size_t places = 0x10000;
    std::vector<bool> isTaken(places);
    return std::any_of(stations.begin(), stations.end(), [&isTaken](const StationPtr &station) {
        auto place = isTaken[static_cast<std::size_t>(station->origPos()) % places];
        const bool wasTaken = place;
        place = true;
        return wasTaken;
    });
}

/// Leaves each station where it stands first.
void removeTwins(StationList &stations)
{
    QSet<const LGStation *> seen;
    std::erase_if(stations, [&seen](const StationPtr &station) {
        const qsizetype before = seen.size();
        seen.insert(station.get());
        return seen.size() == before;
    });
}

} // namespace

StationList extractElemsWithServiceID(const QString &id, const StationList &list)
{
    return extract(list, [&id](const LGStation &station) { return station.service_id() == id; });
}

StationList extractElemsWithTransportID(const QString &id, const StationList &list)
{
    return extract(list, [&id](const LGStation &station) { return station.transport_id() == id; });
}

StationList extractElemsWithOnID(const QString &id, const StationList &list)
{
    return extract(list,
                   [&id](const LGStation &station) { return station.originalNetwork_id() == id; });
}

StationList extractElemsWithName(const QString &name, const StationList &list)
{
    const QString wanted = withoutCase(name);
    return extract(list, [&wanted](const LGStation &station) {
        return withoutCase(station.name()) == wanted;
    });
}

StationPool::StationPool(StationList stations) : m_stations(std::move(stations))
{
    if (mayHoldTwins(m_stations))
        removeTwins(m_stations);
    m_left = m_stations.size();
}

StationIndex &StationPool::index(std::optional<StationIndex> &made,
                                 const StationIndex::Key &key) const
{
    return made ? *made : made.emplace(m_stations, key);
}

StationPool::Match StationPool::find(const QString &service)
{
    return index(m_byService, takeServiceID).find(service, m_stations);
}

StationPool::Match StationPool::find(const QString &service, const QString &transport)
{
    const auto key = [](const LGStation &station, QString &text) {
        return takeText(joined({station.service_id(), station.transport_id()}), text);
    };
    return index(m_byTransport, key).find(*joined({service, transport}), m_stations);
}

StationPool::Match StationPool::find(const QString &service, const QString &transport,
                                     const QString &network)
{
    const auto key = [](const LGStation &station, QString &text) {
        return takeText(
            joined({station.service_id(), station.transport_id(), station.originalNetwork_id()}),
            text);
    };
    return index(m_byNetwork, key).find(*joined({service, transport, network}), m_stations);
}

StationPool::Match StationPool::findName(const QString &name)
{
    const auto key = [](const LGStation &station, QString &text) {
        fold(station.name(), text);
        return true;
    };
    fold(name, m_wanted);
    return index(m_byName, key).find(m_wanted, m_stations);
}

StationPtr StationPool::take(std::size_t index)
{
    --m_left;
    return std::exchange(m_stations[index], nullptr);
}

StationList StationPool::takeAll()
{
    std::erase(m_stations, nullptr);
    m_left = 0;
    return std::exchange(m_stations, {});
}

} // namespace quillet
