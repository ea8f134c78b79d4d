#include "framework/Mnemonics.h"

namespace quillet {

namespace {

/// Letters that every keyboard of the program's languages has a key for. A Turkish one has two
/// for "i", and so no sure one.
bool isOnEveryKeyboard(QChar letter)
{
    const QChar lower = letter.toLower();
    return lower >= u'a' && lower <= u'z' && lower != u'i';
}

/// Where a free letter stands; -1 when there is none.
qsizetype freeLetter(const QString &title, const QString &taken, bool onlyFirstOfWords)
{
    for (qsizetype i = 0; i < title.size(); ++i) {
        const bool isFirst = i == 0 || title[i - 1].isSpace();
        if ((isFirst || !onlyFirstOfWords) && isOnEveryKeyboard(title[i]) &&
            !taken.contains(title[i], Qt::CaseInsensitive))
            return i;
    }
    return -1;
}

} // namespace

QStringList withMnemonics(const QStringList &titles)
{
    QStringList marked;
    QString taken;
    for (const QString &title : titles) {
        qsizetype place = freeLetter(title, taken, true);
        if (place < 0)
            place = freeLetter(title, taken, false);
        if (place >= 0)
            taken.append(title[place]);
        QString text;
        for (qsizetype i = 0; i < title.size(); ++i) {
            if (i == place || title[i] == u'&')
                text.append(u'&');
            text.append(title[i]);
        }
        marked.append(text);
    }
    return marked;
}

} // namespace quillet
