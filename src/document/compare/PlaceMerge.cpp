#include "document/compare/PlaceMerge.h"

#include "document/compare/KeptOrder.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

constexpr std::size_t none = OrderMerge::none;

std::vector<qint64> numbersOf(const StationList &list)
{
    std::vector<qint64> numbers;
    numbers.reserve(list.size());
    for (const StationPtr &station : list)
        numbers.push_back(station->progNum());
    return numbers;
}

bool countUp(const std::vector<qint64> &numbers)
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] != static_cast<qint64>(i) + 1)
            return false;
    }
    return true;
}

} // namespace

PlaceMerge::PlaceMerge(const StationTriples &triples, const StationList &base,
                       const StationList &ours, const StationList &theirs)
    : m_triples(triples.stations), m_ranks(m_triples.size(), none),
      m_base(sideOf(base, &StationTriple::base)), m_ours(sideOf(ours, &StationTriple::ours)),
      m_theirs(sideOf(theirs, &StationTriple::theirs)), m_isRival(m_triples.size()),
      m_changes(m_triples.size())
{
    for (std::size_t i = 0; i < m_triples.size(); ++i) {
        if (!m_triples[i].isCommon())
            continue;
        m_ranks[i] = m_common.size();
        m_common.push_back(i);
    }
    m_isCounted = countsAnew(m_ours) || countsAnew(m_theirs) ||
                  (m_base.countsUp && m_ours.countsUp && m_theirs.countsUp);
    for (Side *side : {&m_ours, &m_theirs}) {
        findMoved(*side);
        findGiven(*side);
    }
    findRivals();
    const OrderMerge merge = merged();
    findConflicts(merge);
    takeOrder(merge);
}

PlaceMerge::Side PlaceMerge::sideOf(const StationList &list,
                                    StationPtr StationTriple::*record) const
{
    QHash<const LGStation *, std::size_t> triples;
    triples.reserve(static_cast<qsizetype>(m_triples.size()));
    for (std::size_t i = 0; i < m_triples.size(); ++i) {
        if (m_triples[i].*record)
            triples.insert((m_triples[i].*record).get(), i);
    }
    Side side{record, list, numbersOf(list), {}};
    side.countsUp = countUp(side.numbers);
    side.triples.reserve(list.size());
    for (const StationPtr &station : list) {
        const auto triple = triples.constFind(station.get());
        side.triples.push_back(triple == triples.cend() ? none : *triple);
        if (triple != triples.cend())
            triples.erase(triple); // a station that is there again counts once
    }
    return side;
}

/// Which stations of the base have left their order, whatever the third list has.
void PlaceMerge::findMoved(Side &side) const
{
    std::vector<std::size_t> found = side.triples;
    std::erase_if(found, [this](std::size_t i) { return i == none || !m_triples[i].base; });
    std::vector<bool> hasItsNumber;
    hasItsNumber.reserve(found.size());
    for (const std::size_t i : found)
        hasItsNumber.push_back(!isNew(i, side));
    const std::vector<bool> isKept = keptOrder(found, hasItsNumber);
    side.isMoved.assign(m_triples.size(), false);
    for (std::size_t i = 0; i < found.size(); ++i)
        side.isMoved[found[i]] = !isKept[i];
}

bool PlaceMerge::isNew(std::size_t triple, const Side &side) const
{
    const StationPtr &base = m_triples[triple].base, &record = m_triples[triple].*side.record;
    return base && record && base->progNum() != record->progNum();
}

bool PlaceMerge::countsAnew(const Side &side) const
{
    return side.countsUp && !m_base.countsUp;
}

/// A station that others push gets the number of another one, or the next one behind that of the
/// station before it; any other new one was given.
void PlaceMerge::findGiven(Side &side) const
{
    side.isGiven.assign(m_triples.size(), false);
    if (side.countsUp)
        return;
    QSet<qint64> known; // where nothing left its place no number passes on to another station
    if (side.triples != m_base.triples)
        known = {m_base.numbers.begin(), m_base.numbers.end()};
    for (std::size_t place = 0; place < side.list.size(); ++place) {
        const std::size_t i = side.triples[place];
        const qint64 number = side.numbers[place];
        if (i == none || !isNew(i, side) || known.contains(number))
            continue;
        const bool isPushed = number > m_triples[i].base->progNum() &&
                              number == (place > 0 ? side.numbers[place - 1] : 0) + 1;
        side.isGiven[i] = side.isMoved[i] || !isPushed;
    }
}

