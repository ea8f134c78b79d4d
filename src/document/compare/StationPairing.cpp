#include "document/compare/StationPairing.h"

#include "document/compare/StationContent.h"
#include "document/compare/StationIdentity.h"
#include "model/LGLegacyStation.h"

#include <QHash>

#include <algorithm>
#include <limits>
#include <utility>

namespace quillet {

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

/// How the stations with one key are matched.
enum class Rule {
    Unique, ///< the only ones with it, of those not matched yet
    InOrder,
};

/// The stations of one of the lists.
struct Side
{
    explicit Side(const StationList &list)
        : stations(list), identities(list.size()), left(list.size())
    {
        for (std::size_t i = 0; i < left.size(); ++i)
            left[i] = i;
    }

    const StationList &stations;
    std::vector<std::optional<StationIdentity>> identities;
    std::vector<std::size_t> left; ///< not matched yet, ascending
    // From here on of those that the identities alone did not match
    std::vector<ContentHashes> hashes;
    std::vector<bool> mayHaveContent; ///< whose content may be found on the other side
};

/// The work of pairing two lists: one way after another, each among what the ones before left.
class Pairing
{
public:
    Pairing(const StationList &first, const StationList &second)
        : m_first(first), m_second(second), m_pairs(first.size())
    {
    }
    [[nodiscard]] std::vector<std::optional<StationPair>> take();

private:
    [[nodiscard]] bool isDone() const { return m_first.left.empty() || m_second.left.empty(); }
    template<typename KeyOf, typename LikenessOf>
    void pairBy(Rule rule, const KeyOf &keyOf, const LikenessOf &likenessOf);
    template<typename KeyOf>
    void pairSurely(Rule rule, const KeyOf &keyOf);
    void dropPaired();

    void pairByContent();
    void findContentToHash();
    void pairBySharedIdentity();
    void pairByFrequencyAndName();
    void pairByName();
    [[nodiscard]] bool isAgainstIdentities(std::size_t i, std::size_t j) const;

