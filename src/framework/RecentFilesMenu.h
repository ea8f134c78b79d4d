#pragma once

#include <QObject>

class QMenu;

namespace quillet {

class RecentFiles;

/// Keeps a menu filled with the recent files. It is filled anew each time right before it shows, so
/// that a file removed meanwhile is seen as missing. Owned by whoever owns the menu.
class RecentFilesMenu : public QObject
{
    Q_OBJECT

public:
    RecentFilesMenu(QMenu &menu, RecentFiles &recentFiles, QObject *parent = nullptr);

signals:
    void fileChosen(const QString &path);

private:
    void fill();
    void addFile(const QString &path, bool showsFolder);
    void addClearAction(bool isEnabled);

    QMenu &m_menu;
    RecentFiles &m_recentFiles;
};

} // namespace quillet
