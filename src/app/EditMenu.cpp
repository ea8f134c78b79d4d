#include "app/EditMenu.h"

#include "app/LGWindowController.h"
#include "document/TLLDocument.h"
#include "editor/EditorClipboard.h"
#include "editor/EditorView.h"

#include <QMenu>
#include <QMenuBar>

#include <array>

namespace quillet {

namespace {

struct ArrangementItem
{
    Arrangement command;
    const char *title;
    const char *name;
    QKeyCombination shortcut;
};

constexpr std::array arrangementItems{
    ArrangementItem{Arrangement::Up, "kMenuMoveUp", "moveUp", Qt::ALT | Qt::Key_Up},
    ArrangementItem{Arrangement::Down, "kMenuMoveDown", "moveDown", Qt::ALT | Qt::Key_Down},
    ArrangementItem{Arrangement::ToTop, "kMenuMoveToTop", "moveToTop", Qt::ALT | Qt::Key_Home},
    ArrangementItem{Arrangement::ToBottom, "kMenuMoveToBottom", "moveToBottom",
                    Qt::ALT | Qt::Key_End},
    ArrangementItem{Arrangement::Swap, "kMenuSwap", "swapNumbers",
                    Qt::CTRL | Qt::SHIFT | Qt::Key_M},
};

struct ChoiceItem
{
    RowChoice choice;
    const char *title;
    const char *name;
};

constexpr std::array choiceItems{
    ChoiceItem{RowChoice::All, "kMenuSelectAll", "selectAll"},
    ChoiceItem{RowChoice::None, "kMenuSelectNone", "selectNone"},
    ChoiceItem{RowChoice::Inverted, "kMenuSelectInvert", "invertSelection"},
    ChoiceItem{RowChoice::SameType, "kMenuSelectSameType", "selectSameType"},
    ChoiceItem{RowChoice::Encrypted, "kMenuSelectEncrypted", "selectEncrypted"},
};

QList<QKeySequence> shortcutsOf(RowChoice choice)
{
    switch (choice) {
    case RowChoice::All:
        return {QKeySequence::SelectAll};
    case RowChoice::None:
        return {Qt::CTRL | Qt::SHIFT | Qt::Key_D};
    case RowChoice::Inverted:
        return {Qt::CTRL | Qt::SHIFT | Qt::Key_I};
    default:
        return {};
    }
}

} // namespace

EditMenu::EditMenu(LGWindowController &window, QMenuBar &bar, QObject *parent)
    : QObject(parent), m_window(window), m_editor(window.editor())
{
    QMenu &menu = *bar.addMenu(qtTrId("kMenuEdit"));
    menu.setObjectName(QStringLiteral("editMenu"));
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, &m_editor.clipboard(), &EditorClipboard::look);
    connect(&menu, &QMenu::aboutToShow, this, qOverload<>(&EditMenu::validate));
    addUndo(menu);
    menu.addSeparator();
    addMoves(menu);
    addFlags(menu);
    menu.addSeparator();
    addSelecting(menu);
    addLists(menu);
    menu.addSeparator();
    addFinding(menu);
    menu.addSeparator();
    addPreferences(menu);
    m_editor.setContextActions(m_contextActions);
}

QAction *EditMenu::add(QMenu &menu, const Item &item, const std::function<void()> &slot,
                       const Reason &reason)
{
    QAction *action = menu.addAction(qtTrId(item.title));
    action->setObjectName(QLatin1String(item.name));
    action->setShortcuts(item.shortcuts);
    connect(action, &QAction::triggered, this, [this, slot, goesIntoField = item.goesIntoField] {
        if (!goesIntoField)
            m_editor.commitEditing(); // what is typed belongs to the list the command works on
        slot();
    });
    m_commands.push_back({action, reason, item.tip ? qtTrId(item.tip) : QString()});
    return action;
}

