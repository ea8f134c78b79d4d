#pragma once

#include "document/compare/NumberMerge.h"
#include "document/compare/OrderMerge.h"
#include "document/compare/StationMerge.h"
#include "document/compare/StationTriples.h"

#include <QSet>

#include <cstddef>
#include <vector>

namespace quillet {

/// Merges order and numbers of one of the eight lists. The lists must outlive it, and stay as they
/// are.
class PlaceMerge
{
public:
    PlaceMerge(const StationTriples &triples, const StationList &base, const StationList &ours,
               const StationList &theirs);

    /// Our list as it shall stand, and its numbers.
    [[nodiscard]] const StationList &order() const { return m_order; }
    [[nodiscard]] const std::vector<qint64> &numbers() const { return m_numbers; }
    [[nodiscard]] std::size_t moved() const { return m_moved; } ///< as theirs has moved them
    /// Of each of the triples.
    [[nodiscard]] const std::vector<PlaceChange> &changes() const { return m_changes; }

private:
    /// What a side made of the base's places and numbers.
    struct Side
    {
        StationPtr StationTriple::*record;
        const StationList &list;
        std::vector<qint64> numbers;
        std::vector<std::size_t> triples; ///< of each place; none where that is in another list
        bool countsUp = false;            ///< whether the numbers are 1, 2, 3 and so on
        std::vector<bool> isMoved = {};   ///< by triple
        std::vector<bool> isGiven = {};   ///< by triple, whether somebody gave the number
    };

    [[nodiscard]] Side sideOf(const StationList &list, StationPtr StationTriple::*record) const;
    [[nodiscard]] OrderMerge::Side ranksOf(const Side &side) const;
    void findMoved(Side &side) const;
    void findGiven(Side &side) const;
    void findRivals();
    [[nodiscard]] bool isNew(std::size_t triple, const Side &side) const;
    /// Whether the side numbered the list 1, 2, 3 and so on.
    [[nodiscard]] bool countsAnew(const Side &side) const;
    [[nodiscard]] bool isHeld(std::size_t triple) const;
    [[nodiscard]] OrderMerge merged() const;
    void findConflicts(const OrderMerge &merge);
    void takeOrder(const OrderMerge &merge);
    void findRaised(const OrderMerge &merge);
    [[nodiscard]] MergedNumber numberOf(std::size_t triple) const;
    [[nodiscard]] qint64 wantedOf(std::size_t triple) const;
    [[nodiscard]] Numbering numbering(QSet<qint64> &shared) const;

    const std::vector<StationTriple> &m_triples;
    std::vector<std::size_t> m_ranks;  ///< of the triples, among those that all three lists have
    std::vector<std::size_t> m_common; ///< and the other way round
    Side m_base, m_ours, m_theirs;
    bool m_isCounted = false;    ///< whether the merged list is numbered 1, 2, 3 and so on
    std::vector<bool> m_isRival; ///< whether theirs wants its number in ours for another one
    std::vector<PlaceChange> m_changes;
    StationList m_order;
    std::vector<qint64> m_numbers;
    std::size_t m_moved = 0;
};

} // namespace quillet
