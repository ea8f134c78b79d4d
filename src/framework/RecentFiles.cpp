#include "framework/RecentFiles.h"

#include "files/Places.h"

#include <QSettings>

namespace quillet {

namespace {

QString settingsKey()
{
    return QStringLiteral("recentFiles");
}

} // namespace

QStringList RecentFiles::paths() const
{
    return QSettings().value(settingsKey()).toStringList();
}

void RecentFiles::add(const QString &path)
{
    const QString absolute = tidyPath(path);
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    store(list.first(qMin(list.size(), qsizetype{maximum})));
}

void RecentFiles::clear()
{
    store({});
}

void RecentFiles::store(const QStringList &paths)
{
    QSettings().setValue(settingsKey(), paths);
    emit changed();
}

} // namespace quillet
