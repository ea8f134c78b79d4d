#include "editor/EditorView.h"

#include "editor/ArrangeDialog.h"
#include "editor/ColumnsMenu.h"
#include "editor/CompareDialog.h"
#include "editor/EditorKeys.h"
#include "editor/EditorLayout.h"
#include "editor/EmptyDocText.h"
#include "editor/ExportDialog.h"
#include "editor/InfoViewController.h"
#include "editor/ShownTexts.h"
#include "editor/SourceTitles.h"
#include "editor/StationClipboard.h"
#include "editor/StationHeader.h"
#include "editor/TableColumns.h"
#include "editor/TableSelection.h"
#include "ui_EditorView.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMenu>

#include <utility>
#include <vector>

namespace quillet {

namespace {

/// The label takes the room it needs, and the window with it.
constexpr qsizetype longestDeviceName = 30;

/// What text is being typed into.
QLineEdit *fieldInFocus()
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

} // namespace

EditorView::EditorView(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::EditorView>()), m_controller(*this),
      m_model(m_controller)
{
    m_ui->setupUi(this);
    foldRows(*m_ui);
    setUpControls();
    setUpTable();
    sizeControls(*m_ui, font());
    connectControls();
    m_controller.viewDidLoad();
    setAcceptDrops(true);
}

EditorView::~EditorView() = default;

void EditorView::setUpControls()
{
    QStringList titles;
    for (const StationSource source : stationSources)
        titles.append(sourceTitle(static_cast<int>(source)));
    m_ui->sourceSegmentControl->setSegments(titles);
    QWidget *before = m_ui->radioButton;
    for (int i = 0; i < titles.size(); ++i) {
        setTabOrder(before, m_ui->sourceSegmentControl->segment(i));
        before = m_ui->sourceSegmentControl->segment(i);
    }
    if (auto *clear = m_ui->searchText->findChild<QAbstractButton *>()) {
        clear->setAccessibleName(qtTrId("kClearSearch"));
        clear->setToolTip(qtTrId("kClearSearch"));
    }
    m_ui->foreignRowsBar->setClosable(false);
    m_ui->foreignRowsBar->setTabOrderAfter(*m_ui->filterPop);
    m_ui->fileBar->setTabOrderAfter(*m_ui->filterPop);
    m_ui->noticeBar->setTabOrderAfter(*m_ui->filterPop);
    for (int tag = 0; tag < typeFilterCount; ++tag)
        m_ui->filterPop->addItem(typeFilterTitle(tag), tag);
}

void EditorView::setUpTable()
{
    DarkModeTableView &list = *m_ui->list;
    list.setModel(&m_model);
    list.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setUpColumns(list);
    m_columnsMenu = new ColumnsMenu(list, m_controller, this);
    list.setDropHandler([this](const TableDrag &drag) { return m_controller.validateDrop(drag); },
                        [this](const TableDrag &drag) { return m_controller.acceptDrop(drag); });

    m_emptyDocText = new EmptyDocText(list.viewport());
    m_keys = std::make_unique<EditorKeys>(list, *m_ui->searchText, *m_ui->filterPop, m_controller);
    m_cells = std::make_unique<CellEditing>(list, m_controller);
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
                showComparison(m_controller, other, sheetWindow(),
                               [this, place = other.place](const StationList &chosen) {
                                   m_controller.pasteStations(chosen, place);
                               });
            });
    connect(&m_controller, &ViewController::stateChanged, m_ui->fillGapsButton,
            [this] { m_ui->fillGapsButton->setChecked(m_controller.fillGaps()); });
    connect(m_ui->list, &DarkModeTableView::editingChanged, this, &EditorView::stateChanged);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        if (!std::exchange(m_mayPaste, true)) // not looked at now: its program may not answer
            emit stateChanged();
    });
    connect(m_emptyDocText, &EmptyDocText::openRequested, this, &EditorView::openRequested);
    connect(m_emptyDocText, &EmptyDocText::tvRequested, &m_controller,
            &ViewController::useTVClicked);
    connect(m_emptyDocText, &EmptyDocText::radioRequested, &m_controller,
            &ViewController::useRadioClicked);
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

std::vector<ColumnContent> EditorView::shownColumns() const
{
    const auto &header = static_cast<const StationHeader &>(*m_ui->list->horizontalHeader());
    std::vector<ColumnContent> columns;
    for (const int column : header.shownColumns())
        columns.push_back(stationColumns.at(static_cast<std::size_t>(column)).content);
    return columns;
}

