#pragma once

#include "document/compare/ListComparison.h"
#include "document/compare/TakeOver.h"
#include "document/list/StationLists.h"
#include "document/order/ReferenceList.h"

#include <QHash>
#include <QString>

namespace quillet {

/// Another list, to be compared with that of the document: what it is, what it holds, and what for.
/// Made by whoever read it, and handed on to the window that shows the comparison.
struct ComparedWith
{
    enum class Purpose {
        Compare, ///< to look at, and to take over from
        Order,   ///< a reference list, to be applied as it is
        Import,  ///< rows that came back from another program
        Paste,   ///< rows of the clipboard, whose stations are to be moved
    };

    Purpose purpose = Purpose::Compare;
    QString name;       ///< of the other list, for people
    StationLists lists; ///< the stations there, which nobody else holds
    /// What is told of records that do not tell everything; the others tell all.
    QHash<const LGStation *, StationDifferences> told = {};
    KnownPairs known = {}; ///< which of the records are known to be of which stations
    NumberRule rule = NumberRule::AsGiven;
    QString remark = {};        ///< a sentence that the window shows
    ReferenceList entries = {}; ///< of a reference list alone
    StationPtr place = {};      ///< that stands where those of the clipboard are to be moved
};

} // namespace quillet
