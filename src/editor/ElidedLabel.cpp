#include "editor/ElidedLabel.h"

#include "files/ShownPath.h"
#include "framework/PlainToolTip.h"
#include "framework/Speech.h"

#include <QPainter>
#include <QStyle>

namespace quillet {

ElidedLabel::ElidedLabel(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::StaticText);
}

void ElidedLabel::setText(const QString &text)
{
    m_text = text;
    setToolTip(plainToolTip(shownPath(text)));
    setAccessibleDescription(text);
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QString drawn = fontMetrics().elidedText(m_text, Qt::ElideMiddle, width());
    const Qt::Alignment end = QStyle::visualAlignment(layoutDirection(), Qt::AlignRight);
    const auto flags = (end | Qt::AlignVCenter).toInt() | Qt::TextForceLeftToRight;
    painter.drawText(rect(), static_cast<int>(flags), shownPath(drawn));
}

} // namespace quillet
