#include "app/LGWindowController.h"

#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "editor/HistoryPanel.h"
#include "editor/ToldRow.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QSettings>
#include <QStatusBar>

namespace quillet {

namespace {

/// Where and how wide the panels beside the list are, and whether they are shown.
constexpr char panelsKey[] = "windows/TLL Editor Window panels";

} // namespace

LGWindowController::LGWindowController(Settings &settings)
    : TLLWindowController(std::make_unique<QMainWindow>(), QStringLiteral("TLL Editor Window")),
      m_settings(settings), m_editor(new EditorView(settings)), m_told(new ToldRow),
      m_history(new HistoryPanel)
{
    windowDidLoad();
}

/// The editor goes later, with the window, and tells of what is then given up in its cells.
LGWindowController::~LGWindowController()
{
    QSettings().setValue(panelsKey, window()->saveState());
    disconnect(m_editor, nullptr, nullptr, nullptr);
    m_history->toggleViewAction()->disconnect(m_editor);
}

void LGWindowController::windowDidLoad()
{
    window()->setCentralWidget(m_editor); // which the window owns from here on
    window()->setAcceptDrops(true);
    m_editor->focusList();
    // Ahead of the question whether to save.
    connect(this, &WindowController::closeRequested, m_editor, &EditorView::commitEditing);
    // A label, for messages of the bar itself go as soon as the pointer is over a menu.
    QStatusBar *bar = window()->statusBar();
    bar->setSizeGripEnabled(false);
    bar->setContentsMargins(12, 0, 12, 4);
    bar->addWidget(m_told, 1);
    connect(m_editor, &EditorView::told, m_told, &ToldRow::tell);
    connect(m_editor, &EditorView::editTold, m_told, &ToldRow::tellEdit);
    connect(m_told, &ToldRow::undoRequested, m_editor, [this] {
        m_editor->focusList(); // for the link goes
        m_editor->undo();
    });
    window()->addDockWidget(Qt::RightDockWidgetArea, m_history);
    m_history->hide();
    window()->restoreState(QSettings().value(panelsKey).toByteArray());
    connect(m_history->toggleViewAction(), &QAction::toggled, m_editor, [this](bool isShown) {
        if (!isShown)
            m_editor->focusList();
    });
    connect(m_history, &HistoryPanel::stepChosen, m_editor, &EditorView::goToStep);
    const QSize wanted = m_editor->sizeHint();
    const int line = m_editor->fontMetrics().height();
    window()->resize(qMax(wanted.width() + 6 * line, 48 * line), 42 * line);
}

bool LGWindowController::populateFromTLLDoc(TLLDocument &document, const Error &error)
{
    connect(&document, &Document::documentEditedChanged, m_editor, &EditorView::stateChanged,
            Qt::UniqueConnection);
    connect(&document, &Document::fileUrlChanged, m_editor, &EditorView::stateChanged,
            Qt::UniqueConnection);
    connect(&document, &Document::fileUrlChanged, &m_editor->controller(),
            &ViewController::showFileName, Qt::UniqueConnection);
    connect(&document, &Document::placeWasChosen, &m_editor->controller(),
            &ViewController::showNotice, Qt::UniqueConnection);
    connect(&document, &Document::fileNewsChanged, &m_editor->controller(),
            &ViewController::showFileNotice, Qt::UniqueConnection);
    connect(&document, &Document::fileNewsChanged, m_editor, &EditorView::stateChanged,
            Qt::UniqueConnection);
    connect(&document, &Document::told, m_told, &ToldRow::tell, Qt::UniqueConnection);
    m_history->setHistory(&document.history());
    const bool succeeded = m_editor->controller().populateFromTLLDoc(document, error);
    synchronizeWindowTitleWithDocumentName();
    return succeeded;
}

void LGWindowController::refill()
{
    if (TLLDocument *shown = tlldoc())
        populateFromTLLDoc(*shown, {});
    m_editor->controller().applyFilter(); // the search field still holds its text
}

std::function<void()> LGWindowController::keepPlace() const
{
    ViewController &controller = m_editor->controller();
    return [&controller, place = controller.place()] { controller.goTo(place); };
}

bool LGWindowController::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::Drop;
    if (watched != window() || !isDrag)
        return TLLWindowController::eventFilter(watched, event);
    QObject &editor = *m_editor; // sending the event would lead back here
    editor.event(event);
    return true;
}

bool LGWindowController::validateUserInterfaceItem(const QString &action) const
{
    return m_editor->controller().validateUserInterfaceItem(action);
}

TLLDocument *LGWindowController::tlldoc() const
{
    return qobject_cast<TLLDocument *>(document());
}

} // namespace quillet
