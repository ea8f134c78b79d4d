#pragma once

#include "document/TLLDocument.h"
#include "editor/EditorOutlets.h"
#include "editor/SavedSelection.h"
#include "editor/StationFilter.h"

#include <QPointer>

namespace quillet {

/// Which stations of a document are on show, one a row: its current list, or what a filter has left
/// of a list. Changes no station and knows no control. Owned by the window's ViewController; holds
/// the document weakly.
class ShownStations
{
public:
    /// Shows another document, or the same anew, without filter and selection.
    void setDocument(TLLDocument *document);
    [[nodiscard]] TLLDocument *document() const { return m_document; }

    /// The filtered stations while a filter is active, else the document's current list.
    [[nodiscard]] const StationList &currentList() const;
    /// The list that those are of; null when there is none.
    [[nodiscard]] const StationListPtr &base() const;
    /// Whether the search or the type filter narrows the list.
    [[nodiscard]] bool isFiltered() const { return m_filter.filteredStations().has_value(); }
    /// Whether that is another list than the document's current one: after a change of source the
    /// rows of the old filter stay on show. None of their stations may be changed.
    [[nodiscard]] bool areForeign() const;
    /// Whose foreign rows are; none for others, and while a hint stands in their place.
    [[nodiscard]] std::optional<ForeignRows> foreignRows() const;

    /// The stations of those rows that there are.
    [[nodiscard]] StationList stationsAt(const QList<qsizetype> &rows) const;
    /// The same, but none when the rows are foreign.
    [[nodiscard]] StationList ownStationsAt(const QList<qsizetype> &rows) const;

    /// Whether the document's current list has stations.
    [[nodiscard]] bool hasData() const { return m_document && m_document->hasData(); }
    [[nodiscard]] bool hasDataForSource(int source) const;
    /// The source on show; -1 when no source has stations.
    [[nodiscard]] int shownSource() const;
    /// Why there are no stations on show.
    [[nodiscard]] EmptyHint emptyHint() const;

    [[nodiscard]] StationFilter &filter() { return m_filter; }
    [[nodiscard]] const StationFilter &filter() const { return m_filter; }
    [[nodiscard]] SavedSelection &selection() { return m_selection; }
    [[nodiscard]] const SavedSelection &selection() const { return m_selection; }

private:
    QPointer<TLLDocument> m_document;
    StationFilter m_filter;
    SavedSelection m_selection;
};

} // namespace quillet
