#include "editor/SelectCommands.h"

#include "editor/StationSearch.h"

#include <algorithm>

namespace quillet {

namespace {

bool isEncrypted(const StationPtr &station)
{
    return station->isEncrypted().value_or(false);
}

} // namespace

void SelectCommands::select(RowChoice choice)
{
    if (!reasonAgainst(choice).isEmpty())
        return;
    const QList<qsizetype> rows =
        chosenRows(choice, m_table.currentList(), m_outlets.selectedRows(), m_table.source());
    if (choice == RowChoice::Encrypted && rows.isEmpty()) // a filter hides them
        return m_outlets.tell(qtTrId("kTipNoneEncrypted"));
    m_table.selectRows(rows);
}

QString SelectCommands::reasonAgainst(RowChoice choice)
{
    if (m_table.currentList().empty())
        return qtTrId("kTipNoStations");
    if ((choice == RowChoice::None || choice == RowChoice::SameType) &&
        m_outlets.selectedRows().isEmpty())
        return qtTrId("kTipSelectFirst");
    if (choice != RowChoice::Encrypted)
        return {};
    const StationListPtr &list = m_table.shown().base();
    if (m_encryptedOf != list) { // once a list: commands are validated again and again
        m_encryptedOf = list;
        m_hasEncrypted = std::any_of(list->begin(), list->end(), isEncrypted);
    }
    return m_hasEncrypted ? QString() : qtTrId("kTipNoneEncrypted");
}

bool SelectCommands::canFindNext() const
{
    return m_table.shown().hasData() &&
           !(m_outlets.searchText().isEmpty() && m_lastSearch.isEmpty());
}

void SelectCommands::findNext(bool isForward)
{
    if (!canFindNext())
        return;
    if (const QString text = m_outlets.searchText(); !text.isEmpty())
        m_lastSearch = text;
    const StationList before = m_table.shown().ownStationsAt(m_outlets.selectedRows());
    if (m_table.shown().isFiltered())
        m_table.clearFilters();
    const StationList &list = m_table.currentList();
    const auto current = before.empty() ? list.end()
                                        : std::find(list.begin(), list.end(),
                                                    isForward ? before.back() : before.front());
    const auto found =
        StationSearch(m_lastSearch)
            .next(list, current == list.end() ? -1 : current - list.begin(), isForward);
    if (!found) {
        m_outlets.tell(qtTrId("kToldNotFound").arg(m_lastSearch));
        return;
    }
    m_table.selectRows({*found});
    m_outlets.scrollRowToVisible(*found);
}

} // namespace quillet
