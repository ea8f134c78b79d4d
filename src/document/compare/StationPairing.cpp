#include "document/compare/StationPairing.h"

#include "model/StationSource.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillet {

namespace {

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

std::vector<std::size_t> indexesOf(const std::vector<std::size_t> &places)
{
    std::vector<std::size_t> indexes(places.size());
    std::iota(indexes.begin(), indexes.end(), std::size_t(0));
    return indexes;
}

} // namespace

/// How many stations of either side tell a fact.
struct StationPairing::Counts
{
    std::size_t first = 0;
    std::size_t second = 0;
};

/// The stations that are left of one fact.
struct StationPairing::Group
{
    std::size_t firstCount = 0;
    std::size_t secondCount = 0;
    std::size_t first = nowhere;      ///< the last one, an index
    std::size_t second = nowhere;     ///< the first one, a place among those left
    std::size_t secondLast = nowhere; ///< and the last
};

StationPairing::Pairs StationPairing::pair(const std::vector<std::size_t> &first,
                                           const std::vector<std::size_t> &second)
{
    m_pairs.assign(first.size(), std::nullopt);
    m_first.places = first;
    m_second.places = second;
    m_first.left = indexesOf(first);
    m_second.left = indexesOf(second);
    pairKnown();
    pairByIdentity();
    pairByFrequencyAndName(); // before the whole content, which takes long to read
    pairByContent();
    pairBySharedIdentity();
    pairByName();
    if (areUnknown())
        pairByUnedited(false);
    return std::exchange(m_pairs, {});
}

/// A station that is known but is in another list, or in none any more, is found as any other.
void StationPairing::pairKnown()
{
    if (m_known.isEmpty())
        return;
    QHash<const LGStation *, std::size_t> indexes;
    for (const std::size_t i : m_first.left)
        indexes.insert(&m_facts.station(m_first.places[i]), i);
    std::erase_if(m_second.left, [this, &indexes](std::size_t j) {
        const auto known = m_known.constFind(&m_facts.station(m_second.places[j]));
        if (known == m_known.cend() || !known->first)
            return known != m_known.cend();
        const auto index = indexes.constFind(known->first.get());
        if (index == indexes.cend() || m_pairs[*index])
            return false;
        m_pairs[*index] = {j, known->likeness};
        return true;
    });
    std::erase_if(m_first.left, [this](std::size_t i) { return m_pairs[i].has_value(); });
}

/// Stations without a fact are left out, and so are pairs that have no likeness.
template<typename FactOf, typename LikenessOf>
void StationPairing::pairBy(Rule rule, const FactOf &factOf, const LikenessOf &likenessOf)
{
    if (isDone())
        return;
    std::vector<Number> facts; // of the second side's
    facts.reserve(m_second.left.size());
    for (const std::size_t j : m_second.left)
        facts.push_back(factOf(m_second, j));
    std::vector<Group> groups;
    m_groups.resize(std::max(m_groups.size(), m_facts.end()), none);
    std::vector<std::size_t> next(facts.size(), nowhere); // of the same group
    for (std::size_t at = 0; at < facts.size(); ++at) {
        if (facts[at] == none)
            continue;
        Number &known = m_groups[static_cast<std::size_t>(facts[at])];
        if (known == none) {
            known = static_cast<Number>(groups.size());
            groups.push_back({.second = at, .secondLast = at});
        }
        Group &group = groups[static_cast<std::size_t>(known)];
        if (++group.secondCount > 1)
            next[std::exchange(group.secondLast, at)] = at;
    }
    const auto tryPair = [this, &likenessOf](std::size_t i, std::size_t at) {
        const std::size_t j = m_second.left[at];
        const std::optional<Likeness> likeness = likenessOf(i, j);
        if (!likeness)
            return;
        m_pairs[i] = StationPair{j, *likeness};
        m_second.left[at] = nowhere;
    };
    for (const std::size_t i : m_first.left) {
        const Number fact = factOf(m_first, i);
        const auto index = static_cast<std::size_t>(fact);
        if (fact == none || index >= m_groups.size() || m_groups[index] == none)
            continue;
        Group &group = groups[static_cast<std::size_t>(m_groups[index])];
        ++group.firstCount;
        group.first = i;
        if (rule == Rule::InOrder && group.second != nowhere) {
            const std::size_t at = group.second;
            group.second = next[at];
            tryPair(i, at);
        }
    }
    for (const Group &group : groups) {
        if (rule == Rule::Unique && group.firstCount == 1 && group.secondCount == 1)
            tryPair(group.first, group.second);
    }
    for (const Number fact : facts) {
        if (fact != none)
            m_groups[static_cast<std::size_t>(fact)] = none;
    }
    std::erase_if(m_first.left, [this](std::size_t i) { return m_pairs[i].has_value(); });
    std::erase(m_second.left, nowhere);
}

