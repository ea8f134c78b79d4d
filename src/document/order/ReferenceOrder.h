#pragma once

#include "document/edit/EditRecord.h"
#include "document/order/ReferenceList.h"
#include "model/LGStation.h"

#include <vector>

namespace quillet {

/// What imposing a reference list did.
struct ReferenceOrderResult
{
    std::size_t matched = 0;
    std::size_t remaining = 0;
    qint64 last = 0; ///< the number of the last matched entry; 0 when none matched
};

/// Imposes the order and the numbers of a reference list on a list of stations. Each entry takes
/// the first station not yet taken that it fits: by service id alone when only one has it, else
/// narrowed by transport stream and then by original network id; failing that, by the name as it is
/// cached. The stations that no entry took follow in their old order, numbered on from the last
/// matched one. Every station stands there once, however often it did before. The outcome is
/// neither sorted nor freed of equal numbers. Writes what it did to the log, and to the record if
/// there is one.
ReferenceOrderResult applyReferenceOrder(StationList &stations, const ReferenceList &entries,
                                         EditRecord *record = nullptr);

/// What imposing a reference list would do.
struct ReferenceOrderPlan
{
    struct Matched
    {
        StationPtr station;
        qint64 number;         ///< that it would get
        std::size_t entry = 0; ///< which of the list takes it
        bool isByName = false; ///< and not by identifiers
    };

    std::vector<Matched> matched;    ///< in the order in which they would stand
    std::vector<std::size_t> unused; ///< entries that no station fits, or that came too late
    StationList remaining;           ///< would stand behind those, numbered on from `last`
    qint64 last = 0;                 ///< the number of the last matched one; 0 when none is
};

/// Goes the very way of applyReferenceOrder, but changes and logs nothing. Reads no names: that
/// would have others match afterwards.
[[nodiscard]] ReferenceOrderPlan planReferenceOrder(const StationList &stations,
                                                    const ReferenceList &entries);

/// How many stations of the list that would give a number that they cannot carry. Changes nothing.
[[nodiscard]] std::size_t beyondAfterOrder(const StationList &stations,
                                           const ReferenceList &entries);

} // namespace quillet
