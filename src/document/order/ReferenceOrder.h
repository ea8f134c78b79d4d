#pragma once

#include "document/edit/EditRecord.h"
#include "document/order/ReferenceList.h"
#include "model/LGStation.h"

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

/// How many stations of the list that would give a number that they cannot carry. Changes nothing.
[[nodiscard]] std::size_t beyondAfterOrder(const StationList &stations,
                                           const ReferenceList &entries);

} // namespace quillet
