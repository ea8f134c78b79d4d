#include "editor/StationCells.h"

#include "editor/TableController.h"

namespace quillet {

StationCells::StationCells(const TableController &table) : m_source(table.source())
{
    if (const TLLDocument *document = table.stationDoc())
        m_satellites = document->list().broadcast.satelliteNames();
}

QString StationCells::text(const LGStation &station, ColumnContent content) const
{
    switch (content) {
    case ColumnContent::Number:
        return station.progNumString();
    case ColumnContent::Name:
        return station.shownName();
    case ColumnContent::Type:
        return station.channelTypeForDisplay(m_source);
    default:
        return wholeDetailText(station, content, m_satellites);
    }
}

std::optional<bool> StationCells::mark(const LGStation &station, ColumnContent content)
{
    switch (content) {
    case ColumnContent::Skipped:
        return station.isSkipped();
    case ColumnContent::Blocked:
        return station.isBlocked();
    case ColumnContent::Encrypted:
        return station.isEncrypted();
    case ColumnContent::Hidden:
        return station.isInvisible();
    default:
        return {};
    }
}

HtmlTable::Column StationCells::column(ColumnContent content)
{
    const StationColumn &column = columnWith(content);
    const bool isAtEnd = column.alignment == Qt::AlignRight;
    return {qtTrId(column.title), isAtEnd ? HtmlTable::Alignment::End
                                  : column.alignment == Qt::AlignHCenter
                                      ? HtmlTable::Alignment::Centre
                                      : HtmlTable::Alignment::Start};
}

} // namespace quillet
