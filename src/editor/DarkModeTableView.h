#pragma once

#include "editor/TableDrag.h"

#include <QTableView>

#include <functional>
#include <optional>

class QPrinter;

namespace quillet {

/// The station table: whole rows, a drop line between rows only, light whenever it is printed. A
/// picture of the window shows it as it is on the screen.
class DarkModeTableView : public QTableView
{
    Q_OBJECT

public:
    using Validate = std::function<DragOperation(const TableDrag &)>;
    using Accept = std::function<bool(const TableDrag &)>;

    explicit DarkModeTableView(QWidget *parent = nullptr);

    /// Who says what a drag may do here, and takes a drop.
    void setDropHandler(Validate validate, Accept accept);
    /// Shown in the middle of a table without rows.
    void setPlaceholderText(const QString &text);

    /// The files that some data carries, as a drag.
    [[nodiscard]] static TableDrag filesOf(const QMimeData &data);
    /// Whether a cell is being edited.
    [[nodiscard]] bool isEditing() const { return state() == EditingState; }

signals:
    /// Return or Enter was pressed while no cell was being edited.
    void returnPressed();
    /// Editing of a cell has begun or ended.
    void editingChanged();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    [[nodiscard]] QPixmap dragPicture(const QModelIndexList &rows) const;
    [[nodiscard]] TableDrag tableDrag(const QDropEvent &event) const;
    void answer(QDropEvent &event, DragOperation operation);
    void showDropLine(std::optional<qsizetype> row);
    [[nodiscard]] int dropLinePosition() const;

    Validate m_validate;
    Accept m_accept;
    QString m_placeholder;
    std::optional<qsizetype> m_dropRow; ///< the row below the drop line, while one is shown
};

} // namespace quillet
