#include "app/MainMenu.h"

#include "app/AboutWindow.h"
#include "app/AppDelegate.h"
#include "app/CompareMenu.h"
#include "app/EditMenu.h"
#include "app/HelpLoader.h"
#include "app/LGWindowController.h"
#include "app/TextSizeMenu.h"
#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "editor/HistoryPanel.h"
#include "editor/VersionsDialog.h"
#include "files/Settings.h"
#include "framework/DocumentController.h"
#include "framework/RecentFilesMenu.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace quillet {

namespace {

struct TaggedTitle
{
    const char *title;
    int tag;
};

constexpr std::array sourceItems{
    TaggedTitle{"kMenuCable", static_cast<int>(StationSource::Cable)},
    TaggedTitle{"kMenuSatellite", static_cast<int>(StationSource::Satellite)},
    TaggedTitle{"kMenuAntenna", static_cast<int>(StationSource::Antenna)},
    TaggedTitle{"kMenuAnalogue", static_cast<int>(StationSource::Analogue)},
};

constexpr std::array filterItems{
    TaggedTitle{"kMenuFilterAll", static_cast<int>(TypeFilter::All)},
    TaggedTitle{"kMenuFilterSD", static_cast<int>(TypeFilter::Sd)},
    TaggedTitle{"kMenuFilterHD", static_cast<int>(TypeFilter::Hd)},
    TaggedTitle{"kMenuFilterUHD", static_cast<int>(TypeFilter::Uhd)},
    TaggedTitle{"kMenuFilterTV", static_cast<int>(TypeFilter::Tv)},
    TaggedTitle{"kMenuFilterOther", static_cast<int>(TypeFilter::NonTV)},
};

} // namespace

MainMenu::MainMenu(LGWindowController &window, DocumentController &documents, QObject *parent)
    : QObject(parent), m_window(window), m_documents(documents), m_editor(window.editor())
{
    QMenuBar &bar = *window.window()->menuBar();
    makeFileMenu(bar);
    m_edit = new EditMenu(window, bar, this);
    connect(m_edit, &EditMenu::preferencesRequested, this, &MainMenu::preferencesRequested);
    makeViewMenu(bar);
    makeHelpMenu(bar);
    connect(&m_editor, &EditorView::stateChanged, this, &MainMenu::validate);
    validate();
}

