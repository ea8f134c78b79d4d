#include "editor/WrappedLabel.h"

#include <QEvent>

namespace quillet {

WrappedLabel::WrappedLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
}

void WrappedLabel::setTextWidth(int width)
{
    if (width == minimumWidth())
        return;
    setFixedWidth(width);
    fit();
}

void WrappedLabel::setText(const QString &text)
{
    if (text == this->text())
        return;
    QLabel::setText(text);
    fit();
}

void WrappedLabel::fit()
{
    if (minimumWidth() > 0)
        setFixedHeight(heightForWidth(minimumWidth()));
}

void WrappedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fit();
}

} // namespace quillet