template<typename FactOf>
void StationPairing::pairSurely(Rule rule, const FactOf &factOf)
{
    pairBy(rule, factOf, [](std::size_t, std::size_t) { return std::optional(Likeness::Sure); });
}

template<typename FactOf>
std::vector<StationPairing::Counts> StationPairing::count(const FactOf &factOf,
                                                          const std::vector<std::size_t> &ofFirst,
                                                          const std::vector<std::size_t> &ofSecond)
{
    std::vector<Counts> counts(m_facts.end());
    const auto add = [&](const Side &side, std::size_t i, std::size_t Counts::*count) {
        const Number fact = factOf(side, i);
        if (fact == none)
            return;
        const auto index = static_cast<std::size_t>(fact);
        if (index >= counts.size())
            counts.resize(2 * index + 1);
        ++(counts[index].*count);
    };
    for (const std::size_t i : ofFirst)
        add(m_first, i, &Counts::first);
    for (const std::size_t j : ofSecond)
        add(m_second, j, &Counts::second);
    return counts;
}

void StationPairing::pairByIdentity()
{
    const auto identity = [this](const Side &side, std::size_t i) {
        return m_facts.identity(side.places[i]);
    };
    const std::vector<Counts> counts = count(identity, m_first.left, m_second.left);
    pairSurely(Rule::Unique, identity);
    for (Side *side : {&m_first, &m_second}) {
        side->isShared.assign(side->places.size(), false);
        side->hasShared = false;
        side->hasUnknown = false;
        for (const std::size_t i : side->left) {
            const Number fact = identity(*side, i);
            if (fact == none) {
                side->hasUnknown = true;
                continue;
            }
            const auto [first, second] = counts[static_cast<std::size_t>(fact)];
            side->isShared[i] = first > 0 && second > 0;
            side->hasShared = side->hasShared || side->isShared[i];
        }
    }
}

/// The whole content takes long to read, so that of stations is left out which the other side does
/// not have by what is read quickly.
void StationPairing::findNear()
{
    const auto near = [this](const Side &side, std::size_t i) {
        const std::size_t place = side.places[i];
        const bool isUnknown = m_facts.identity(place) == none;
        return (isUnknown ? areUnknown() : side.isShared[i])
                   ? m_facts.both(m_facts.identity(place) + 1, m_facts.frequency(place) + 1)
                   : none;
    };
    const std::vector<Counts> counts = count(near, m_first.left, m_second.left);
    for (Side *side : {&m_first, &m_second}) {
        side->isNear.assign(side->places.size(), false);
        for (const std::size_t i : side->left) {
            const Number fact = near(*side, i);
            if (fact == none)
                continue;
            const auto [first, second] = counts[static_cast<std::size_t>(fact)];
            side->isNear[i] = first > 0 && second > 0;
        }
    }
}

void StationPairing::pairByContent()
{
    if (isDone() || !(areShared() || areUnknown()))
        return;
    findNear();
    pairSurely(Rule::InOrder, [&](const Side &side, std::size_t i) {
        return side.isNear[i] ? m_facts.content(side.places[i]) : none;
    });
    pairSurely(Rule::InOrder, [&](const Side &side, std::size_t i) {
        const std::size_t place = side.places[i];
        return side.isNear[i] ? m_facts.both(m_facts.unedited(place), m_facts.name(place)) : none;
    });
    pairByUnedited(true);
}

/// Where an analogue station was found is all that it tells besides its name, which anybody may
/// change. Of others, several are on each frequency and under each shared identity.
Likeness StationPairing::likenessByUnedited(std::size_t i, std::size_t j)
{
    const LGStation &station = m_facts.station(m_first.places[i]);
    const bool isAnalogue =
        station.mappedSourceIndex() == static_cast<int>(StationSource::Analogue);
    return isAnalogue || !haveUnlikeNames(i, j) ? Likeness::Sure : Likeness::Loose;
}

/// By what editing does not change: a mere guess among stations that tell neither an identity nor a
/// frequency.
void StationPairing::pairByUnedited(bool isTelling)
{
    const auto unedited = [this, isTelling](const Side &side, std::size_t i) {
        const std::size_t place = side.places[i];
        const bool tells = m_facts.identity(place) != none || m_facts.frequency(place) != none;
        return side.isNear[i] && tells == isTelling ? m_facts.unedited(place) : none;
    };
    const auto likeness = [this, isTelling](std::size_t i, std::size_t j) {
        return std::optional(isTelling ? likenessByUnedited(i, j) : Likeness::Loose);
    };
    const auto andNumber = [&](const Side &side, std::size_t i) {
        return m_facts.both(unedited(side, i), m_facts.programNumber(side.places[i]));
    };
    pairBy(Rule::Unique, andNumber, likeness);
    pairBy(Rule::Unique, unedited, likeness);
}

