#include "document/compare/OrderMerge.h"

#include "document/compare/KeptOrder.h"

namespace quillet {

namespace {

/// By rank, whether the station stands elsewhere than in the base order.
std::vector<bool> movedBy(const OrderMerge::Side &side, std::size_t count)
{
    std::vector<std::size_t> ranks;
    std::vector<bool> hasItsNumber;
    ranks.reserve(count);
    hasItsNumber.reserve(count);
    for (std::size_t place = 0; place < side.ranks.size(); ++place) {
        if (side.ranks[place] == OrderMerge::none)
            continue;
        ranks.push_back(side.ranks[place]);
        hasItsNumber.push_back(side.hasItsNumber[place]);
    }
    const std::vector<bool> isKept = keptOrder(ranks, hasItsNumber);
    std::vector<bool> isMoved(count);
    for (std::size_t i = 0; i < ranks.size(); ++i)
        isMoved[ranks[i]] = !isKept[i];
    return isMoved;
}

} // namespace

OrderMerge::OrderMerge(const Side &ours, const Side &theirs, const std::vector<bool> &isHeld)
    : m_moves(isHeld.size(), Move::None), m_placeInOurs(isHeld.size(), none)
{
    for (std::size_t place = 0; place < ours.ranks.size(); ++place) {
        if (ours.ranks[place] != none)
            m_placeInOurs[ours.ranks[place]] = place;
    }
    findMoves(ours, theirs, isHeld);
    findAgreements(ours, theirs);
    build(ours, theirs);
}

/// What both sides moved counts as a conflict for now.
void OrderMerge::findMoves(const Side &ours, const Side &theirs, const std::vector<bool> &isHeld)
{
    const std::size_t count = m_moves.size();
    const std::vector<bool> byOurs = movedBy(ours, count), byTheirs = movedBy(theirs, count);
    for (std::size_t rank = 0; rank < count; ++rank) {
        if (byOurs[rank])
            m_moves[rank] = byTheirs[rank] ? Move::Conflict : Move::Ours;
        else if (byTheirs[rank])
            m_moves[rank] = isHeld[rank] ? Move::Conflict : Move::Theirs;
    }
}

/// By rank, behind which of the stations that nobody moved one stands.
std::vector<std::size_t> OrderMerge::gapsOf(const Side &side) const
{
    std::vector<std::size_t> gaps(m_moves.size(), none);
    std::size_t last = none;
    for (const std::size_t rank : side.ranks) {
        if (rank == none)
            continue;
        if (m_moves[rank] == Move::None)
            last = rank;
        gaps[rank] = last;
    }
    return gaps;
}

/// Both sides want the same of stations that they moved between the same neighbours, as far as they
/// put them in the same order there.
void OrderMerge::findAgreements(const Side &ours, const Side &theirs)
{
    const std::vector<std::size_t> gaps = gapsOf(ours), otherGaps = gapsOf(theirs);
    std::vector<std::size_t> ranks, places; // what may stay as it stands in ours
    for (const std::size_t rank : theirs.ranks) {
        const bool mayAgree = rank != none && gaps[rank] == otherGaps[rank] &&
                              (m_moves[rank] == Move::None || m_moves[rank] == Move::Conflict);
        if (!mayAgree)
            continue;
        ranks.push_back(rank);
        places.push_back(m_placeInOurs[rank]);
    }
    const std::vector<bool> isKept = keptOrder(places, std::vector<bool>(places.size()));
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        if (isKept[i] && m_moves[ranks[i]] == Move::Conflict)
            m_moves[ranks[i]] = Move::Same;
    }
}

/// Whether the station stands where both sides have it.
bool OrderMerge::isAnchor(std::size_t rank) const
{
    return rank != none && (m_moves[rank] == Move::None || m_moves[rank] == Move::Same);
}

void OrderMerge::build(const Side &ours, const Side &theirs)
{
    // What theirs moved, by the anchor that it stands behind; first what stands behind none.
    std::vector<std::vector<Placed>> taken(m_moves.size() + 1);
    std::size_t gap = 0;
    for (std::size_t i = 0; i < theirs.ranks.size(); ++i) {
        const std::size_t rank = theirs.ranks[i];
        if (isAnchor(rank))
            gap = rank + 1;
        else if (rank != none && m_moves[rank] == Move::Theirs)
            taken[gap].push_back({m_placeInOurs[rank], theirs.numbers[i]});
    }
    m_order.reserve(ours.ranks.size());
    std::vector<Placed> own;
    gap = 0;
    for (std::size_t place = 0; place < ours.ranks.size(); ++place) {
        const std::size_t rank = ours.ranks[place];
        if (isAnchor(rank)) {
            append(own, taken[gap]);
            own.clear();
            m_order.push_back(place);
            gap = rank + 1;
        } else if (rank == none || m_moves[rank] != Move::Theirs) {
            own.push_back({place, ours.numbers[place]});
        }
    }
    append(own, taken[gap]);
}

/// Each side keeps its order; between them the lower number goes first, of equal ones ours.
void OrderMerge::append(const std::vector<Placed> &ours, const std::vector<Placed> &theirs)
{
    auto own = ours.begin();
    for (const Placed &each : theirs) {
        for (; own != ours.end() && own->number <= each.number; ++own)
            m_order.push_back(own->place);
        m_order.push_back(each.place);
    }
    for (; own != ours.end(); ++own)
        m_order.push_back(own->place);
}

} // namespace quillet
