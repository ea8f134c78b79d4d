#include "editor/UndoCommands.h"

#include "document/TLLDocument.h"

#include <utility>

namespace quillet {

void UndoCommands::undo()
{
    if (m_table.stationDoc())
        m_table.stationDoc()->history().undo();
}

void UndoCommands::redo()
{
    if (m_table.stationDoc())
        m_table.stationDoc()->history().redo();
}

void UndoCommands::goToStep(int step)
{
    if (m_table.stationDoc())
        m_table.stationDoc()->history().goTo(step);
}

void UndoCommands::showStep(const ListChange &change)
{
    if (!change.isLast)
        return;
    if (m_table.stationDoc()->history().isJumping()) {
        m_lastOfJump = change;
        return;
    }
    if (change.list != m_table.stationDoc()->stations())
        m_table.showList(change.list);
    else if (m_table.shown().areForeign())
        m_table.applyFilter();
    else
        m_table.showChange(change);
    m_table.reveal(change.stations);
    const bool isUndone = change.cause == ListChange::Cause::Undo;
    m_outlets.tell(qtTrId(isUndone ? "kToldUndone" : "kToldRedone").arg(stepName(change.summary)));
}

void UndoCommands::showLastOfJump()
{
    const std::optional<ListChange> last = std::exchange(m_lastOfJump, {});
    if (!last)
        return;
    if (last->list != m_table.stationDoc()->stations())
        m_table.showList(last->list);
    else
        m_table.applyFilter();
    m_table.reveal(last->stations);
    m_outlets.tell(qtTrId("kToldWentTo"));
}

} // namespace quillet
