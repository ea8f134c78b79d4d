#pragma once

#include <QSet>
#include <QtGlobal>

#include <vector>

namespace quillet {

/// The number that a station should have in a merged list, and those that three lists give it.
struct MergedNumber
{
    qint64 wanted = 0;
    bool isGiven = false; ///< by somebody; other numbers only follow from the places
    qint64 base = 0;
    qint64 ours = 0;
    qint64 theirs = 0;
};

/// How a list that is merged is numbered.
enum class Numbering {
    Counted,  ///< 1, 2, 3 and so on
    Distinct, ///< ascending
    Shared,   ///< ascending, but several stations may have one number
    Free,     ///< in no order
};

/// The numbers of a list in its merged order, of which `each` tells the stations. Where the wanted
/// ones do not fit the numbering, those that were given stay, the others are dealt out anew in
/// ascending order, and what is not above its predecessor is raised; a shared number only while
/// `shared` does not hold it.
[[nodiscard]] std::vector<qint64> mergedNumbers(const std::vector<MergedNumber> &each,
                                                Numbering numbering,
                                                const QSet<qint64> &shared = {});

} // namespace quillet
