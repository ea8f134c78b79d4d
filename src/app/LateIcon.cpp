#include "app/LateIcon.h"

namespace quillet {

void LateIcon::paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state)
{
    icon().paint(painter, place, Qt::AlignCenter, mode, state);
}

QPixmap LateIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().pixmap(size, 1.0, mode, state); // device pixels, as this is asked for
}

const QIcon &LateIcon::icon()
{
    if (m_icon.isNull())
        m_icon = lookUp();
    return m_icon;
}

} // namespace quillet
