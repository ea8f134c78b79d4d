#include "editor/CellFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace quillet {

QFont cellFont(int percent)
{
    constexpr double points = 12;
    static const bool isInstalled = QFontDatabase::families().contains(QStringLiteral("Monaco"));
    if (!isInstalled)
        return {};
    QFont font(QStringLiteral("Monaco"));
    font.setPointSizeF(points * percent / 100);
    return font;
}

QFont sizeOf(const QFont &usual, int percent)
{
    QFont sized;
    if (usual.pointSizeF() > 0)
        sized.setPointSizeF(usual.pointSizeF() * percent / 100);
    else
        sized.setPixelSize(qMax(1, usual.pixelSize() * percent / 100));
    return sized;
}

} // namespace quillet
