#pragma once

#include "files/Settings.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QTabWidget;

namespace quillet {

class PreferencesPage;
class VersionStore;

/// The one window in which a person chooses how the program works. Belongs to no list's window,
/// and whatever is chosen holds at once. Deletes itself when it is closed.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Both must outlive the dialog.
    PreferencesDialog(Settings &settings, const VersionStore &versions);

signals:
    /// The person wants to see what is kept of files that were replaced.
    void versionFolderRequested();

private:
    void add(PreferencesPage &page);
    void setMnemonics();
    void showState();
    [[nodiscard]] PreferencesPage &page() const;

    QTabWidget *m_tabs;
    QPushButton *m_useUsual;
    QPushButton *m_close;
    std::vector<PreferencesPage *> m_pages;
};

} // namespace quillet
