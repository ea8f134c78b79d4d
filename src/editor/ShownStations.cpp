#include "editor/ShownStations.h"

namespace quillet {

void ShownStations::setDocument(TLLDocument *document)
{
    m_document = document;
    m_filter.clear();
    m_selection.clear();
}

const StationList &ShownStations::currentList() const
{
    static const StationList none;
    if (m_filter.filteredStations())
        return *m_filter.filteredStations();
    return m_document && m_document->stations() ? *m_document->stations() : none;
}

const StationListPtr &ShownStations::base() const
{
    static const StationListPtr none;
    if (m_filter.filteredStations())
        return m_filter.base();
    return m_document ? m_document->stations() : none;
}

bool ShownStations::areForeign() const
{
    return m_document && base() != m_document->stations();
}

std::optional<ForeignRows> ShownStations::foreignRows() const
{
    if (!hasData() || !areForeign())
        return {};
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        if (m_document->lists().list(m_document->usesTV(), index) == base())
            return ForeignRows{index, m_document->curSource()};
    }
    return {};
}

StationList ShownStations::stationsAt(const QList<qsizetype> &rows) const
{
    const StationList &list = currentList();
    StationList stations;
    for (const qsizetype row : rows) {
        if (row >= 0 && row < static_cast<qsizetype>(list.size()))
            stations.push_back(list[static_cast<std::size_t>(row)]);
    }
    return stations;
}

StationList ShownStations::ownStationsAt(const QList<qsizetype> &rows) const
{
    return !m_document || areForeign() ? StationList() : stationsAt(rows);
}

bool ShownStations::hasDataForSource(int source) const
{
    return m_document && m_document->hasDataForSource(source);
}

int ShownStations::shownSource() const
{
    return m_document && hasDataForSource(m_document->curSource()) ? m_document->curSource() : -1;
}

EmptyHint ShownStations::emptyHint() const
{
    if (hasData())
        return EmptyHint::None;
    if (!m_document || (m_document->fileUrl().isEmpty() && m_document->suggestedUrl().isEmpty()))
        return EmptyHint::NoFile;
    if (m_document->list().isLegacyFormat && !m_document->usesTV())
        return EmptyHint::RadioNotShown;
    // The current list is empty, so whatever its source has is in the other mode's list.
    if (!m_document->hasDataForSource(m_document->curSource()))
        return EmptyHint::NoStations;
    return m_document->usesTV() ? EmptyHint::NoTVStations : EmptyHint::NoRadioStations;
}

} // namespace quillet
