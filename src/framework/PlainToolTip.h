#pragma once

#include <QString>
#include <QTextDocument>

namespace quillet {

/// A tool tip that shows the text as it is, also when it looks like markup, as names of files may.
[[nodiscard]] inline QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped())
               : text;
}

} // namespace quillet
