#pragma once

#include <QAction>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <utility>
#include <vector>

class QMenu;
class QMenuBar;

namespace quillet {

class AboutWindow;
class CompareMenu;
class EditMenu;
class DocumentController;
class EditorView;
class LGWindowController;

/// The menu bar of one window. A command of the document or the editor has the name of its
/// operation as object name, by which those say whether it is enabled. Owned by its window.
class MainMenu : public QObject
{
    Q_OBJECT

public:
    MainMenu(LGWindowController &window, DocumentController &documents, QObject *parent);

    /// What says whether there are lists to bring back, for which there is an item then.
    void setUnsavedLists(std::function<bool()> areThere) { m_areUnsaved = std::move(areThere); }

signals:
    void unsavedListsRequested();
    void recoveryFolderRequested();
    void preferencesRequested();
    void quitRequested();
    void helpRequested();
    /// The person wants to read how a list gets from the set to here and back.
    void wayOfListsRequested();
    void sampleRequested();
    /// The person wants an earlier version opened as an untitled list, to be saved there.
    void versionRequested(const QByteArray &bytes, const QString &suggestedPath);

private:
    struct Item
    {
        const char *title; ///< id of the localized text
        const char *name;
        QKeySequence shortcut;
    };

    template<typename Slot>
    QAction *add(QMenu &menu, const Item &item, Slot slot);
    void makeFileMenu(QMenuBar &bar);
    void makeViewMenu(QMenuBar &bar);
    void makeHelpMenu(QMenuBar &bar);
    void save();
    void showVersions();
    void showAbout();
    void chooseMode(bool isTV);
    void chooseSource(int source);
    void validate();
    void validateVersions();

    LGWindowController &m_window;
    DocumentController &m_documents;
    EditorView &m_editor;
    QPointer<AboutWindow> m_about;
    std::vector<QAction *> m_documentItems; ///< enabled as the document says
    std::vector<QAction *> m_sources;
    std::vector<QAction *> m_filters;
    std::vector<QAction *> m_print;
    EditMenu *m_edit = nullptr;
    CompareMenu *m_compare = nullptr;
    std::function<bool()> m_areUnsaved;
    QAction *m_save = nullptr;
    QAction *m_saveAs = nullptr;
    QAction *m_reload = nullptr;
    QAction *m_versions = nullptr;
    QAction *m_alwaysRepair = nullptr;
    QAction *m_exportList = nullptr;
    QAction *m_importChanges = nullptr;
    QAction *m_showTV = nullptr;
    QAction *m_showRadio = nullptr;
};

} // namespace quillet
