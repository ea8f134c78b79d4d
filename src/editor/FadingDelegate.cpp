#include "editor/FadingDelegate.h"

#include "editor/Contrast.h"
#include "editor/StationTableModel.h"
#include "texts/StationColumns.h"

#include <QApplication>
#include <QTableView>

namespace quillet {

void FadingDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(StationTableModel::SkippedRole).toBool())
        return;
    QPalette &palette = option->palette;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text,
                         faded(palette.color(group, QPalette::Text),
                               palette.color(group, QPalette::Base),
                               palette.color(group, QPalette::AlternateBase)));
    }
    const auto *table = qobject_cast<const QTableView *>(option->widget);
    if (table && table->isColumnHidden(columnOf(ColumnContent::Skipped)))
        option->font.setItalic(true);
}

QRectF FadingDelegate::glyphPlace(const QRect &cell, const QFontMetrics &metrics)
{
    const int side = metrics.height();
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {side, side}, cell);
}

QColor FadingDelegate::inkOf(const QStyleOptionViewItem &cell)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (cell.state.testFlag(QStyle::State_Enabled))
        group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    return cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

void FadingDelegate::paintGround(QPainter &painter, QStyleOptionViewItem cell)
{
    cell.text.clear();
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    styleOf(cell.widget).drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
}

const QStyle &FadingDelegate::styleOf(const QWidget *widget)
{
    return widget ? *widget->style() : *QApplication::style();
}

} // namespace quillet
