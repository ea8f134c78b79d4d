#include "editor/DarkModeTableView.h"

#include "editor/RoomyCells.h"
#include "editor/StationTableModel.h"
#include "files/FileNames.h"

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
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(false);
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

void DarkModeTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (model() && model()->rowCount() == 0 && !m_placeholder.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
    }
    if (m_dropRow) {
        const int y = dropLinePosition();
        painter.setPen(QPen(palette().color(QPalette::Highlight), dropLineWidth));
        painter.drawLine(0, y, viewport()->width(), y);
    }
}

/// The platform's own picture of a drag, all rows in full, would cover the place they are dropped
/// at; this is one small label beside the pointer.
QPixmap DarkModeTableView::dragPicture(const QModelIndexList &rows) const
{
    const auto count = static_cast<int>(rows.size());
    const QString text = count == 1 ? rows.front().siblingAtColumn(1).data().toString()
                                    : QStringLiteral("%1 %2").arg(QString::number(count),
                                                                  qtTrId("kStations", count));
    const QFontMetrics metrics = fontMetrics();
    const QSize size(metrics.horizontalAdvance(text) + 2 * metrics.height(),
                     metrics.height() * 3 / 2);
    QPixmap picture(size * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    const QRect shape(QPoint(), size);
    painter.drawRoundedRect(shape, size.height() / 2.0, size.height() / 2.0);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(shape, Qt::AlignCenter, text);
    return picture;
}

void DarkModeTableView::startDrag(Qt::DropActions)
{
    const QModelIndexList indexes = selectionModel()->selectedRows();
    if (indexes.isEmpty())
        return;
    auto *drag = new QDrag(this); // which Qt deletes
    drag->setMimeData(model()->mimeData(indexes));
    drag->setPixmap(dragPicture(indexes));
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
    drag.isAboveRow = true; // a drop onto a row counts for the nearer gap
    const int y = event.position().toPoint().y();
    const int row = rowAt(y);
    if (row < 0)
        drag.row = model() ? model()->rowCount() : 0;
    else
        drag.row = y < rowViewportPosition(row) + rowHeight(row) / 2 ? row : row + 1;
    return drag;
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
    QTableView::dragMoveEvent(event); // scrolls at the edges
    const TableDrag drag = tableDrag(*event);
    const DragOperation operation = m_validate ? m_validate(drag) : DragOperation::None;
    showDropLine(operation == DragOperation::Move ? std::optional(drag.row) : std::nullopt);
    answer(*event, operation);
}

void DarkModeTableView::dragLeaveEvent(QDragLeaveEvent *event)
{
    showDropLine({});
    QTableView::dragLeaveEvent(event);
}

void DarkModeTableView::dropEvent(QDropEvent *event)
{
    showDropLine({});
    stopAutoScroll();
    setState(NoState);
    const TableDrag drag = tableDrag(*event);
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
