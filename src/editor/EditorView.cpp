#include "editor/EditorView.h"

#include "editor/ArrangeDialog.h"
#include "editor/CellFont.h"
#include "editor/ColumnsMenu.h"
#include "editor/CompareDialog.h"
#include "editor/EditorClipboard.h"
#include "editor/EditorControls.h"
#include "editor/EditorKeys.h"
#include "editor/EditorLayout.h"
#include "editor/EmptyDocText.h"
#include "editor/EmptyPage.h"
#include "editor/ExportDialog.h"
#include "editor/InfoViewController.h"
#include "editor/RowSelection.h"
#include "editor/TableColumns.h"
#include "editor/TableSelection.h"
#include "files/Settings.h"
#include "ui_EditorView.h"

#include <QDropEvent>
#include <QItemSelectionModel>
#include <QMenu>
#include <QMimeData>

namespace quillet {

EditorView::EditorView(Settings &settings, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_ui(std::make_unique<Ui::EditorView>()),
      m_controller(*this), m_model(m_controller)
{
    m_ui->setupUi(this);
    foldRows(*m_ui);
    setUpControls(*m_ui);
    setUpTable();
    sizeTexts();
    connectControls();
    m_controller.viewDidLoad();
    setAcceptDrops(true);
    m_ui->searchText->installEventFilter(this);
}

/// The table goes later, and remembers its columns then.
EditorView::~EditorView()
{
    disconnect(&m_settings, nullptr, this, nullptr);
}

void EditorView::setUpTable()
{
    DarkModeTableView &list = *m_ui->list;
    list.setModel(&m_model);
    list.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setUpColumns(list);
    m_columnsMenu = new ColumnsMenu(list, m_controller, m_settings, this);
    list.setDropHandler([this](const TableDrag &drag) { return m_controller.validateDrop(drag); },
                        [this](const TableDrag &drag) { return m_controller.acceptDrop(drag); });

    m_emptyPage = new EmptyPage(list);
    m_keys = std::make_unique<EditorKeys>(list, *m_ui->searchText, *m_ui->filterPop, m_controller);
    m_cells = std::make_unique<CellEditing>(list, m_controller);
    m_clipboard = std::make_unique<EditorClipboard>(list, *this, m_controller);
}

void EditorView::connectControls()
{
    connect(m_ui->tvButton, &QRadioButton::clicked, &m_controller, &ViewController::useTVClicked);
    connect(m_ui->radioButton, &QRadioButton::clicked, &m_controller,
            &ViewController::useRadioClicked);
    connect(m_ui->sourceSegmentControl, &SegmentedControl::segmentClicked, &m_controller,
            &ViewController::sourceSegmentClicked);
    connect(m_ui->searchText, &QLineEdit::textChanged, &m_controller,
            &ViewController::textDidChange);
    connect(m_ui->filterPop, &QComboBox::activated, &m_controller,
            &ViewController::typeFilterClicked);
    connect(m_ui->moveToButton, &QPushButton::clicked, &m_controller,
            &ViewController::moveItemsToClicked);
    connect(m_ui->infoButton, &QPushButton::clicked, this, &EditorView::showInfo);
    connect(m_ui->list, &DarkModeTableView::returnPressed, this, &EditorView::showInfo);
    connect(m_ui->applyButton, &QPushButton::clicked, &m_controller,
            [this] { m_controller.ordering().askForFile(); });
    connect(m_ui->fillGapsButton, &QCheckBox::toggled, &m_controller,
            &ViewController::fillGapsClicked);
    connect(m_ui->list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_selectedRows.reset(); });
    connect(m_ui->list->selectionModel(), &QItemSelectionModel::selectionChanged, &m_controller,
            &ViewController::tableViewSelectionDidChange);
    connect(m_ui->noticeBar, &NoticeBar::actionTriggered, &m_controller,
            &ViewController::repairedCopyRequested);
    connect(m_ui->foreignRowsBar, &NoticeBar::actionTriggered, &m_controller,
            &ViewController::clearFilters);
    connect(m_ui->fileBar, &NoticeBar::actionTriggered, this, [this] {
        commitEditing();
        m_controller.followFileNotice();
    });
    connect(m_ui->fileBar, &NoticeBar::otherActionTriggered, &m_controller,
            &ViewController::keepMine);
    connect(&m_controller, &ViewController::stateChanged, this, &EditorView::stateChanged);
    connect(&m_controller, &ViewController::comparisonWanted, this,
            [this](const ComparedWith &other) {
                showComparison(m_controller, other, m_settings, sheetWindow(),
                               [this, place = other.place](const StationList &chosen) {
                                   m_controller.pasteStations(chosen, place);
                               });
            });
    connect(&m_controller, &ViewController::stateChanged, m_ui->fillGapsButton,
            [this] { m_ui->fillGapsButton->setChecked(m_controller.fillGaps()); });
    connect(m_ui->list, &DarkModeTableView::editingChanged, this, &EditorView::stateChanged);
    connect(m_clipboard.get(), &EditorClipboard::stateChanged, this, &EditorView::stateChanged);
    connect(&m_settings, &Settings::changed, this, [this](Setting setting) {
        if (setting == Setting::TextSize)
            sizeTexts();
        emit stateChanged();
    });
    connect(&m_emptyPage->hint(), &EmptyDocText::tvRequested, &m_controller,
            &ViewController::useTVClicked);
    connect(&m_emptyPage->hint(), &EmptyDocText::radioRequested, &m_controller,
            &ViewController::useRadioClicked);
    connect(m_emptyPage, &EmptyPage::openRequested, this, &EditorView::openRequested);
    connect(m_emptyPage, &EmptyPage::recentFileRequested, this, &EditorView::recentFileRequested);
    connect(m_emptyPage, &EmptyPage::sampleRequested, this, &EditorView::sampleRequested);
    connect(m_emptyPage, &EmptyPage::guideRequested, this, &EditorView::guideRequested);
}

void EditorView::undo()
{
    if (!m_cells->undo())
        m_controller.undoing().undo();
}

void EditorView::redo()
{
    if (!m_cells->redo())
        m_controller.undoing().redo();
}

void EditorView::goToStep(int step)
{
    commitEditing();
    m_controller.undoing().goToStep(step);
}

void EditorView::findNext(bool isForward)
{
    m_controller.selecting().findNext(isForward);
    if (!m_ui->searchText->hasFocus())
        focusList();
}

void EditorView::askToArrange()
{
    quillet::askToArrange(m_controller, sheetWindow());
}

/// Files may be dropped anywhere in the window.
void EditorView::dragEnterEvent(QDragEnterEvent *event)
{
    const TableDrag drag = m_ui->list->filesOf(*event->mimeData());
    if (m_controller.validateDrop(drag) == DragOperation::Copy)
        event->acceptProposedAction();
}

void EditorView::dropEvent(QDropEvent *event)
{
    const TableDrag drag = m_ui->list->filesOf(*event->mimeData());
    if (m_controller.validateDrop(drag) == DragOperation::Copy && m_controller.acceptDrop(drag))
        event->acceptProposedAction();
}

/// The search field would take the path of a file as text.
bool EditorView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->searchText || event->type() != QEvent::DragEnter ||
        !static_cast<QDragEnterEvent *>(event)->mimeData()->hasUrls())
        return QWidget::eventFilter(watched, event);
    event->ignore(); // so that it goes on to what the field lies in
    return true;
}

