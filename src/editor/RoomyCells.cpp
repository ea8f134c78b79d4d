#include "editor/RoomyCells.h"

#include <QHeaderView>
#include <QTableView>

namespace quillet {

void RoomyCells::applyTo(QTableView &table)
{
    auto *style = new RoomyCells;
    style->setParent(&table);
    table.setStyle(style);
    table.horizontalHeader()->setStyle(style);
}

int RoomyCells::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const
{
    constexpr int room = 6;
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? usual + room : usual;
}

} // namespace quillet
