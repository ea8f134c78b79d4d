#pragma once

#include "app/PreferencesPage.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QVBoxLayout;

namespace quillet {

class VersionStore;

/// The language of the texts.
class GeneralPage : public PreferencesPage
{
    Q_OBJECT

public:
    explicit GeneralPage(Settings &settings);

private:
    void showLanguage();

    QComboBox *m_language;
};

/// The table of stations: the size of its text, and its columns for each kind of list.
class TablePage : public PreferencesPage
{
    Q_OBJECT

public:
    explicit TablePage(Settings &settings);

private:
    [[nodiscard]] Setting kind() const;
    void showColumns();
    void setColumn(const QListWidgetItem &item);

    QComboBox *m_kind;
    QListWidget *m_columns;
};

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
