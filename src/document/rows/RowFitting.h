#pragma once

#include "document/rows/ComparisonRows.h"
#include "document/text/StationRows.h"

#include <QString>

namespace quillet {

struct ChannelList;

/// The rows of another program beside that of the eight lists which they are of, and in which order
/// they want its stations to stand.
struct FittedRows
{
    /// What tells the order.
    enum class OrderFrom {
        Numbers,        ///< those of the rows, and nothing speaks against that
        ChangedNumbers, ///< those of the rows, which stand in another order than their numbers
        Rows,           ///< the rows, which were sorted: their numbers are as they were
    };

    ComparedList list;
    StationRows rows; ///< completed by the list
    RowMatches matches = {};
    StationPairing::Pairs pairs = {}; ///< of the list's stations: the row that each is told by
    std::size_t sure = 0;             ///< of those, by identifiers or the like
    std::size_t count = 0;            ///< of those, in any way
    std::size_t untold = 0;           ///< rows by which no station could be found
    bool isOtherList = false;         ///< than the current one
    OrderFrom orderFrom = OrderFrom::Numbers;
    NumberRule rule = NumberRule::AsGiven;
};

/// Fits rows to that list which most of them tell by keys or identifiers, or else by names, the
/// current one before others which do as well. Reads the names of the lists.
[[nodiscard]] FittedRows fitRows(const StationRows &rows, const ChannelList &list,
                                 ComparedList current);

/// The rows as what the lists are compared with. Its remark is left empty.
[[nodiscard]] ComparedWith comparedWith(const FittedRows &fitted, ComparedWith::Purpose purpose,
                                        const QString &name);

} // namespace quillet
