#include "document/edit/StationSorting.h"

#include "model/TypeFilter.h"

#include <QCollator>

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace quillet {

namespace {

/// What stations are compared by: one rank a place; none: the file does not tell.
using Ranks = std::vector<std::optional<qint64>>;

std::optional<QString> textOf(ArrangeBy by, const LGStation &station)
{
    switch (by) {
    case ArrangeBy::Name:
        return station.shownName();
    case ArrangeBy::Satellite:
        return station.satellite();
    case ArrangeBy::Network:
        return station.networkIdText();
    case ArrangeBy::ServiceId:
        return station.serviceIdText();
    default:
        return {};
    }
}

std::optional<qint64> numberOf(ArrangeBy by, const LGStation &station, int source)
{
    switch (by) {
    case ArrangeBy::Type: {
        constexpr std::array best{TypeFilter::Uhd, TypeFilter::Hd, TypeFilter::Sd};
        const auto *const found = std::find_if(best.begin(), best.end(), [&](TypeFilter type) {
            return station.matchesType(static_cast<int>(type), source);
        });
        return found - best.begin();
    }
    case ArrangeBy::Encryption:
        return station.isEncrypted();
    case ArrangeBy::Frequency:
        return station.frequency();
    case ArrangeBy::Number:
        return station.progNum();
    default:
        return {};
    }
}

bool isText(ArrangeBy by)
{
    constexpr std::array texts{ArrangeBy::Name, ArrangeBy::Satellite, ArrangeBy::Network,
                               ArrangeBy::ServiceId};
    return std::find(texts.begin(), texts.end(), by) != texts.end();
}

/// Each text is collated once, for that is slow.
Ranks ranksOfTexts(ArrangeBy by, const StationList &stations, const PlaceOrder &places)
{
    const QLocale locale;
    // The collation of the C locale knows no numbers within names.
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, std::size_t>> keys;
    keys.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (const auto text = textOf(by, *stations[places[i]]))
            keys.emplace_back(collator.sortKey(*text), i);
    }
    std::sort(keys.begin(), keys.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    Ranks ranks(places.size());
    qint64 rank = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        rank += i > 0 && keys[i - 1].first < keys[i].first ? 1 : 0;
        ranks[keys[i].second] = rank;
    }
    return ranks;
}

Ranks ranksOf(ArrangeKey key, const StationList &stations, const PlaceOrder &places, int source)
{
    Ranks ranks;
    if (isText(key.by)) {
        ranks = ranksOfTexts(key.by, stations, places);
    } else {
        for (const std::size_t place : places)
            ranks.push_back(numberOf(key.by, *stations[place], source));
    }
    if (key.isDescending) {
        for (auto &rank : ranks)
            rank = rank ? std::optional(-*rank) : std::nullopt;
    }
    return ranks;
}

} // namespace

PlaceOrder sortedPlaces(const StationList &stations, const PlaceOrder &places,
                        const ArrangeKeys &keys, int source)
{
    std::vector<Ranks> ranks;
    for (const ArrangeKey &key : keys)
        ranks.push_back(ranksOf(key, stations, places, source));
    PlaceOrder order(places.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&ranks](std::size_t a, std::size_t b) {
        for (const Ranks &each : ranks) {
            if (each[a] != each[b])
                return each[a] && (!each[b] || *each[a] < *each[b]);
        }
        return false;
    });
    for (std::size_t &each : order)
        each = places[each];
    return order;
}

bool tells(ArrangeBy by, const StationList &stations)
{
    return std::any_of(stations.begin(), stations.end(), [by](const StationPtr &station) {
        return isText(by) ? textOf(by, *station).has_value()
                          : numberOf(by, *station, 0).has_value();
    });
}

} // namespace quillet
