#pragma once

#include "model/LGStation.h"

#include <QString>

#include <optional>

namespace quillet {

/// Narrows a list by a search text and by a station type. Holds the very stations of the list,
/// never copies; an edit of a filtered station is an edit of the document's.
class StationFilter
{
public:
    /// The stations that pass; none while no filter is active.
    [[nodiscard]] const std::optional<StationList> &filteredStations() const { return m_filtered; }
    /// The list they were taken from; null while no filter is active.
    [[nodiscard]] const StationListPtr &base() const { return m_base; }

    void clear();
    /// Keeps the stations whose name contains the text, without regard to case, as it is stored or
    /// as it is drawn; a renamed station's old name counts as well. An empty text removes the
    /// filter. The list may be null.
    void filterStationsFor(const QString &text, const StationListPtr &stations);
    /// Narrows what the search has left, or the whole list, to the type with that tag of
    /// TypeFilter.
    void useTypeFilter(int tag, int source, const StationListPtr &stations);

private:
    std::optional<StationList> m_filtered;
    StationListPtr m_base;
};

} // namespace quillet