template<typename Slot>
QAction *MainMenu::add(QMenu &menu, const Item &item, Slot slot)
{
    QAction *action = menu.addAction(qtTrId(item.title));
    action->setObjectName(QLatin1String(item.name));
    action->setShortcut(item.shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void MainMenu::makeFileMenu(QMenuBar &bar)
{
    QMenu &menu = *bar.addMenu(qtTrId("kMenuFile"));
    menu.setObjectName(QStringLiteral("fileMenu"));
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &MainMenu::validate);
    add(menu, {"kMenuNew", "newDocument", QKeySequence::New},
        [this] { m_documents.newDocument(); });
    QAction *open = add(menu, {"kMenuOpen", "openDocument", QKeySequence::Open},
                        [this] { m_documents.showOpenPanel(AppDelegate::nameFilters()); });
    connect(&m_editor, &EditorView::openRequested, open, &QAction::trigger);
    QMenu *recent = menu.addMenu(qtTrId("kMenuOpenRecent"));
    recent->setObjectName(QStringLiteral("recentFiles"));
    auto *recentFiles = new RecentFilesMenu(*recent, m_documents.recentFiles(), this);
    const auto openRecent = [this](const QString &path) { m_documents.openRecent(path); };
    connect(recentFiles, &RecentFilesMenu::fileChosen, this, openRecent);
    connect(&m_editor, &EditorView::recentFileRequested, this, openRecent);
    QAction *unsaved = add(menu, {"kMenuUnsavedLists", "showUnsavedLists", {}},
                           [this] { emit unsavedListsRequested(); });
    connect(&menu, &QMenu::aboutToShow, unsaved,
            [this, unsaved] { unsaved->setVisible(m_areUnsaved && m_areUnsaved()); });
    add(menu, {"kMenuRecoveryFolder", "openRecoveryFolder", {}},
        [this] { emit recoveryFolderRequested(); });
    menu.addSeparator();
    add(menu, {"kMenuClose", "performClose", Qt::CTRL | Qt::Key_W},
        [this] { emit m_window.closeRequested(); });
    m_save = add(menu, {"kMenuSave", "saveDocument", QKeySequence::Save}, [this] { save(); });
    m_documentItems.push_back(m_save);
    const QKeySequence saveAs(QKeySequence::SaveAs); // which not every platform has
    m_saveAs = add(menu,
                   {"kMenuSaveAs", "saveDocumentAs",
                    saveAs.isEmpty() ? QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S) : saveAs},
                   [this] {
                       m_editor.commitEditing();
                       m_window.tlldoc()->saveDocumentAs();
                   });
    m_documentItems.push_back(add(menu, {"kMenuRevert", "revertDocumentToSaved", {}},
                                  [this] { m_window.tlldoc()->revertDocumentToSaved(); }));
    m_reload = add(menu, {"kMenuReload", "reloadDocument", Qt::Key_F5}, [this] {
        m_editor.commitEditing();
        m_window.tlldoc()->reloadDocument();
    });
    m_versions = add(menu, {"kMenuVersions", "showVersions", {}}, [this] { showVersions(); });
    m_compare = new CompareMenu(m_window, m_documents, menu, *m_versions, this);
    connect(&menu, &QMenu::aboutToShow, this, &MainMenu::validateVersions);
    m_documentItems.push_back(add(menu,
                                  {"kMenuExport", "exportAsReferenceList", Qt::CTRL | Qt::Key_E},
                                  [this] { m_window.tlldoc()->exportAsReferenceList(); }));
    m_exportList =
        add(menu, {"kMenuExportList", "exportList", Qt::CTRL | Qt::SHIFT | Qt::Key_E}, [this] {
            m_editor.commitEditing();
            m_editor.exportList();
        });
    m_importChanges = add(menu, {"kMenuImport", "importChangesClicked", {}}, [this] {
        m_editor.commitEditing();
        m_editor.controller().comparing().askForTable();
    });
    m_alwaysRepair = add(menu, {"kMenuAlwaysRepair", "alwaysRepair", {}}, [this] {
        m_window.settings().set(Setting::RepairsJSONLists, false);
        validate();
    });
    m_alwaysRepair->setCheckable(true);
    menu.addSeparator();
    m_print.push_back(add(menu, {"kMenuPrint", "printDocument", QKeySequence::Print},
                          [this] { m_editor.printList(PrintForm::Table); }));
    m_print.push_back(add(menu, {"kMenuPrintCompact", "printCompact", {}},
                          [this] { m_editor.printList(PrintForm::Compact); }));
    menu.addSeparator();
    QAction *quit = add(menu, {"kMenuQuit", "terminate", Qt::CTRL | Qt::Key_Q},
                        [this] { emit quitRequested(); });
    quit->setMenuRole(QAction::QuitRole);
}

void MainMenu::makeViewMenu(QMenuBar &bar)
{
    QMenu &menu = *bar.addMenu(qtTrId("kMenuView"));
    menu.setToolTipsVisible(true);
    auto *modes = new QActionGroup(this);
    m_showTV =
        add(menu, {"kMenuTV", "useTVClicked", Qt::CTRL | Qt::Key_T}, [this] { chooseMode(true); });
    m_showRadio = add(menu, {"kMenuRadio", "useRadioClicked", Qt::CTRL | Qt::Key_R},
                      [this] { chooseMode(false); });
    for (QAction *mode : {m_showTV, m_showRadio}) {
        mode->setCheckable(true);
        modes->addAction(mode);
    }
    menu.addSeparator();
    auto *sources = new QActionGroup(this);
    for (const auto &[title, tag] : sourceItems) {
        const QKeySequence shortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tag));
        QAction *action = add(menu, {title, "sourceSegmentClicked", shortcut},
                              [this, source = tag] { chooseSource(source); });
        action->setCheckable(true);
        action->setData(tag);
        sources->addAction(action);
        m_sources.push_back(action);
    }
    menu.addSeparator();
    auto *filters = new QActionGroup(this);
    for (const auto &[title, tag] : filterItems) {
        QAction *action = add(menu, {title, "typeFilterClicked", {}}, [this, filter = tag] {
            m_editor.commitEditing();
            m_editor.controller().typeFilterClicked(filter);
        });
        action->setCheckable(true);
        action->setData(tag);
        filters->addAction(action);
        m_filters.push_back(action);
    }
    menu.addSeparator();
    menu.addMenu(&m_editor.columnsMenu());
    menu.addMenu(new TextSizeMenu(m_window.settings(), &menu));
    QAction *history = m_window.historyPanel().toggleViewAction();
    history->setText(qtTrId("kMenuHistory"));
    history->setObjectName(QStringLiteral("showHistory"));
    history->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_H);
    menu.addAction(history);
}

