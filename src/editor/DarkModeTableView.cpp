#include "editor/DarkModeTableView.h"

#include "editor/DragPicture.h"
#include "editor/DropPlace.h"
#include "editor/RoomyCells.h"
#include "editor/RowSelection.h"
#include "editor/StationHeader.h"
#include "editor/StationTableModel.h"
#include "files/FileNames.h"
#include "framework/Speech.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace quillet {

namespace {

constexpr int dropLineWidth = 2;

} // namespace

DarkModeTableView::DarkModeTableView(QWidget *parent) : QTableView(parent)
{
    setHorizontalHeader(new StationHeader(this));
    RoomyCells::applyTo(*this);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(false); // the table draws its own
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab leads out of the table
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void DarkModeTableView::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    m_selection = nullptr;
    if (!model)
        return;
    const std::unique_ptr<QItemSelectionModel> qtsOwn(selectionModel());
    const auto *stations = qobject_cast<const StationTableModel *>(model);
    // The rows of other models stay where they are.
    const auto numberOf = [stations](int row) {
        return stations ? stations->numberOf(row) : static_cast<quintptr>(row);
    };
    m_selection = new RowSelection(*model, numberOf, this);
    setSelectionModel(m_selection);
    // Titles do not tell of selected rows, so they need not look through them when they are drawn.
    horizontalHeader()->setSelectionModel(new QItemSelectionModel(model, horizontalHeader()));
    m_markPress.watch(*model);
    // To assistive technology all cells are new ones after that.
    const auto speakCell = [this] { speakCurrentItem(this); };
    connect(model, &QAbstractItemModel::rowsMoved, this, speakCell, Qt::QueuedConnection);
    connect(model, &QAbstractItemModel::layoutChanged, this, speakCell, Qt::QueuedConnection);
}

void DarkModeTableView::setDropHandler(Validate validate, Accept accept)
{
    m_validate = std::move(validate);
    m_accept = std::move(accept);
}

void DarkModeTableView::setPlaceholderText(const QString &text)
{
    if (text == m_placeholder)
        return;
    m_placeholder = text;
    viewport()->update();
}

bool DarkModeTableView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool wasEditing = isEditing();
    const bool isTaken = QTableView::edit(index, trigger, event);
    if (isEditing() != wasEditing)
        emit editingChanged();
    return isTaken;
}

void DarkModeTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, hint);
    emit editingChanged();
}

void DarkModeTableView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && state() != EditingState)
        emit returnPressed();
    else
        QTableView::keyPressEvent(event);
}

/// By a step of the keyboard from the row beside it, for that also makes it the row from which
/// Shift extends the selection.
void DarkModeTableView::goToRow(int row)
{
    const int column = qMax(0, currentIndex().column());
    const int beside = row > 0 ? row - 1 : row + 1;
    if (beside >= model()->rowCount())
        return selectRow(row);
    selectionModel()->setCurrentIndex(model()->index(beside, column),
                                      QItemSelectionModel::NoUpdate);
    QKeyEvent step(QEvent::KeyPress, beside < row ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
    QTableView::keyPressEvent(&step);
}

/// To a cell that is in sight sideways, so that the table stays where it is in that direction.
void DarkModeTableView::scrollToRow(int row, ScrollHint hint)
{
    scrollTo(model()->index(row, qMax(0, columnAt(viewport()->width() / 2))), hint);
}

void DarkModeTableView::keyboardSearch(const QString &search)
{
    if (!search.isEmpty() && search.front().isPrint())
        emit typed(search);
}

void DarkModeTableView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = indexAt(event->position().toPoint());
        m_pressPlace = event->position().toPoint();
    }
    QTableView::mousePressEvent(event);
}

/// Only the left button drags and selects, and a slip of the hand is neither, nor is a mark missed.
void DarkModeTableView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = event->position().toPoint() - m_pressPlace;
    const bool isSlip = way.manhattanLength() <= QApplication::startDragDistance() ||
                        m_pressed.data(Qt::CheckStateRole).isValid();
    const bool isFree = event->buttons() == Qt::NoButton || state() == DragSelectingState;
    if (!isFree && (event->buttons() != Qt::LeftButton || isSlip))
        return;
    const bool isDragging = state() == DraggingState;
    QTableView::mouseMoveEvent(event);
    if (!isDragging && state() == DraggingState)
        QTableView::mouseMoveEvent(event); // the first move only made it ready
}

void DarkModeTableView::paintEvent(QPaintEvent *event)
{
    paintCells(event);
    QPainter painter(viewport());
    if (model() && model()->rowCount() == 0 && !m_placeholder.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
    }
    if (m_dropRow) {
        // With an edge on both sides, or it would not be seen beside a selected row.
        const int y = dropLinePosition();
        const int width = viewport()->width();
        painter.fillRect(0, y - 3 * dropLineWidth / 2, width, 3 * dropLineWidth,
                         palette().color(QPalette::Base));
        painter.fillRect(0, y - dropLineWidth / 2, width, dropLineWidth,
                         palette().color(QPalette::Highlight));
    }
}

/// Qt looks through all that is selected for each cell.
void DarkModeTableView::paintCells(QPaintEvent *event)
{
    if (!m_selection)
        return QTableView::paintEvent(event);
    const int last = rowAt(viewport()->height() - 1);
    const RowSelection::Excerpt shown(*m_selection, rowAt(0),
                                      last < 0 ? model()->rowCount() - 1 : last);
    QTableView::paintEvent(event);
}

