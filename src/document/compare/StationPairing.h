#pragma once

#include "document/compare/StationFacts.h"

#include <QHash>

#include <optional>
#include <utility>
#include <vector>

namespace quillet {

/// How surely two records are of one station.
enum class Likeness {
    Sure,   ///< by identifiers, by all that they hold, or by frequency and name
    ByName, ///< by a name, letter for letter, that both lists have once
    Loose,  ///< by a name that is only alike or given several times, against the identifiers, or
            ///< by nothing that tells one station from another
};

/// Where a station is found again.
struct StationPair
{
    std::size_t index = 0; ///< in the second list
    Likeness likeness = Likeness::Sure;
};

/// A station of the first of two lists, of which a record of the second one is known to be.
struct KnownPair
{
    StationPtr first; ///< null: it is none of those that are there
    Likeness likeness = Likeness::Sure;
};
/// By the records of the second list.
using KnownPairs = QHash<const LGStation *, KnownPair>;

/// Finds stations again in other lists. The two may be of different variants of the file, and
/// records need not tell everything. Goes by the identifiers; by frequency and name; among stations
/// that share those by what they hold and by number; then by name alone; at last by what editing
/// leaves of stations that tell nothing of all that. Takes linear time. Reads the stations' names;
/// otherwise changes nothing. Made for one comparison, whose stations must outlive it.
class StationPairing
{
public:
    using Pairs = std::vector<std::optional<StationPair>>;

    /// Makes room for so many stations.
    void reserve(std::size_t count) { m_facts.reserve(count); }
    /// What is known goes before all that is found.
    void know(KnownPairs known) { m_known = std::move(known); }
    /// Adds a station. Returns its place, by which it is named from then on.
    std::size_t add(const LGStation &station) { return m_facts.add(station); }
    /// Finds the stations of one list again in another, each at most once: for each where it is
    /// there, or none.
    [[nodiscard]] Pairs pair(const std::vector<std::size_t> &first,
                             const std::vector<std::size_t> &second);

private:
    using Number = StationFacts::Number;
    static constexpr Number none = StationFacts::none;
    /// How the stations with one fact in common are matched.
    enum class Rule {
        Unique, ///< the only ones with it, of those not matched yet
        InOrder,
    };
    struct Group;
    struct Counts;
    struct Side
    {
        std::vector<std::size_t> places;
        std::vector<std::size_t> left; ///< indexes of those not matched yet, ascending
        std::vector<bool> isShared;    ///< whether the other side has the identity as well
        std::vector<bool> isNear;      ///< whether it may have the content as well
        bool hasShared = false;        ///< whether isShared of one of those left
        bool hasUnknown = false;       ///< whether one of those left tells no identity
    };

    [[nodiscard]] bool isDone() const { return m_first.left.empty() || m_second.left.empty(); }
    [[nodiscard]] bool areUnknown() const { return m_first.hasUnknown && m_second.hasUnknown; }
    [[nodiscard]] bool areShared() const { return m_first.hasShared && m_second.hasShared; }
    template<typename FactOf, typename LikenessOf>
    void pairBy(Rule rule, const FactOf &factOf, const LikenessOf &likenessOf);
    template<typename FactOf>
    void pairSurely(Rule rule, const FactOf &factOf);
    template<typename FactOf>
    [[nodiscard]] std::vector<Counts> count(const FactOf &factOf,
                                            const std::vector<std::size_t> &ofFirst,
                                            const std::vector<std::size_t> &ofSecond);
    void pairKnown();
    void findNear();
    void pairByIdentity();
    void pairByContent();
    void pairByUnedited(bool isTelling);
    void pairBySharedIdentity();
    void pairByFrequencyAndName();
    void pairByName();
    [[nodiscard]] Likeness likenessByUnedited(std::size_t i, std::size_t j);
    [[nodiscard]] bool haveUnlikeNames(std::size_t i, std::size_t j);
    [[nodiscard]] bool isAgainstIdentities(std::size_t i, std::size_t j) const;

    KnownPairs m_known;
    StationFacts m_facts;
    Side m_first, m_second;
    Pairs m_pairs;
    std::vector<qint32> m_groups; ///< of each fact; none unless it is being paired by
};

/// Finds the stations of one list again in another.
[[nodiscard]] StationPairing::Pairs
pairStations(const StationList &first, const StationList &second, const KnownPairs &known = {});

} // namespace quillet
