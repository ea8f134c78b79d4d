#include "app/ApplicationIcon.h"

#include <array>

namespace quillet {

namespace {

constexpr std::array sizes{16, 24, 32, 48, 64, 128, 256};

} // namespace

void ApplicationIcon::paint(QPainter *painter, const QRect &place, QIcon::Mode mode,
                            QIcon::State state)
{
    pictures().paint(painter, place, Qt::AlignCenter, mode, state);
}

QPixmap ApplicationIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return pictures().pixmap(size, 1.0, mode, state); // device pixels, as this is asked for
}

QList<QSize> ApplicationIcon::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    QList<QSize> all;
    for (const int size : sizes)
        all.append({size, size});
    return all;
}

const QIcon &ApplicationIcon::pictures()
{
    if (m_pictures.isNull())
        for (const int size : sizes)
            m_pictures.addFile(QStringLiteral(":/icons/quillet-%1.png").arg(size));
    return m_pictures;
}

} // namespace quillet
