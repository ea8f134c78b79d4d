#pragma once

#include "document/compare/ListComparison.h"
#include "document/edit/EditRecord.h"

#include <optional>
#include <vector>

/// Giving the stations of a list what other records of them tell.
namespace quillet {

struct ChannelList;

/// A station of a list, another record of it, and what is to be taken over from that.
struct TakenStation
{
    StationPtr station;
    StationPtr other;             ///< may be null where only places are taken
    StationDifferences what = {}; ///< Fields is ignored
};

/// Whether the stations of that source may be given names.
[[nodiscard]] bool mayRename(int source);

/// Which numbers stations take.
enum class NumberRule {
    AsGiven, ///< that of the other record; of several that take one number the first
    AsThere, ///< the same, but several may have one number, as in the other list
    ByRows,  ///< in the order in which they are given, those that they have among themselves
};

/// That of taking over into the list: several of the channels of one that is kept as JSON may have
/// one number.
[[nodiscard]] NumberRule numberRuleFor(const ChannelList &list);

/// What taking over would do to a list. Means nothing any more once that list has changed.
struct TakeOverPlan
{
    /// What a station is given besides its number. None: stays.
    struct Fields
    {
        StationPtr station;
        std::optional<QString> name;
        std::optional<bool> skipped;
        std::optional<bool> locked;
    };

    StationList order;           ///< of the whole list afterwards
    std::vector<qint64> numbers; ///< and its numbers
    std::vector<Fields> fields;  ///< each with something that changes

    std::size_t moved = 0; ///< stations with another number or place by what is taken over
    std::size_t renamed = 0;
    std::size_t skipped = 0; ///< that are skipped then, or are not any more
    std::size_t locked = 0;
    StationList toTheEnd; ///< whose number another one takes, in the order and with the last
                          ///< numbers that they get
    StationList changed;  ///< all stations with anything else than before

    /// How many stations get a number that they cannot carry.
    [[nodiscard]] std::size_t beyond() const;
    [[nodiscard]] bool isEmpty() const { return changed.empty(); }
};

/// The number that a record tells, 1 to 16383; none when it tells none that a station may have.
[[nodiscard]] std::optional<qint64> toldNumber(const LGStation &record);

/// Nothing is added and nothing removed; what is no station of the list is ignored, and of several
/// records of one station the first counts.
///
/// AsGiven and AsThere: a station whose number another one takes, and who takes none, goes to the
/// end of the list. There they keep their order, numbered on from the highest number, but before
/// stations without one while there is room. The others keep their numbers, even where several have
/// one, and the list stands in the order of its numbers then. AsGiven the second station that is
/// told a number takes none, and so does one that is told the number that its holder is told as
/// well. A record without number gives none.
///
/// ByRows: the others keep numbers and places.
///
/// Where nobody takes another number, the list stays in the order in which it is. A name is taken
/// only when the list may be renamed and there is one.
[[nodiscard]] TakeOverPlan planTakeOver(const StationList &list,
                                        const std::vector<TakenStation> &taken, NumberRule rule,
                                        bool canRename);
/// Fills in what the order, the numbers and the fields of a plan change. ByRows a station that only
/// stands at another place counts as well.
void findChanges(TakeOverPlan &plan, const StationList &list, NumberRule rule);
/// Carries out a plan for that very list.
void takeOver(StationList &list, const TakeOverPlan &plan, EditRecord &record);

} // namespace quillet