/// Their texts and states are those of the document's history.
void EditMenu::addUndo(QMenu &menu)
{
    const auto make = [&menu](const char *name, const QList<QKeySequence> &shortcuts) {
        QAction *action = menu.addAction(QString());
        action->setObjectName(QLatin1String(name));
        action->setShortcuts(shortcuts);
        return action;
    };
    m_undo = make("undo", {QKeySequence::Undo});
    m_redo = make("redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    connect(m_undo, &QAction::triggered, &m_editor, &EditorView::undo);
    connect(m_redo, &QAction::triggered, &m_editor, &EditorView::redo);
}

void EditMenu::addMoves(QMenu &menu)
{
    ViewController &controller = m_editor.controller();
    m_contextActions.append(add(
        menu, {"kMenuMoveTo", "moveItemsToClicked", {Qt::CTRL | Qt::Key_M}},
        [&controller] { controller.moveItemsToClicked(); },
        [&controller] {
            return controller.isEnabled(EditorOutlets::Control::MoveToButton)
                       ? QString()
                       : qtTrId("kTipSelectFirst");
        }));
    for (const auto &[command, title, name, shortcut] : arrangementItems) {
        m_contextActions.append(add(
            menu, {title, name, {shortcut}},
            [&controller, arrangement = command] { controller.arrange(arrangement); },
            [&controller, arrangement = command] {
                return controller.arranging().reasonAgainst(arrangement);
            }));
    }
    m_contextActions.append(add(
        menu, {"kMenuArrange", "arrange", {Qt::CTRL | Qt::SHIFT | Qt::Key_O}, "kArrangeTip"},
        [this] { m_editor.askToArrange(); },
        [&controller] { return controller.arranging().reasonAgainst(Arrangement::ByKeys); }));
}

void EditMenu::addFlags(QMenu &menu)
{
    ViewController &controller = m_editor.controller();
    const auto selectedReason = [this](const char *name) {
        return [this, name] {
            return m_window.validateUserInterfaceItem(QLatin1String(name))
                       ? QString()
                       : qtTrId("kTipSelectFirst");
        };
    };
    const Reason renameReason = [this] { return m_editor.reasonAgainstRenaming(); };
    const Reason infoReason = [&controller] {
        return controller.isEnabled(EditorOutlets::Control::InfoButton) ? QString()
                                                                        : qtTrId("kTipSelectFirst");
    };
    m_contextActions.append(menu.addSeparator());
    m_contextActions.append(add(
        menu, {"kMenuSkip", "skipSelectedItems", {Qt::CTRL | Qt::Key_K}},
        [&controller] { controller.skipSelectedItems(); }, selectedReason("skipSelectedItems")));
    m_contextActions.append(add(
        menu, {"kMenuLock", "changeChildLockForSelectedItems", {Qt::CTRL | Qt::Key_L}},
        [&controller] { controller.changeChildLockForSelectedItems(); },
        selectedReason("changeChildLockForSelectedItems")));
    m_contextActions.append(add(
        menu, {"kMenuRename", "rename", {Qt::Key_F2}}, [this] { m_editor.renameSelected(); },
        renameReason));
    m_contextActions.append(add(
        menu, {"kMenuCopy", "copy", {QKeySequence::Copy}, nullptr, true},
        [this] { m_editor.clipboard().copy(); },
        [this] { return m_editor.clipboard().reasonAgainstCopying(); }));
    m_contextActions.append(add(
        menu, {"kMenuPaste", "paste", {QKeySequence::Paste}, nullptr, true},
        [this] { m_editor.clipboard().paste(); },
        [this] { return m_editor.clipboard().reasonAgainstPasting(); }));
    m_contextActions.append(add(
        menu, {"kMenuInfo", "showInfo", {Qt::CTRL | Qt::Key_I}}, [this] { m_editor.showInfo(); },
        infoReason));
}

void EditMenu::addSelecting(QMenu &menu)
{
    QMenu &choices = *menu.addMenu(qtTrId("kMenuSelect"));
    choices.setObjectName(QStringLiteral("selectMenu"));
    choices.setToolTipsVisible(true);
    SelectCommands &selecting = m_editor.controller().selecting();
    for (const auto &[choice, title, name] : choiceItems) {
        add(
            choices, {title, name, shortcutsOf(choice)},
            [&selecting, rows = choice] { selecting.select(rows); },
            [&selecting, rows = choice] { return selecting.reasonAgainst(rows); });
    }
}

void EditMenu::addLists(QMenu &menu)
{
    ViewController &controller = m_editor.controller();
    menu.addSeparator();
    add(
        menu, {"kMenuApplyOrder", "applyOrderClicked", {Qt::CTRL | Qt::SHIFT | Qt::Key_A}},
        [&controller] { controller.ordering().askForFile(); },
        [&controller] {
            return controller.isEnabled(EditorOutlets::Control::ApplyButton)
                       ? QString()
                       : qtTrId("kTipNoStations");
        });
    m_fillGaps = menu.addAction(qtTrId("kMenuFillGaps"));
    m_fillGaps->setObjectName(QStringLiteral("fillGapsClicked"));
    m_fillGaps->setCheckable(true);
    connect(m_fillGaps, &QAction::triggered, this, [this](bool on) {
        m_editor.commitEditing();
        m_editor.setFillGapsOn(on);
    });
}

void EditMenu::addFinding(QMenu &menu)
{
    QMenu &finding = *menu.addMenu(qtTrId("kMenuFind"));
    finding.setObjectName(QStringLiteral("findMenu"));
    finding.setToolTipsVisible(true);
    add(
        finding, {"kMenuFindText", "find", {QKeySequence::Find}},
        [this] { m_editor.focusSearch(); }, [] { return QString(); });
    SelectCommands &selecting = m_editor.controller().selecting();
    const Reason reason = [&selecting] {
        return selecting.canFindNext() ? QString() : qtTrId("kTipSearchFirst");
    };
    add(
        finding, {"kMenuFindNext", "findNext", {Qt::Key_F3}}, [this] { m_editor.findNext(true); },
        reason);
    add(
        finding, {"kMenuFindPrevious", "findPrevious", {Qt::SHIFT | Qt::Key_F3}},
        [this] { m_editor.findNext(false); }, reason);
}

void EditMenu::addPreferences(QMenu &menu)
{
    const QKeySequence usual(QKeySequence::Preferences); // which not every platform has
    QAction *action = menu.addAction(qtTrId("kMenuPreferences"));
    action->setObjectName(QStringLiteral("showPreferences"));
    action->setMenuRole(QAction::PreferencesRole);
    action->setShortcut(usual.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Comma) : usual);
    connect(action, &QAction::triggered, this, &EditMenu::preferencesRequested);
}

