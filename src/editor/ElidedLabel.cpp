#include "editor/ElidedLabel.h"

#include "framework/PlainToolTip.h"

#include <QPainter>

namespace quillet {

ElidedLabel::ElidedLabel(QWidget *parent) : QWidget(parent) {}

void ElidedLabel::setText(const QString &text)
{
    m_text = text;
    setToolTip(plainToolTip(text));
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
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, width()));
}

} // namespace quillet
