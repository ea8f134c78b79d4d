#include "cli/ListChoice.h"

#include "cli/Invocation.h"
#include "texts/SourceTitles.h"

#include <array>

namespace quillet {

namespace {

constexpr std::array<const char *, stationSourceCount> sourceNames{"cable", "satellite", "antenna",
                                                                   "analogue"};

bool fits(const QStringList &wanted, const QString &name)
{
    return wanted.isEmpty() || wanted.contains(name) || wanted.contains(QLatin1String("all"));
}

} // namespace

bool isChosen(const Invocation &invocation, bool isTV, int source)
{
    return fits(invocation.parts(Option::Source), sourceName(source)) &&
           fits(invocation.parts(Option::Mode), modeName(isTV));
}

std::vector<ChosenList> listsToRead(const Invocation &invocation, const StationLists &lists)
{
    std::vector<ChosenList> chosen;
    for (int source = 0; source < stationSourceCount; ++source) {
        for (const bool isTV : {true, false}) {
            const StationListPtr &list = lists.list(isTV, source);
            if (list && !list->empty() && isChosen(invocation, isTV, source))
                chosen.push_back({isTV, source, list});
        }
    }
    return chosen;
}

std::vector<ChosenList> listsToEdit(const Invocation &invocation, const StationLists &lists)
{
    std::vector<ChosenList> chosen = listsToRead(invocation, lists);
    if (!invocation.isSet(Option::Source) && !chosen.empty())
        std::erase_if(chosen, [first = chosen.front().source](const ChosenList &list) {
            return list.source != first;
        });
    if (!invocation.isSet(Option::Mode)) {
        std::vector<ChosenList> ofOneMode;
        for (const ChosenList &list : chosen) { // TV comes first
            if (ofOneMode.empty() || ofOneMode.back().source != list.source)
                ofOneMode.push_back(list);
        }
        return ofOneMode;
    }
    return chosen;
}

QString sourceName(int source)
{
    return QLatin1String(sourceNames.at(static_cast<std::size_t>(source)));
}

QString modeName(bool isTV)
{
    return isTV ? QStringLiteral("tv") : QStringLiteral("radio");
}

QString titleOf(const ChosenList &list)
{
    return listTitle(list.isTV, list.source);
}

} // namespace quillet
