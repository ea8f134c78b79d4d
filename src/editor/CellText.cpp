#include "editor/CellText.h"

namespace quillet {

namespace {

constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

} // namespace

QString inItsDirection(const QString &text, Qt::LayoutDirection around)
{
    if (text.isRightToLeft() == (around == Qt::RightToLeft))
        return text;
    return firstStrongIsolate + text + popDirectionalIsolate;
}

} // namespace quillet