/// Of many ranges hardly all lie out of sight, so Qt need not look where each lies; and to
/// assistive technology it tells of the first one only.
void DarkModeTableView::selectionChanged(const QItemSelection &selected,
                                         const QItemSelection &deselected)
{
    constexpr qsizetype many = 50;
    if (selected.size() + deselected.size() <= many)
        return QTableView::selectionChanged(selected, deselected);
    const auto firstOf = [](const QItemSelection &selection) {
        QItemSelection first;
        if (!selection.isEmpty())
            first.append(selection.front());
        return first;
    };
    QTableView::selectionChanged(firstOf(selected), firstOf(deselected));
    viewport()->update();
}

void DarkModeTableView::startDrag(Qt::DropActions)
{
    const bool isOfSelection =
        m_pressed.isValid() && selectionModel()->isRowSelected(m_pressed.row(), {});
    if (!isOfSelection || !m_pressed.flags().testFlag(Qt::ItemIsDragEnabled))
        return; // nothing is dragged by what the pointer is not on
    QModelIndexList indexes;
    for (const qsizetype row : m_selection->rows())
        indexes.append(model()->index(static_cast<int>(row), 0));
    auto *drag = new QDrag(this); // which Qt deletes
    drag->setMimeData(model()->mimeData(indexes));
    drag->setPixmap(dragPicture(*this, indexes));
    drag->setHotSpot({-12, -6});
    drag->exec(Qt::MoveAction);
}

TableDrag DarkModeTableView::filesOf(const QMimeData &data)
{
    TableDrag drag;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            drag.files.append(pathFromUrl(url));
    }
    return drag;
}

TableDrag DarkModeTableView::tableDrag(const QDropEvent &event) const
{
    TableDrag drag = filesOf(*event.mimeData());
    drag.draggedRows = StationTableModel::draggedRows(*event.mimeData());
    drag.isFromThisTable = event.source() == this;
    placeDrag(drag, event.position().toPoint().y());
    return drag;
}

void DarkModeTableView::placeDrag(TableDrag &drag, int y) const
{
    std::optional<HoveredRow> hovered;
    if (const int row = rowAt(y); row >= 0)
        hovered = {row, y - rowViewportPosition(row), rowHeight(row)};
    if (hovered && m_scroll.isScrolling()) // where each row is passed, there is always a line
        hovered->depth = 2 * hovered->depth < hovered->height ? 0 : hovered->height - 1;
    const DropPlace place = dropPlace(hovered, model() ? model()->rowCount() : 0,
                                      drag.isFromThisTable ? drag.draggedRows : QList<qsizetype>());
    drag.row = place.row;
    drag.isAboveRow = place.isAboveRow;
}

void DarkModeTableView::answer(QDropEvent &event, DragOperation operation)
{
    switch (operation) {
    case DragOperation::None:
        event.ignore();
        break;
    case DragOperation::Copy:
        event.setDropAction(Qt::CopyAction);
        event.accept();
        break;
    case DragOperation::Move:
        event.setDropAction(Qt::MoveAction);
        event.accept();
        break;
    }
}

void DarkModeTableView::dragEnterEvent(QDragEnterEvent *event)
{
    setState(DraggingState);
    // Where nothing can be dropped yet, another place of the table may still do.
    event->accept();
}

void DarkModeTableView::dragMoveEvent(QDragMoveEvent *event)
{
    m_drag = tableDrag(*event);
    m_dragHeight = event->position().toPoint().y();
    m_scroll.dragIsAt(m_dragHeight);
    const DragOperation operation = followDrag();
    // While the table scrolls under it, the answer holds for the next moment only; the drop itself
    // is looked at again.
    const bool isPassing = m_drag->isFromThisTable && m_scroll.isScrolling();
    answer(*event, isPassing ? DragOperation::Move : operation);
}

/// Shows where what is over the table would be dropped now.
DragOperation DarkModeTableView::followDrag()
{
    placeDrag(*m_drag, m_dragHeight);
    const DragOperation operation = m_validate ? m_validate(*m_drag) : DragOperation::None;
    showDropLine(operation == DragOperation::Move ? std::optional(m_drag->row) : std::nullopt);
    return operation;
}

void DarkModeTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (m_drag)
        (void)followDrag();
}

void DarkModeTableView::dragLeaveEvent(QDragLeaveEvent *event)
{
    endDrag();
    QTableView::dragLeaveEvent(event);
}

void DarkModeTableView::endDrag()
{
    m_drag.reset();
    m_scroll.stop();
    showDropLine({});
}

void DarkModeTableView::dropEvent(QDropEvent *event)
{
    const TableDrag drag = tableDrag(*event); // as the line showed it
    endDrag();
    setState(NoState);
    const DragOperation operation = m_validate ? m_validate(drag) : DragOperation::None;
    if (operation != DragOperation::None && m_accept && m_accept(drag))
        answer(*event, operation);
    else
        event->ignore();
}

void DarkModeTableView::showDropLine(std::optional<qsizetype> row)
{
    if (row == m_dropRow)
        return;
    m_dropRow = row;
    viewport()->update();
}

int DarkModeTableView::dropLinePosition() const
{
    const int row = static_cast<int>(*m_dropRow);
    if (row < model()->rowCount())
        return qMax(rowViewportPosition(row), dropLineWidth / 2);
    const int last = model()->rowCount() - 1;
    return last < 0 ? dropLineWidth / 2 : rowViewportPosition(last) + rowHeight(last);
}

} // namespace quillet