    Side m_first, m_second;
    std::vector<std::optional<StationPair>> m_pairs;
};

std::vector<std::optional<StationPair>> Pairing::take()
{
    IdentityReader reader;
    for (Side *side : {&m_first, &m_second}) {
        for (std::size_t i = 0; i < side->stations.size(); ++i)
            side->identities[i] = reader.read(*side->stations[i]);
    }
    pairSurely(Rule::Unique, [](const Side &side, std::size_t i) { return side.identities[i]; });
    pairByContent();
    pairBySharedIdentity();
    pairByFrequencyAndName();
    pairByName();
    return std::move(m_pairs);
}

/// Two stations of one key are paired unless they have no likeness.
template<typename KeyOf, typename LikenessOf>
void Pairing::pairBy(Rule rule, const KeyOf &keyOf, const LikenessOf &likenessOf)
{
    if (isDone())
        return;
    using Key = typename decltype(keyOf(m_first, 0))::value_type;
    struct Group
    {
        std::size_t firstLeft = none, firstCount = 0;
        std::size_t secondLeft = none, secondEnd = none, secondCount = 0;
    };
    QHash<Key, std::size_t> places;
    places.reserve(static_cast<qsizetype>(m_second.left.size()));
    std::vector<Group> groups;
    std::vector<std::size_t> next(m_second.left.size(), none); // of the same group
    for (std::size_t at = 0; at < m_second.left.size(); ++at) {
        const std::optional<Key> key = keyOf(m_second, m_second.left[at]);
        if (!key)
            continue;
        const auto known = places.constFind(*key);
        if (known == places.cend()) {
            places.insert(*key, groups.size());
            groups.push_back({none, 0, at, at, 1});
            continue;
        }
        Group &group = groups[*known];
        next[group.secondEnd] = at;
        group.secondEnd = at;
        ++group.secondCount;
    }
    const auto pair = [this, &likenessOf](std::size_t i, std::size_t at) {
        const std::size_t j = m_second.left[at];
        const std::optional<Likeness> likeness = likenessOf(i, j);
        if (!likeness)
            return;
        m_pairs[i] = StationPair{j, *likeness};
        m_second.left[at] = none;
    };
    for (const std::size_t i : m_first.left) {
        const std::optional<Key> key = keyOf(m_first, i);
        const auto known = key ? places.constFind(*key) : places.cend();
        if (known == places.cend())
            continue;
        Group &group = groups[*known];
        ++group.firstCount;
        group.firstLeft = i;
        if (rule == Rule::Unique || group.secondLeft == none)
            continue;
        const std::size_t at = group.secondLeft;
        group.secondLeft = next[at];
        pair(i, at);
    }
    if (rule == Rule::Unique) {
        for (const Group &group : groups) {
            if (group.firstCount == 1 && group.secondCount == 1)
                pair(group.firstLeft, group.secondLeft);
        }
    }
    dropPaired();
}

template<typename KeyOf>
void Pairing::pairSurely(Rule rule, const KeyOf &keyOf)
{
    pairBy(rule, keyOf, [](std::size_t, std::size_t) { return std::optional(Likeness::Sure); });
}

void Pairing::dropPaired()
{
    std::erase_if(m_first.left, [this](std::size_t i) { return m_pairs[i].has_value(); });
    std::erase(m_second.left, none);
}

/// Reading the whole content takes long, so only that of stations is read of which the other side
/// may have another record by what is quickly read.
void Pairing::findContentToHash()
{
    constexpr unsigned char both = 3;
    QHash<std::pair<StationIdentity, qint64>, unsigned char> sides;
    const auto keyOf = [](const Side &side, std::size_t i) {
        const StationIdentity unknown{{-1, 0, 0}};
        return std::pair(side.identities[i].value_or(unknown),
                         side.stations[i]->frequency().value_or(0));
    };
    unsigned char bit = 1;
    for (const Side *side : {&m_first, &m_second}) {
        for (const std::size_t i : side->left)
            sides[keyOf(*side, i)] |= bit;
        bit <<= 1;
    }
    for (Side *side : {&m_first, &m_second}) {
        side->hashes.resize(side->stations.size());
        side->mayHaveContent.resize(side->stations.size());
        for (const std::size_t i : side->left) {
            if (sides.value(keyOf(*side, i)) != both)
                continue;
            side->mayHaveContent[i] = true;
            side->hashes[i] = contentHashes(*side->stations[i]);
        }
    }
}

void Pairing::pairByContent()
{
    if (isDone())
        return;
    findContentToHash();
    const auto unedited = [](const Side &side, std::size_t i) {
        return UneditedContent{side.hashes[i].unedited, side.stations[i].get()};
    };
    pairSurely(Rule::InOrder, [](const Side &side, std::size_t i) {
        return side.mayHaveContent[i]
                   ? std::optional(WholeContent{side.hashes[i].all, side.stations[i].get()})
                   : std::nullopt;
    });
    pairSurely(Rule::InOrder, [&unedited](const Side &side, std::size_t i) {
        return side.mayHaveContent[i]
                   ? std::optional(std::pair(unedited(side, i), side.stations[i]->shownName()))
                   : std::nullopt;
    });
    pairSurely(Rule::Unique, [&unedited](const Side &side, std::size_t i) {
        return side.mayHaveContent[i]
                   ? std::optional(std::pair(unedited(side, i), side.stations[i]->progNum()))
                   : std::nullopt;
    });
    pairSurely(Rule::Unique, [&unedited](const Side &side, std::size_t i) {
        return side.mayHaveContent[i] ? std::optional(unedited(side, i)) : std::nullopt;
    });
}

/// Where an identity is given more than once.
void Pairing::pairBySharedIdentity()
{
    pairSurely(Rule::InOrder, [](const Side &side, std::size_t i) {
        using Key = std::pair<StationIdentity, std::pair<QString, qint64>>;
        const std::optional<StationIdentity> &identity = side.identities[i];
        return identity ? std::optional(Key(*identity, {toldName(*side.stations[i]),
                                                        side.stations[i]->frequency().value_or(0)}))
                        : std::nullopt;
    });
    pairSurely(Rule::Unique, [](const Side &side, std::size_t i) {
        const std::optional<StationIdentity> &identity = side.identities[i];
        const std::optional<qint64> frequency = side.stations[i]->frequency();
        return identity && frequency ? std::optional(std::pair(*identity, *frequency))
                                     : std::nullopt;
    });
    pairSurely(Rule::InOrder, [](const Side &side, std::size_t i) {
        const std::optional<StationIdentity> &identity = side.identities[i];
        return identity ? std::optional(std::pair(*identity, toldName(*side.stations[i])))
                        : std::nullopt;
    });
    pairSurely(Rule::Unique, [](const Side &side, std::size_t i) {
        const std::optional<StationIdentity> &identity = side.identities[i];
        return identity ? std::optional(std::pair(*identity, side.stations[i]->progNum()))
                        : std::nullopt;
    });
}

bool Pairing::isAgainstIdentities(std::size_t i, std::size_t j) const
{
    const std::optional<StationIdentity> &one = m_first.identities[i];
    const std::optional<StationIdentity> &other = m_second.identities[j];
    return one && other && *one != *other;
}

void Pairing::pairByFrequencyAndName()
{
    const auto key = [](const Side &side, std::size_t i) {
        using Key = std::pair<qint64, QString>;
        const std::optional<qint64> frequency = side.stations[i]->frequency();
        const QString name = frequency ? toldName(*side.stations[i]) : QString();
        return name.isEmpty() ? std::nullopt : std::optional(Key(*frequency, name));
    };
    pairBy(Rule::Unique, key, [this](std::size_t i, std::size_t j) {
        return isAgainstIdentities(i, j) ? std::nullopt : std::optional(Likeness::Sure);
    });
}

void Pairing::pairByName()
{
    if (isDone())
        return;
    QHash<QString, int> countsOfFirst, countsOfSecond; // of all, matched or not
    const auto count = [](const Side &side, QHash<QString, int> &counts) {
        counts.reserve(static_cast<qsizetype>(side.stations.size()));
        for (const StationPtr &station : side.stations)
            ++counts[toldName(*station)];
    };
    count(m_first, countsOfFirst);
    count(m_second, countsOfSecond);
    const auto name = [](const Side &side, std::size_t i) {
        const QString told = toldName(*side.stations[i]);
        return told.isEmpty() ? std::nullopt : std::optional(told);
    };
    pairBy(Rule::InOrder, name, [&](std::size_t i, std::size_t j) {
        const QString told = toldName(*m_first.stations[i]);
        const bool isOnce = countsOfFirst.value(told) == 1 && countsOfSecond.value(told) == 1;
        return std::optional(isOnce && !isAgainstIdentities(i, j) ? Likeness::ByName
                                                                  : Likeness::Loose);
    });
    const auto loose = [](const Side &side, std::size_t i) {
        const QString letters = looseName(toldName(*side.stations[i]));
        return letters.isEmpty() ? std::nullopt : std::optional(letters);
    };
    pairBy(Rule::InOrder, loose,
           [](std::size_t, std::size_t) { return std::optional(Likeness::Loose); });
}

} // namespace

bool isOfLegacyFormat(const LGStation &station)
{
    return dynamic_cast<const LGLegacyStation *>(&station);
}

std::vector<std::optional<StationPair>> pairStations(const StationList &first,
                                                     const StationList &second)
{
    return Pairing(first, second).take();
}

} // namespace quillet
