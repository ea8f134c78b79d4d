#include "editor/FoldingRow.h"

#include <QStyle>
#include <QWidget>

namespace quillet {

namespace {

constexpr int gapInLine = 12;
constexpr int gapBetweenLines = 8;

} // namespace

void FoldingRow::fold(QLayout &row)
{
    auto *folding = new FoldingRow;
    while (QLayoutItem *group = row.takeAt(0)) {
        folding->addChildLayout(group->layout());
        folding->addItem(group);
    }
    row.addItem(folding);
    folding->setParent(&row);
}

void FoldingRow::addItem(QLayoutItem *item)
{
    m_groups.at(static_cast<std::size_t>(count())).reset(item);
}

int FoldingRow::count() const
{
    return m_groups[0] ? (m_groups[1] ? 2 : 1) : 0;
}

QLayoutItem *FoldingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_groups.at(static_cast<std::size_t>(index)).get()
                                         : nullptr;
}

QLayoutItem *FoldingRow::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    QLayoutItem *taken = m_groups.at(static_cast<std::size_t>(index)).release();
    if (index == 0)
        m_groups[0].swap(m_groups[1]);
    return taken;
}

bool FoldingRow::isFolded(int width) const
{
    return m_groups[0]->minimumSize().width() + gapInLine + m_groups[1]->minimumSize().width() >
           width;
}

int FoldingRow::heightForWidth(int width) const
{
    return isFolded(width) ? minimumSize().height() : sizeHint().height();
}

QSize FoldingRow::sizeHint() const
{
    const QSize first = m_groups[0]->sizeHint(), second = m_groups[1]->sizeHint();
    return {first.width() + gapInLine + second.width(), qMax(first.height(), second.height())};
}

QSize FoldingRow::minimumSize() const
{
    const QSize first = m_groups[0]->minimumSize(), second = m_groups[1]->minimumSize();
    return {qMax(first.width(), second.width()),
            first.height() + gapBetweenLines + second.height()};
}

void FoldingRow::setGeometry(const QRect &place)
{
    QLayout::setGeometry(place);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    QRect first = place, second = place;
    if (isFolded(place.width())) {
        first.setHeight(m_groups[0]->minimumSize().height());
        second.setTop(first.bottom() + 1 + gapBetweenLines);
    } else {
        const int most = place.width() - gapInLine - m_groups[0]->minimumSize().width();
        second.setLeft(place.right() + 1 - qMin(m_groups[1]->sizeHint().width(), most));
        first.setRight(second.left() - 1 - gapInLine);
    }
    m_groups[0]->setGeometry(QStyle::visualRect(direction, place, first));
    m_groups[1]->setGeometry(QStyle::visualRect(direction, place, second));
}

} // namespace quillet