/// Where an identity is given more than once.
void StationPairing::pairBySharedIdentity()
{
    if (!areShared())
        return;
    const auto with = [this](const Side &side, std::size_t i, const auto &factOf) {
        const std::size_t place = side.places[i];
        return side.isShared[i] ? m_facts.both(m_facts.identity(place), factOf(place)) : none;
    };
    pairSurely(Rule::InOrder, [&](const Side &side, std::size_t i) {
        return with(side, i, [this](std::size_t place) {
            return m_facts.both(m_facts.name(place), m_facts.frequency(place));
        });
    });
    const auto frequency = [&](const Side &side, std::size_t i) {
        return with(side, i, [this](std::size_t place) { return m_facts.frequency(place); });
    };
    pairBy(Rule::Unique, frequency, [this](std::size_t i, std::size_t j) {
        return std::optional(haveUnlikeNames(i, j) ? Likeness::Loose : Likeness::Sure);
    });
    pairSurely(Rule::InOrder, [&](const Side &side, std::size_t i) {
        return with(side, i, [this](std::size_t place) { return m_facts.name(place); });
    });
    const auto number = [&](const Side &side, std::size_t i) {
        return with(side, i, [this](std::size_t place) { return m_facts.programNumber(place); });
    };
    pairBy(Rule::Unique, number,
           [](std::size_t, std::size_t) { return std::optional(Likeness::Loose); });
}

bool StationPairing::haveUnlikeNames(std::size_t i, std::size_t j)
{
    const Number one = m_facts.looseName(m_first.places[i]);
    const Number other = m_facts.looseName(m_second.places[j]);
    return one != none && other != none && one != other;
}

bool StationPairing::isAgainstIdentities(std::size_t i, std::size_t j) const
{
    const Number one = m_facts.identity(m_first.places[i]);
    const Number other = m_facts.identity(m_second.places[j]);
    return one != none && other != none && one != other;
}

/// For stations of which at least one record tells no identity.
void StationPairing::pairByFrequencyAndName()
{
    const auto fact = [this](const Side &side, std::size_t i) {
        const Side &otherSide = &side == &m_first ? m_second : m_first;
        const std::size_t place = side.places[i];
        return otherSide.hasUnknown || m_facts.identity(place) == none
                   ? m_facts.both(m_facts.frequency(place), m_facts.name(place))
                   : none;
    };
    if (!m_first.hasUnknown && !m_second.hasUnknown)
        return;
    pairBy(Rule::Unique, fact, [this](std::size_t i, std::size_t j) {
        return isAgainstIdentities(i, j) ? std::nullopt : std::optional(Likeness::Sure);
    });
}

void StationPairing::pairByName()
{
    if (isDone())
        return;
    const auto name = [this](const Side &side, std::size_t i) {
        return m_facts.name(side.places[i]);
    };
    // Of all stations, matched or not.
    const std::vector<Counts> counts =
        count(name, indexesOf(m_first.places), indexesOf(m_second.places));
    pairBy(Rule::InOrder, name, [&](std::size_t i, std::size_t j) {
        const auto [first, second] = counts[static_cast<std::size_t>(name(m_first, i))];
        const bool isOnce = first == 1 && second == 1;
        return std::optional(isOnce && !isAgainstIdentities(i, j) ? Likeness::ByName
                                                                  : Likeness::Loose);
    });
    const auto loose = [this](const Side &side, std::size_t i) {
        return m_facts.looseName(side.places[i]);
    };
    pairBy(Rule::InOrder, loose,
           [](std::size_t, std::size_t) { return std::optional(Likeness::Loose); });
}

StationPairing::Pairs pairStations(const StationList &first, const StationList &second,
                                   const KnownPairs &known)
{
    StationPairing pairing;
    pairing.know(known);
    pairing.reserve(first.size() + second.size());
    const auto added = [&pairing](const StationList &list) {
        std::vector<std::size_t> places;
        places.reserve(list.size());
        for (const StationPtr &station : list)
            places.push_back(pairing.add(*station));
        return places;
    };
    const std::vector<std::size_t> places = added(first);
    return pairing.pair(places, added(second));
}

} // namespace quillet
