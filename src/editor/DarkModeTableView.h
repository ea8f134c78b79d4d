#pragma once

#include "editor/DragScroll.h"
#include "editor/MarkPress.h"
#include "editor/TableDrag.h"

#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>
#include <optional>

class QPrinter;

namespace quillet {

class RowSelection;

/// The station table: whole rows, a drop line between rows only, light whenever it is printed. A
/// picture of the window shows it as it is on the screen.
class DarkModeTableView : public QTableView
{
    Q_OBJECT

public:
    using Validate = std::function<DragOperation(const TableDrag &)>;
    using Accept = std::function<bool(const TableDrag &)>;

    explicit DarkModeTableView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    /// Who says what a drag may do here, and takes a drop.
    void setDropHandler(Validate validate, Accept accept);
    /// Shown in the middle of a table without rows.
    void setPlaceholderText(const QString &text);

    /// The files that some data carries, as a drag.
    [[nodiscard]] static TableDrag filesOf(const QMimeData &data);
    /// Whether a cell is being edited.
    [[nodiscard]] bool isEditing() const { return state() == EditingState; }
    /// Makes a row that there is the current and only selected one, as the arrow keys do.
    void goToRow(int row);
    /// There is one with the first model.
    [[nodiscard]] RowSelection &rowSelection() const { return *m_selection; }
    /// Scrolls up or down alone.
    void scrollToRow(int row, ScrollHint hint = EnsureVisible);
    void keyboardSearch(const QString &search) override;

signals:
    /// Return or Enter was pressed while no cell was being edited.
    void returnPressed();
    /// Letters were typed while no cell was being edited.
    void typed(const QString &letters);
    /// Editing of a cell has begun or ended.
    void editingChanged();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void paintCells(QPaintEvent *event);
    [[nodiscard]] TableDrag tableDrag(const QDropEvent &event) const;
    void placeDrag(TableDrag &drag, int y) const;
    [[nodiscard]] DragOperation followDrag();
    void endDrag();
    void answer(QDropEvent &event, DragOperation operation);
    void showDropLine(std::optional<qsizetype> row);
    [[nodiscard]] int dropLinePosition() const;

    RowSelection *m_selection = nullptr; ///< none without a model
    Validate m_validate;
    Accept m_accept;
    QString m_placeholder;
    QPersistentModelIndex m_pressed; ///< where the left button went down
    QPoint m_pressPlace;
    std::optional<TableDrag> m_drag;    ///< what is over the table
    int m_dragHeight = 0;               ///< how far below the top of the viewport it is
    std::optional<qsizetype> m_dropRow; ///< the row below the drop line, while one is shown
    DragScroll m_scroll{*this};
    MarkPress m_markPress{*this};
};

} // namespace quillet