/// Finds numbers that ours gave to one station and theirs to another one, by moving them or by
/// giving just the number.
void PlaceMerge::findRivals()
{
    const auto isWanted = [this](std::size_t i, const Side &side, const Side &other) {
        return isNew(i, side) && !other.isMoved[i] && (side.isMoved[i] || side.isGiven[i]);
    };
    QHash<qint64, std::size_t> byOurs;
    for (const std::size_t i : m_common) {
        if (isWanted(i, m_ours, m_theirs))
            byOurs.insert(m_triples[i].ours->progNum(), i);
    }
    for (const std::size_t i : m_common) {
        if (!isWanted(i, m_theirs, m_ours))
            continue;
        const auto rival = byOurs.constFind(m_triples[i].theirs->progNum());
        if (rival == byOurs.cend() || *rival == i)
            continue;
        m_changes[i].rival = m_triples[*rival].ours;
        m_isRival[*rival] = true;
    }
}

/// Whether ours gave the station another number than that to which theirs moved it.
bool PlaceMerge::isHeld(std::size_t triple) const
{
    return m_ours.isGiven[triple] && !m_ours.isMoved[triple] && isNew(triple, m_theirs) &&
           m_triples[triple].ours->progNum() != m_triples[triple].theirs->progNum();
}

OrderMerge::Side PlaceMerge::ranksOf(const Side &side) const
{
    OrderMerge::Side ranks{{}, side.numbers, {}};
    ranks.ranks.reserve(side.triples.size());
    ranks.hasItsNumber.reserve(side.triples.size());
    for (const std::size_t i : side.triples) {
        ranks.ranks.push_back(i == none ? none : m_ranks[i]);
        ranks.hasItsNumber.push_back(i != none && !isNew(i, side));
    }
    return ranks;
}

OrderMerge PlaceMerge::merged() const
{
    OrderMerge::Side theirs = ranksOf(m_theirs);
    // Where the numbers are the places, a station keeps its own only if one that both moved down to
    // it comes before.
    for (std::size_t place = 0; m_isCounted && place < m_theirs.list.size(); ++place) {
        const std::size_t i = m_theirs.triples[place];
        if (i != none && m_changes[i].rival && theirs.numbers[place] > m_triples[i].base->progNum())
            --theirs.numbers[place];
    }
    std::vector<bool> isHeldByOurs;
    isHeldByOurs.reserve(m_common.size());
    for (const std::size_t i : m_common)
        isHeldByOurs.push_back(isHeld(i));
    return OrderMerge(ranksOf(m_ours), theirs, isHeldByOurs);
}

void PlaceMerge::findConflicts(const OrderMerge &merge)
{
    for (std::size_t i = 0; i < m_triples.size(); ++i) {
        PlaceChange &change = m_changes[i];
        change.isMoved = m_theirs.isMoved[i];
        change.isGiven = m_theirs.isGiven[i];
        if (m_ranks[i] == none)
            continue;
        const OrderMerge::Move move = merge.moveOf(m_ranks[i]);
        const bool differ = m_triples[i].ours->progNum() != m_triples[i].theirs->progNum();
        const auto isGivenAgainst = [&](const Side &side, const Side &other) {
            return side.isGiven[i] && !side.isMoved[i] && isNew(i, other) &&
                   (other.isGiven[i] || other.isMoved[i] || countsAnew(other));
        };
        if (move == OrderMerge::Move::Conflict)
            (isHeld(i) ? change.isNumberConflict : change.isConflict) = true;
        else if (isGivenAgainst(m_ours, m_theirs) || isGivenAgainst(m_theirs, m_ours))
            change.isNumberConflict = differ;
        else if (move == OrderMerge::Move::Same)
            change.isNumberConflict = differ && m_ours.isGiven[i] && m_theirs.isGiven[i];
    }
}

