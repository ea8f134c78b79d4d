#include "editor/ArrangeCommands.h"

#include "document/edit/StationEdits.h"
#include "document/edit/StationSorting.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Kind = EditSummary::Kind;
using Reorder = PlaceOrder (*)(const PlaceOrder &, const std::vector<bool> &);

struct CommandFacts
{
    Arrangement command;
    Kind kind;
    const char *atEnd; ///< id of the text that says why it would do nothing there
    bool goesByRows;
    Reorder reorder;
};

constexpr std::array commandFacts{
    CommandFacts{Arrangement::Up, Kind::MovedUp, "kTipAtTop", true, movedUp},
    CommandFacts{Arrangement::Down, Kind::MovedDown, "kTipAtBottom", true, movedDown},
    CommandFacts{Arrangement::ToTop, Kind::MovedToTop, "kTipAtTop", false, movedToTop},
    CommandFacts{Arrangement::ToBottom, Kind::MovedToBottom, "kTipAtBottom", false, movedToBottom},
    CommandFacts{Arrangement::Swap, Kind::Swapped, "kTipSelectTwo", true,
                 [](const PlaceOrder &places, const std::vector<bool> &) {
                     return PlaceOrder{places.rbegin(), places.rend()};
                 }},
};

const CommandFacts &factsOf(Arrangement command)
{
    return *std::find_if(commandFacts.begin(), commandFacts.end(),
                         [command](const CommandFacts &row) { return row.command == command; });
}

} // namespace

StationList ArrangeCommands::selected() const
{
    return m_shown.ownStationsAt(m_outlets.selectedRows());
}

StationList ArrangeCommands::stationsToArrange() const
{
    StationList stations = selected();
    if (stations.size() < 2 && !m_shown.areForeign())
        stations = m_shown.currentList();
    return stations;
}

QString ArrangeCommands::reasonAgainst(Arrangement command) const
{
    if (!m_shown.hasData())
        return qtTrId("kTipNoStations");
    if (m_shown.areForeign())
        return qtTrId("kTipForeign");
    if (command == Arrangement::ByKeys)
        return m_shown.currentList().size() < 2 ? qtTrId("kTipTooFew") : QString();
    const qsizetype count = m_outlets.selectedRows().size();
    if (command == Arrangement::Swap)
        return count == 2 ? QString() : qtTrId("kTipSelectTwo");
    if (count == 0)
        return qtTrId("kTipSelectFirst");
    return isAtEnd(command) ? qtTrId(factsOf(command).atEnd) : QString();
}

/// Whether the selected rows stand together at that end of the rows, or of the list, already.
bool ArrangeCommands::isAtEnd(Arrangement command) const
{
    const bool isTop = command == Arrangement::Up || command == Arrangement::ToTop;
    const QList<qsizetype> rows = m_outlets.selectedRows(); // ascending
    const auto shown = static_cast<qsizetype>(m_shown.currentList().size());
    if (isTop ? rows.back() >= rows.size() : rows.front() < shown - rows.size())
        return false;
    if (factsOf(command).goesByRows || !m_shown.isFiltered())
        return true;
    const StationList stations = selected();
    const StationList &all = *m_shown.document()->stations();
    return isTop ? std::equal(stations.begin(), stations.end(), all.begin())
                 : std::equal(stations.rbegin(), stations.rend(), all.rbegin());
}

PlaceOrder ArrangeCommands::placesOfStations(const StationList &stations) const
{
    const StationList &list = *m_shown.document()->stations();
    std::vector<ListStretch> stretches{{0, list.size()}};
    if (&stations != &list)
        stretches = placesOf(stations, list);
    PlaceOrder places;
    for (const ListStretch &stretch : stretches) {
        for (std::size_t place = stretch.first; place < stretch.end; ++place)
            places.push_back(place);
    }
    return places;
}

ArrangeCommands::Plan ArrangeCommands::plan(Arrangement command, bool fillGaps) const
{
    Plan made;
    if (!reasonAgainst(command).isEmpty())
        return made;
    const CommandFacts &facts = factsOf(command);
    made.kind = facts.kind;
    made.stations = selected();
    const StationList &list = *m_shown.document()->stations();
    const bool isSwap = command == Arrangement::Swap;
    const StationList &others = isSwap             ? made.stations
                                : facts.goesByRows ? m_shown.currentList()
                                                   : list;
    const PlaceOrder places = placesOfStations(others);
    QSet<const LGStation *> chosen;
    for (const StationPtr &station : made.stations)
        chosen.insert(station.get());
    const auto isChosenAt = [&](std::size_t place) { return chosen.contains(list[place].get()); };
    std::vector<bool> isChosen;
    for (const std::size_t place : places)
        isChosen.push_back(isChosenAt(place));
    const PlaceOrder order = facts.reorder(places, isChosen);
    made.plan = planArrangement(list, places, order, fillGaps);
    made.plan.moved = 0; // their neighbours make way, but nobody counts those
    for (std::size_t i = 0; i < places.size(); ++i)
        made.plan.moved += order[i] != places[i] && isChosenAt(order[i]) ? 1 : 0;
    return made;
}

ArrangeCommands::Plan ArrangeCommands::planByKeys(const ArrangeKeys &keys, int source,
                                                  bool fillGaps) const
{
    Plan made;
    if (!reasonAgainst(Arrangement::ByKeys).isEmpty())
        return made;
    made.stations = stationsToArrange();
    const StationList &list = *m_shown.document()->stations();
    const PlaceOrder places = placesOfStations(made.stations);
    made.plan = planArrangement(list, places, sortedPlaces(list, places, keys, source), fillGaps);
    return made;
}

} // namespace quillet
