#pragma once

#include <QAction>
#include <QList>
#include <QObject>

#include <vector>

class QMenu;
class QMenuBar;

namespace quillet {

class DocumentController;
class EditorView;
class LGWindowController;

/// The menu bar of one window. A command's object name is the name of the operation it calls, by
/// which the document and the editor say whether it is enabled. Owned by its window.
class MainMenu : public QObject
{
    Q_OBJECT

public:
    MainMenu(LGWindowController &window, DocumentController &documents, QObject *parent);

signals:
    void quitRequested();

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
    void makeEditMenu(QMenuBar &bar);
    void makeViewMenu(QMenuBar &bar);
    void chooseSource(int source);
    void validate();
    void validateView();

    LGWindowController &m_window;
    DocumentController &m_documents;
    EditorView &m_editor;
    std::vector<QAction *> m_documentItems; ///< enabled as the document says
    std::vector<QAction *> m_editorItems;   ///< enabled as the editor says
    std::vector<QAction *> m_sources;
    std::vector<QAction *> m_filters;
    QAction *m_print = nullptr;
    QAction *m_moveTo = nullptr;
    QAction *m_info = nullptr;
    QAction *m_applyOrder = nullptr;
    QAction *m_fillGaps = nullptr;
    QAction *m_showTV = nullptr;
    QAction *m_showRadio = nullptr;
};

} // namespace quillet
