#include "editor/PasteCommand.h"

#include "document/compare/UnkeptNames.h"
#include "editor/CopiedStations.h"

#include <QSet>

#include <algorithm>

namespace quillet {

QString PasteCommand::reasonAgainst() const
{
    if (!m_table.shown().hasData())
        return qtTrId("kTipNoStations");
    if (m_table.shown().areForeign())
        return qtTrId("kTipForeign");
    return m_outlets.selectedRows().isEmpty() ? qtTrId("kTipSelectFirst") : QString();
}

StationPtr PasteCommand::place() const
{
    const StationList selected = m_table.shown().ownStationsAt(m_outlets.selectedRows().first(1));
    return selected.empty() ? nullptr : selected.front();
}

std::optional<PasteCommand::Move> PasteCommand::planOwn(const QMimeData &data) const
{
    const auto *copied = qobject_cast<const CopiedStations *>(&data);
    const StationPtr target = place();
    if (!copied || !target)
        return {};
    const StationList &list = *m_table.stationDoc()->stations();
    const QSet<StationPtr> known(list.begin(), list.end());
    Move move{copied->originals(), target->progNum()};
    const bool areAllThere =
        std::all_of(move.stations.begin(), move.stations.end(),
                    [&known](const StationPtr &station) { return known.contains(station); });
    return areAllThere ? std::optional(std::move(move)) : std::nullopt;
}

std::optional<PastedStations> PasteCommand::read(const QMimeData &data) const
{
    const StationListPtr &list = m_table.stationDoc()->stations();
    const UnkeptNames names(*list);
    return pastedStations(data, *list);
}

std::optional<PasteCommand::Move> PasteCommand::plan(PastedStations &pasted) const
{
    const StationListPtr &list = m_table.stationDoc()->stations();
    const UnkeptNames names(*list);
    pasted.known = completeRows(pasted.rows, *list).pairs;
    StationList found(pasted.rows.stations.size());
    const auto pairs = pairStations(*list, pasted.rows.stations, pasted.known);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (pairs[i] && pairs[i]->likeness == Likeness::Sure)
            found[pairs[i]->index] = (*list)[i];
    }
    const StationPtr target = place();
    const bool isSure = target && pasted.unread == 0 &&
                        std::find(found.begin(), found.end(), nullptr) == found.end();
    return isSure ? std::optional(Move{std::move(found), target->progNum()}) : std::nullopt;
}

ComparedWith PasteCommand::comparison(const PastedStations &pasted) const
{
    const TLLDocument &document = *m_table.stationDoc();
    ComparedWith other{.purpose = ComparedWith::Purpose::Paste,
                       .name = qtTrId("kClipboard"),
                       .lists = {},
                       .known = pasted.known,
                       .place = place()};
    other.lists.setupLists();
    *other.lists.list(document.usesTV(), document.curSource()) = pasted.rows.stations;
    for (std::size_t i = 0; i < pasted.rows.stations.size(); ++i) {
        // Nothing but their places is to be changed.
        other.told.insert(pasted.rows.stations[i].get(),
                          pasted.rows.told[i] & StationDifference::Name);
    }
    if (pasted.unread > 0)
        other.remark = qtTrId("kPasteUnread", static_cast<int>(pasted.unread));
    return other;
}

PasteCommand::Move PasteCommand::planFor(const StationList &chosen, const StationPtr &place) const
{
    const TLLDocument *document = m_table.stationDoc();
    if (!document || !document->stations())
        return {};
    const StationList &list = *document->stations();
    const QSet<StationPtr> known(list.begin(), list.end());
    if (!place || !known.contains(place))
        return {};
    Move move{{}, place->progNum()};
    for (const StationPtr &station : chosen) {
        if (known.contains(station))
            move.stations.push_back(station);
    }
    return move;
}

} // namespace quillet
