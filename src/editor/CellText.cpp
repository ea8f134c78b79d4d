#include "editor/CellText.h"

#include <QTextDocument>

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

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>")
                     .arg(text.toHtmlEscaped())
               : text;
}

} // namespace quillet