void EditorView::offerAtStart(RecentFiles &recentFiles, bool hasGuide)
{
    m_emptyPage->offer(recentFiles, hasGuide);
}

void EditorView::focusList()
{
    m_ui->list->setFocus();
}

void EditorView::focusSearch()
{
    m_ui->searchText->setFocus(Qt::ShortcutFocusReason);
    m_ui->searchText->selectAll();
}

void EditorView::setFillGapsOn(bool on)
{
    m_ui->fillGapsButton->setChecked(on);
}

void EditorView::showInfo()
{
    const StationPtr station = m_controller.stationForInfo();
    if (!station)
        return;
    if (m_infoPanel)
        m_infoPanel->close();
    m_infoPanel = new InfoViewController(this);
    m_infoPanel->setStation(*station);
    m_infoPanel->show();
}

void EditorView::setContextActions(const QList<QAction *> &actions)
{
    m_contextActions = actions;
    m_ui->list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_ui->list, &QWidget::customContextMenuRequested, this, &EditorView::showContextMenu);
}

/// Unlike the one that a widget makes of its actions, it says why a command is disabled.
void EditorView::showContextMenu(const QPoint &place)
{
    m_clipboard->look();
    emit stateChanged();
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("tableMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    menu->addActions(m_contextActions);
    menu->popup(m_ui->list->viewport()->mapToGlobal(place));
}

QMenu &EditorView::columnsMenu() const
{
    return *m_columnsMenu;
}

void EditorView::printList(PrintForm form)
{
    quillet::printList(*m_ui->list, m_controller, form, sheetWindow());
}

void EditorView::exportList()
{
    askToExport(m_controller, shownColumns(*m_ui->list), sheetWindow());
}

void EditorView::setText(Field field, const QString &text)
{
    quillet::setText(*m_ui, field, text);
}

void EditorView::setEnabled(Control control, bool enabled)
{
    quillet::setEnabled(*m_ui, control, enabled);
}

bool EditorView::tvButtonIsOn() const
{
    return m_ui->tvButton->isChecked();
}

void EditorView::setTVButtonOn(bool on)
{
    m_ui->tvButton->setChecked(on);
    m_ui->radioButton->setChecked(!on);
}

void EditorView::setSegmentEnabled(int segment, bool enabled)
{
    quillet::setSegmentEnabled(*m_ui, segment, enabled);
}

void EditorView::selectSegment(int segment)
{
    m_ui->sourceSegmentControl->setSelectedSegment(segment);
}

int EditorView::selectedSegment() const
{
    return m_ui->sourceSegmentControl->selectedSegment();
}

QString EditorView::searchText() const
{
    return m_ui->searchText->text();
}

int EditorView::filterTag() const
{
    return m_ui->filterPop->currentData().toInt();
}

void EditorView::selectFilterItem(int index)
{
    m_ui->filterPop->setCurrentIndex(index);
}

void EditorView::clearSearchText()
{
    m_ui->searchText->setText({}); // which typing cannot undo
}

void EditorView::reloadData()
{
    m_model.reload();
    m_selectedRows.reset();
    m_ui->list->setPlaceholderText(m_controller.shown().isFiltered() ? qtTrId("kNoMatches")
                                                                     : QString());
}

void EditorView::showChange(const ListChange &change)
{
    m_model.show(change);
    m_selectedRows.reset();
}

QList<qsizetype> EditorView::selectedRows() const
{
    if (!m_selectedRows)
        m_selectedRows = m_ui->list->rowSelection().rows();
    return *m_selectedRows;
}

void EditorView::selectRows(const QList<qsizetype> &rows)
{
    quillet::selectRows(*m_ui->list, rows);
}

/// One that is out of sight comes to the middle, so that its neighbours are seen as well.
void EditorView::scrollRowToVisible(qsizetype row)
{
    const DarkModeTableView &list = *m_ui->list;
    const int top = list.rowViewportPosition(static_cast<int>(row));
    const bool isSeen =
        top >= 0 && top + list.rowHeight(static_cast<int>(row)) <= list.viewport()->height();
    if (!isSeen)
        m_ui->list->scrollToRow(static_cast<int>(row), QAbstractItemView::PositionAtCenter);
}

qsizetype EditorView::topRow() const
{
    return m_ui->list->rowAt(0);
}

void EditorView::scrollRowToTop(qsizetype row)
{
    m_ui->list->scrollToRow(static_cast<int>(row), QAbstractItemView::PositionAtTop);
}

void EditorView::setNameColumnEditable(bool editable)
{
    m_model.setNameColumnEditable(editable);
}

void EditorView::showEmptyHint(EmptyHint hint)
{
    m_emptyPage->showHint(hint);
}

void EditorView::showForeignRows(const std::optional<ForeignRows> &rows)
{
    quillet::showForeignRows(*m_ui, rows);
}

void EditorView::showNotice(const Notice &notice)
{
    quillet::showNotice(*m_ui, notice);
}

void EditorView::showFileNotice(const FileNotice &notice)
{
    quillet::showFileNotice(*m_ui, notice);
}

QWidget *EditorView::sheetWindow() const
{
    return window();
}

void EditorView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeTexts();
}

/// What lies over the empty table is no part of it.
void EditorView::sizeTexts()
{
    const int percent = m_settings.number(Setting::TextSize);
    m_model.setTextSize(percent);
    sizeControls(*m_ui, font(), percent);
    m_emptyPage->setFont(sizeOf(font()));
}

} // namespace quillet
