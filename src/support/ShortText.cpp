#include "support/ShortText.h"

#include <QTextBoundaryFinder>

namespace quillet {

QString shortened(const QString &text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    // With what follows the cut, which may belong to the character before it.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData(),
                               qMin(text.size(), longest + 2));
    finder.setPosition(longest);
    qsizetype end = finder.isAtBoundary() ? longest : finder.toPreviousBoundary();
    if (end <= 0) {
        const bool splitsPair =
            longest > 0 && text[longest - 1].isHighSurrogate() && text[longest].isLowSurrogate();
        end = splitsPair ? longest - 1 : longest;
    }
    return text.first(end) + QChar(0x2026);
}

} // namespace quillet
