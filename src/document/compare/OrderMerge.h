#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace quillet {

/// Merges two orders that were made of one. Goes by moves: what stands elsewhere on one side alone
/// goes there, however much that shifts; what was moved on both sides to different places stays
/// where ours has it. Knows stations by rank alone: by their places in the base order, among those
/// that all three have. Takes n log n.
class OrderMerge
{
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    /// One of the two orders.
    struct Side
    {
        std::vector<std::size_t> ranks; ///< none: a station that not all three have
        std::vector<qint64> numbers;    ///< of the stations, by which those are put in order that
                                        ///< the two sides moved between the same neighbours
        std::vector<bool> hasItsNumber; ///< the one of the base; so it likely was not moved
    };
    enum class Move {
        None,
        Ours,
        Theirs,
        Same,     ///< both sides moved it to one place
        Conflict, ///< and to different ones, or theirs moved what is held
    };

    /// By rank, `isHeld` are those that stay where ours has them even if theirs alone moved them.
    /// Each of these ranks must be once on either side; of theirs what has no rank is ignored.
    OrderMerge(const Side &ours, const Side &theirs, const std::vector<bool> &isHeld);

    /// Places of ours, in the order in which their stations shall stand.
    [[nodiscard]] const std::vector<std::size_t> &order() const { return m_order; }
    [[nodiscard]] Move moveOf(std::size_t rank) const { return m_moves[rank]; }

private:
    struct Placed
    {
        std::size_t place; ///< of ours
        qint64 number;
    };
    void findMoves(const Side &ours, const Side &theirs, const std::vector<bool> &isHeld);
    void findAgreements(const Side &ours, const Side &theirs);
    [[nodiscard]] std::vector<std::size_t> gapsOf(const Side &side) const;
    [[nodiscard]] bool isAnchor(std::size_t rank) const;
    void build(const Side &ours, const Side &theirs);
    void append(const std::vector<Placed> &ours, const std::vector<Placed> &theirs);

    std::vector<Move> m_moves;              ///< by rank
    std::vector<std::size_t> m_placeInOurs; ///< by rank
    std::vector<std::size_t> m_order;
};

} // namespace quillet