/// The number of the side that changed it. Of two changes that which came with a move, or else the
/// higher one, for then others only pushed the station.
qint64 PlaceMerge::wantedOf(std::size_t triple) const
{
    const auto &[base, ours, theirs, isSure, isOursElsewhere, isTheirsElsewhere] =
        m_triples[triple];
    if (!isNew(triple, m_theirs))
        return ours->progNum();
    if (!isNew(triple, m_ours))
        return theirs->progNum();
    if (m_ours.isMoved[triple] || m_theirs.isMoved[triple])
        return (m_ours.isMoved[triple] ? ours : theirs)->progNum();
    return std::max(ours->progNum(), theirs->progNum());
}

/// Of a station that all three have. Where a side counted the list anew, a number that came with a
/// move was only of the old numbers.
MergedNumber PlaceMerge::numberOf(std::size_t triple) const
{
    const StationTriple &station = m_triples[triple];
    const PlaceChange &change = m_changes[triple];
    MergedNumber number{wantedOf(triple), true, station.base->progNum(), station.ours->progNum(),
                        station.theirs->progNum()};
    const auto isGiven = [this, triple](const Side &side) {
        return side.isGiven[triple] && !(m_isCounted && side.isMoved[triple]);
    };
    if (isGiven(m_ours) || change.isNumberConflict || (m_isRival[triple] && !m_isCounted))
        number.wanted = number.ours;
    else if (isGiven(m_theirs) && !change.isConflict)
        number.wanted = number.theirs;
    else
        number.isGiven = false;
    return number;
}

/// In `shared` what several stations have in ours or in theirs.
Numbering PlaceMerge::numbering(QSet<qint64> &shared) const
{
    if (m_isCounted)
        return Numbering::Counted;
    for (const Side *side : {&m_ours, &m_theirs}) {
        const std::vector<qint64> &numbers = side->numbers;
        if (!std::is_sorted(numbers.begin(), numbers.end()))
            return Numbering::Free;
        for (std::size_t i = 1; i < numbers.size(); ++i) {
            if (numbers[i] == numbers[i - 1])
                shared.insert(numbers[i]);
        }
    }
    return shared.isEmpty() ? Numbering::Distinct : Numbering::Shared;
}

void PlaceMerge::takeOrder(const OrderMerge &merge)
{
    std::vector<MergedNumber> each;
    each.reserve(m_ours.list.size());
    m_order.reserve(m_ours.list.size());
    // What theirs does not have is nothing that it counted.
    const bool isKept = countsAnew(m_theirs) && !m_ours.countsUp;
    bool isUntouched = true;
    for (const std::size_t place : merge.order()) {
        m_order.push_back(m_ours.list[place]);
        const std::size_t i = m_ours.triples[place];
        if (i == none || m_ranks[i] == none) {
            const qint64 own = m_ours.numbers[place];
            each.push_back({own, isKept, own, own, own});
            continue;
        }
        each.push_back(numberOf(i));
        const bool isMoved = merge.moveOf(m_ranks[i]) == OrderMerge::Move::Theirs;
        m_moved += isMoved ? 1 : 0;
        isUntouched = isUntouched && !isNew(i, m_theirs) && !isMoved;
    }
    QSet<qint64> shared;
    const Numbering numbering = this->numbering(shared);
    m_numbers = isUntouched ? m_ours.numbers : mergedNumbers(each, numbering, shared);
    findRaised(merge);
}

/// Given numbers that those of the other side before them do not leave room for. What also moved
/// has only been shifted on.
void PlaceMerge::findRaised(const OrderMerge &merge)
{
    for (std::size_t row = 0; row < m_numbers.size(); ++row) {
        const std::size_t i = m_ours.triples[merge.order()[row]];
        if (i == none || m_ranks[i] == none || m_changes[i].isConflict || m_changes[i].rival)
            continue;
        for (const Side *side : {&m_ours, &m_theirs}) {
            if (side->isGiven[i] && !side->isMoved[i] &&
                (m_triples[i].*side->record)->progNum() != m_numbers[row])
                m_changes[i].isNumberConflict = true;
        }
    }
}

} // namespace quillet
