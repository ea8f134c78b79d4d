#pragma once

#include "document/list/ChannelList.h"

#include <QString>

#include <vector>

namespace quillet {

class Invocation;

/// One of the eight lists of a file.
struct ChosenList
{
    bool isTV = true;
    int source = 0;
    StationListPtr stations = {};
};

/// The lists with stations that --source and --mode choose, of those that nothing is said of all.
[[nodiscard]] std::vector<ChosenList> listsToRead(const Invocation &invocation,
                                                  const StationLists &lists);
/// The same; where nothing is said of the source, that which a window would show first; and TV
/// where nothing is said of the mode, unless the source has radio alone.
[[nodiscard]] std::vector<ChosenList> listsToEdit(const Invocation &invocation,
                                                  const StationLists &lists);

/// Whether --source and --mode choose that list, or do not speak of it.
[[nodiscard]] bool isChosen(const Invocation &invocation, bool isTV, int source);

/// What the list is called among data: "satellite", "tv".
[[nodiscard]] QString sourceName(int source);
[[nodiscard]] QString modeName(bool isTV);
/// "Satellite TV" and so on, for messages and headings.
[[nodiscard]] QString titleOf(const ChosenList &list);

} // namespace quillet