void EditMenu::validateUndo()
{
    const TLLDocument *document = m_window.tlldoc();
    const QUndoStack *steps = document ? &document->history().stack() : nullptr;
    const bool isTyping = m_editor.isEditing();
    const auto show = [](QAction &action, bool isEnabled, const char *plain, const char *named,
                         const QString &step) {
        action.setEnabled(isEnabled);
        // A name may hold the mark of a mnemonic.
        action.setText(step.isEmpty()
                           ? qtTrId(plain)
                           : qtTrId(named).arg(QString(step).replace(u'&', QStringLiteral("&&"))));
        action.setToolTip(isEnabled ? QString() : qtTrId("kTipNoSteps"));
    };
    const bool canUndo = steps && steps->canUndo(), canRedo = steps && steps->canRedo();
    show(*m_undo, isTyping || canUndo, "kMenuUndo", "kMenuUndoStep",
         canUndo && !isTyping ? steps->undoText() : QString());
    show(*m_redo, isTyping || canRedo, "kMenuRedo", "kMenuRedoStep",
         canRedo && !isTyping ? steps->redoText() : QString());
}

void EditMenu::validate()
{
    validateUndo();
    for (const auto &[action, reason, tip] : m_commands) {
        const QString why = reason();
        action->setEnabled(why.isEmpty());
        action->setToolTip(why.isEmpty() ? tip : why);
    }
    m_fillGaps->setChecked(m_editor.controller().fillGaps());
}

} // namespace quillet
