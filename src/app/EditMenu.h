#pragma once

#include <QAction>
#include <QObject>

#include <functional>
#include <vector>

class QMenu;
class QMenuBar;

namespace quillet {

class EditorView;
class LGWindowController;

/// The Edit menu of one window, and the table's context menu, which has some of its commands. Each
/// command has the name of its operation as object name; one that is disabled says why. Owned by
/// the window's MainMenu.
class EditMenu : public QObject
{
    Q_OBJECT

public:
    EditMenu(LGWindowController &window, QMenuBar &bar, QObject *parent);

    /// Enables what can be done now.
    void validate();

signals:
    void preferencesRequested();

private:
    struct Item
    {
        const char *title; ///< id of the localized text
        const char *name;
        QList<QKeySequence> shortcuts = {};
        const char *tip = nullptr;  ///< id of a text for the enabled command
        bool goesIntoField = false; ///< what is being typed into, which goes on
    };
    using Reason = std::function<QString()>;

    /// `reason` says why the command is disabled, with an empty text when it is not.
    QAction *add(QMenu &menu, const Item &item, const std::function<void()> &slot,
                 const Reason &reason);
    void addUndo(QMenu &menu);
    void addMoves(QMenu &menu);
    void addFlags(QMenu &menu);
    void addSelecting(QMenu &menu);
    void addLists(QMenu &menu);
    void addFinding(QMenu &menu);
    void addPreferences(QMenu &menu);
    void validateUndo();

    struct Command
    {
        QAction *action;
        Reason reason;
        QString tip;
    };

    LGWindowController &m_window;
    EditorView &m_editor;
    std::vector<Command> m_commands;
    QList<QAction *> m_contextActions;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_fillGaps = nullptr;
};

} // namespace quillet
