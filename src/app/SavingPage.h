#pragma once

#include "app/PreferencesPage.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillet {

class VersionStore;

/// What is kept of changes and of files, and what a save asks.
class SavingPage : public PreferencesPage
{
    Q_OBJECT

public:
    /// The store must outlive the page.
    SavingPage(Settings &settings, const VersionStore &versions);

signals:
    void versionFolderRequested();

protected:
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QVBoxLayout *addGroup(const char *title);
    void addVersions();
    void showUsed();

    const VersionStore &m_versions;
    QLabel *m_used;
    QPushButton *m_showFolder;
};

} // namespace quillet
