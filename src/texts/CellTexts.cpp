#include "texts/CellTexts.h"

#include <utility>

namespace quillet {

CellTexts::CellTexts(int source, SatelliteNames satellites)
    : m_source(source), m_satellites(std::move(satellites))
{
}

QString CellTexts::text(const LGStation &station, ColumnContent content) const
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

std::optional<bool> CellTexts::mark(const LGStation &station, ColumnContent content)
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

HtmlTable::Column CellTexts::column(ColumnContent content)
{
    const StationColumn &column = columnWith(content);
    const bool isAtEnd = column.alignment == Qt::AlignRight;
    return {qtTrId(column.title), isAtEnd ? HtmlTable::Alignment::End
                                  : column.alignment == Qt::AlignHCenter
                                      ? HtmlTable::Alignment::Centre
                                      : HtmlTable::Alignment::Start};
}

} // namespace quillet