void MainMenu::makeHelpMenu(QMenuBar &bar)
{
    QMenu &menu = *bar.addMenu(qtTrId("kMenuHelp"));
    const bool hasGuide = resourceFolder().has_value(); // a package may leave it out
    if (hasGuide)
        add(menu, {"kMenuGuide", "showHelpWindow", QKeySequence::HelpContents},
            [this] { emit helpRequested(); });
    QAction *sample =
        add(menu, {"kMenuSample", "openSample", {}}, [this] { emit sampleRequested(); });
    menu.addSeparator();
    m_editor.offerAtStart(m_documents.recentFiles(), hasGuide);
    connect(&m_editor, &EditorView::sampleRequested, sample, &QAction::trigger);
    connect(&m_editor, &EditorView::guideRequested, this, &MainMenu::wayOfListsRequested);
    QAction *about = add(menu, {"kMenuAbout", "showAbout", {}}, [this] { showAbout(); });
    about->setMenuRole(QAction::AboutRole);
}

void MainMenu::showAbout()
{
    if (!m_about)
        m_about = new AboutWindow(m_window.window());
    m_about->show();
    m_about->raise();
}

/// What is being typed counts as well.
void MainMenu::save()
{
    m_editor.commitEditing();
    TLLDocument *document = m_window.tlldoc();
    if (document && document->validateUserInterfaceItem(m_save->objectName()))
        document->saveDocument();
}

/// What is being typed is a part of what the versions are compared with.
void MainMenu::showVersions()
{
    m_editor.commitEditing();
    auto *dialog = new VersionsDialog(m_editor.controller(), m_window.window());
    connect(dialog, &VersionsDialog::openRequested, this, &MainMenu::versionRequested);
    dialog->open();
}

/// The disk is asked, so only when the menu is opened.
void MainMenu::validateVersions()
{
    const TLLDocument *document = m_window.tlldoc();
    m_versions->setEnabled(document && EarlierVersions::hasAny(*document));
    const bool areKept = m_window.settings().isOn(Setting::KeepsVersions);
    m_versions->setToolTip(m_versions->isEnabled()
                               ? QString()
                               : qtTrId(areKept ? "kTipNoVersions" : "kTipVersionsOff"));
}

/// What is being typed belongs to a row that will be gone.
void MainMenu::chooseMode(bool isTV)
{
    m_editor.commitEditing();
    if (isTV)
        m_editor.controller().useTVClicked();
    else
        m_editor.controller().useRadioClicked();
}

void MainMenu::chooseSource(int source)
{
    m_editor.commitEditing();
    m_editor.selectSegment(source);
    m_editor.controller().sourceSegmentClicked();
}

void MainMenu::validate()
{
    const TLLDocument *document = m_window.tlldoc();
    for (QAction *action : m_documentItems)
        action->setEnabled(document && document->validateUserInterfaceItem(action->objectName()));
    m_edit->validate();
    m_compare->validate();
    if (document && m_editor.isEditing())
        m_save->setEnabled(true); // for what is being typed
    m_saveAs->setEnabled(document && document->canSaveAs());
    m_reload->setEnabled(document && document->canReload());
    m_reload->setToolTip(m_reload->isEnabled() ? QString() : qtTrId("kTipNoFile"));
    // Set in the sheet of a save or by the preferences; here it is only taken back.
    m_alwaysRepair->setChecked(m_window.settings().isOn(Setting::RepairsJSONLists));
    m_alwaysRepair->setVisible(m_alwaysRepair->isChecked());
    using Control = EditorOutlets::Control;
    const ViewController &editor = m_editor.controller();
    m_exportList->setEnabled(editor.shown().hasData());
    m_importChanges->setEnabled(document && document->list().stationCount() > 0);
    for (QAction *each : {m_exportList, m_importChanges})
        each->setToolTip(each->isEnabled() ? QString() : qtTrId("kTipNoStations"));
    for (QAction *print : m_print) {
        print->setEnabled(!editor.currentList().empty());
        print->setToolTip(print->isEnabled() ? QString() : qtTrId("kTipNoStations"));
    }
    m_showTV->setEnabled(editor.isEnabled(Control::ModeButtons));
    m_showRadio->setEnabled(editor.isEnabled(Control::ModeButtons));
    (editor.isModeTV() ? m_showTV : m_showRadio)->setChecked(true);
    for (QAction *source : m_sources) {
        const int index = source->data().toInt();
        source->setEnabled(editor.shown().hasDataForSource(index));
        source->setChecked(editor.shown().shownSource() == index);
    }
    for (QAction *filter : m_filters) {
        filter->setEnabled(m_window.validateUserInterfaceItem(filter->objectName()));
        filter->setChecked(editor.filterTag() == filter->data().toInt());
    }
}

} // namespace quillet
