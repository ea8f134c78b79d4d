#include "files/ShownPath.h"

#include "files/FileNames.h"

#include <QStringList>

#include <algorithm>

namespace quillet {

namespace {

constexpr QChar leftToRightIsolate(0x2066);
constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

bool readsFromRightToLeft(QChar c)
{
    return c.direction() == QChar::DirR || c.direction() == QChar::DirAL || c.isHighSurrogate();
}

} // namespace

QString shownPath(const QString &path)
{
    QString text = readable(path);
    if (std::none_of(text.cbegin(), text.cend(), readsFromRightToLeft))
        return text;
    QStringList names = text.split(u'/');
    const qsizetype dot = names.constLast().lastIndexOf(u'.');
    const QString suffix = dot > 0 ? names.constLast().sliced(dot) : QString();
    names.last().chop(suffix.size());
    for (QString &name : names) {
        if (!name.isEmpty())
            name = firstStrongIsolate + name + popDirectionalIsolate;
    }
    return leftToRightIsolate + names.join(u'/') + suffix + popDirectionalIsolate;
}

} // namespace quillet
