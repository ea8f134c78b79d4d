#pragma once

#include <QProxyStyle>

class QTableView;

namespace quillet {

/// The platform's style with more room at the sides of a table's cells and column titles.
class RoomyCells : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives the table and its header that style.
    static void applyTo(QTableView &table);

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
};

} // namespace quillet
