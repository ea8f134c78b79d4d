#include "editor/DarkModeTableView.h"

#include "editor/StationTableModel.h"
#include "editor/TablePrinter.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QPrinter>
#include <QProxyStyle>
#include <QUrl>

namespace quillet {

namespace {

constexpr int dropLineWidth = 2;

/// The platform's style with more room at the sides of cells and column titles.
class RoomyCells : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        constexpr int room = 6;
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? usual + room : usual;
    }
};

} // namespace

DarkModeTableView::DarkModeTableView(QWidget *parent) : QTableView(parent)
{
    auto *roomy = new RoomyCells;
    roomy->setParent(this);
    setStyle(roomy);
    horizontalHeader()->setStyle(roomy);
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

void DarkModeTableView::print(QPrinter &printer, const QString &title)
{
    TablePrinter(*this, title).print(printer);
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

TableDrag DarkModeTableView::tableDrag(const QDropEvent &event) const
{
    TableDrag drag;
    const QList<QUrl> urls = event.mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            drag.files.append(url.toLocalFile());
    }
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
