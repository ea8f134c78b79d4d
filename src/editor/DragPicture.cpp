#include "editor/DragPicture.h"

#include <QPainter>
#include <QWidget>

namespace quillet {

QPixmap dragPicture(const QWidget &view, const QModelIndexList &rows)
{
    const auto count = static_cast<int>(rows.size());
    const QFontMetrics metrics = view.fontMetrics();
    const QString text =
        count == 1
            ? metrics.elidedText(rows.front().siblingAtColumn(1).data().toString(), Qt::ElideRight,
                                 40 * metrics.averageCharWidth())
            : QStringLiteral("%1 %2").arg(QString::number(count), qtTrId("kStations", count));
    const QSize size(metrics.horizontalAdvance(text) + 2 * metrics.height(),
                     metrics.height() * 3 / 2);
    QPixmap picture(size * view.devicePixelRatioF());
    picture.setDevicePixelRatio(view.devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(view.font());
    painter.setPen(Qt::NoPen);
    painter.setBrush(view.palette().color(QPalette::Highlight));
    const QRect shape(QPoint(), size);
    painter.drawRoundedRect(shape, size.height() / 2.0, size.height() / 2.0);
    painter.setPen(view.palette().color(QPalette::HighlightedText));
    painter.drawText(shape, Qt::AlignCenter, text);
    return picture;
}

} // namespace quillet
