#include "framework/RecentFilesMenu.h"

#include "files/Places.h"
#include "files/ShownPath.h"
#include "framework/PlainToolTip.h"
#include "framework/RecentFiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMenu>

namespace quillet {

RecentFilesMenu::RecentFilesMenu(QMenu &menu, RecentFiles &recentFiles, QObject *parent)
    : QObject(parent), m_menu(menu), m_recentFiles(recentFiles)
{
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &RecentFilesMenu::fill);
    addClearAction(false); // some platforms never show a menu that is empty
}

void RecentFilesMenu::fill()
{
    m_menu.clear();
    const QStringList paths = m_recentFiles.paths();
    QHash<QString, int> filesOfName;
    for (const QString &path : paths)
        ++filesOfName[QFileInfo(path).fileName()];
    for (const QString &path : paths)
        addFile(path, filesOfName.value(QFileInfo(path).fileName()) > 1);
    if (!paths.isEmpty())
        m_menu.addSeparator();
    addClearAction(!paths.isEmpty());
}

void RecentFilesMenu::addFile(const QString &path, bool showsFolder)
{
    const QFileInfo info(path);
    const QString place = shownPath(QDir::toNativeSeparators(path));
    QString label = shownPath(info.fileName());
    if (showsFolder)
        label += QStringLiteral(u" \u2014 ") + shownPath(QDir::toNativeSeparators(info.path()));
    QAction *action = m_menu.addAction(label.replace(QLatin1Char('&'), QLatin1String("&&")));
    const bool exists = isThere(path);
    action->setEnabled(exists);
    const QString tip = exists ? place : qtTrId("kRecentFileMissingMessage").arg(place);
    action->setToolTip(plainToolTip(tip));
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, path] { emit fileChosen(path); });
}

void RecentFilesMenu::addClearAction(bool isEnabled)
{
    QAction *clear = m_menu.addAction(qtTrId("kClearMenu"), &m_recentFiles, &RecentFiles::clear);
    clear->setObjectName(QStringLiteral("clearRecentFiles"));
    clear->setEnabled(isEnabled);
}

} // namespace quillet