void EditorView::copy()
{
    if (const auto *field = fieldInFocus())
        return field->copy();
    const StationList selected = m_controller.shown().stationsAt(selectedRows());
    if (selected.empty())
        return; // what is on the clipboard stays there
    QGuiApplication::clipboard()->setMimeData(
        copiedStations(m_controller, selected, shownColumns()).release());
}

QString EditorView::reasonAgainstCopying() const
{
    return fieldInFocus() || !selectedRows().isEmpty() ? QString() : qtTrId("kTipSelectFirst");
}

void EditorView::paste()
{
    if (auto *field = fieldInFocus())
        field->paste();
    else if (const QMimeData *held = QGuiApplication::clipboard()->mimeData())
        m_controller.paste(*held);
}

QString EditorView::reasonAgainstPasting() const
{
    if (fieldInFocus())
        return {};
    const QString reason = m_controller.pasting().reasonAgainst();
    return reason.isEmpty() && !m_mayPaste ? qtTrId("kTipNothingToPaste") : reason;
}

void EditorView::lookAtClipboard()
{
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    m_mayPaste = held && mayHoldStations(*held);
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
    lookAtClipboard();
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
    askToExport(m_controller, shownColumns(), sheetWindow());
}

void EditorView::setText(Field field, const QString &text)
{
    switch (field) {
    case Field::FileName:
        m_ui->fileName->setText(text);
        break;
    case Field::DeviceName:
        m_ui->deviceName->setText(shortened(cleanName(text), longestDeviceName));
        break;
    case Field::StationCount:
        m_ui->stationCount->setText(text);
        break;
    case Field::Matches:
        m_ui->matches->setText(text);
        break;
    }
}

void EditorView::setEnabled(Control control, bool enabled)
{
    const QString noStations = enabled ? QString() : qtTrId("kTipNoStations");
    switch (control) {
    case Control::MoveToButton:
        m_ui->moveToButton->setEnabled(enabled);
        m_ui->moveToButton->setToolTip(enabled ? qtTrId("kMoveToTip") : qtTrId("kTipSelectFirst"));
        break;
    case Control::InfoButton:
        m_ui->infoButton->setEnabled(enabled);
        m_ui->infoButton->setToolTip(enabled ? qtTrId("kInfoTip") : qtTrId("kTipSelectFirst"));
        break;
    case Control::ApplyButton:
        m_ui->applyButton->setEnabled(enabled);
        m_ui->applyButton->setToolTip(enabled ? qtTrId("kApplyOrderTip") : noStations);
        break;
    case Control::ModeButtons:
        m_ui->tvButton->setEnabled(enabled);
        m_ui->radioButton->setEnabled(enabled);
        m_ui->tvButton->setToolTip(noStations);
        m_ui->radioButton->setToolTip(noStations);
        break;
    case Control::FilterPop:
        m_ui->filterPop->setEnabled(enabled);
        m_ui->filterPop->setToolTip(enabled ? QString() : qtTrId("kTipFilterTVOnly"));
        break;
    }
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
    m_ui->sourceSegmentControl->setSegmentEnabled(segment, enabled);
    m_ui->sourceSegmentControl->setSegmentToolTip(
        segment, enabled ? QString() : qtTrId("kTipNoStationsInSource"));
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
        m_selectedRows = quillet::selectedRows(*m_ui->list->selectionModel());
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
    m_emptyDocText->showHint(hint);
}

void EditorView::showForeignRows(const std::optional<ForeignRows> &rows)
{
    if (!rows)
        return m_ui->foreignRowsBar->dismiss();
    m_ui->foreignRowsBar->showNotice(
        NoticeBar::Kind::Information,
        qtTrId("kForeignRows").arg(sourceTitle(rows->source), sourceTitle(rows->currentSource)),
        qtTrId("kClearFilters"));
}

void EditorView::showNotice(const Notice &notice)
{
    if (notice.text.isEmpty())
        m_ui->noticeBar->dismiss();
    else
        m_ui->noticeBar->showNotice(
            notice.isWarning ? NoticeBar::Kind::Warning : NoticeBar::Kind::Information, notice.text,
            notice.offersRepair ? qtTrId("kOpenRepairedCopy") : QString());
}

void EditorView::showFileNotice(const FileNotice &notice)
{
    if (notice.text.isEmpty())
        m_ui->fileBar->dismiss();
    else if (notice.offersReload)
        m_ui->fileBar->showNotice(NoticeBar::Kind::Warning, notice.text, qtTrId("kReload"),
                                  qtTrId("kKeepMine"));
    else
        m_ui->fileBar->showNotice(NoticeBar::Kind::Warning, notice.text, qtTrId("kSaveAs"));
}

QWidget *EditorView::sheetWindow() const
{
    return window();
}

void EditorView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeControls(*m_ui, font());
}

} // namespace quillet
