#include "editor/CellFont.h"

#include <QFontDatabase>

namespace quillet {

QFont cellFont()
{
    static const bool isInstalled = QFontDatabase::hasFamily(QStringLiteral("Monaco"));
    return isInstalled ? QFont(QStringLiteral("Monaco"), 12) : QFont();
}

} // namespace quillet
