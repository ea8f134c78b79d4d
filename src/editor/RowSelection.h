#pragma once

#include <QBitArray>
#include <QItemSelectionModel>
#include <QSet>

#include <functional>

namespace quillet {

/// The selection of a table whose whole rows are selected, a bit for each row. Qt keeps ranges and
/// compares each with each, so that rows selected here and there would take time with the square of
/// their number; here they are changed as bits, and Qt is told what has come of it. The rows of the
/// model may change places or be all replaced, but not come and go one by one.
class RowSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    class Excerpt;

    /// A number that the row has and no other, wherever it stands.
    using NumberOf = std::function<quintptr(int row)>;

    RowSelection(QAbstractItemModel &model, NumberOf numberOf, QObject *parent = nullptr);

    using QItemSelectionModel::select;
    /// Any cell stands for its row.
    void select(const QItemSelection &selection, SelectionFlags command) override;
    /// Selects exactly those of the rows that there are.
    void selectRows(const QList<qsizetype> &rows);
    /// Those that are selected, ascending.
    [[nodiscard]] QList<qsizetype> rows() const;

private:
    using Numbers = QSet<quintptr>;

    void change(const QBitArray &rows);
    void rowsWillMove();
    void rowsHaveMoved();
    [[nodiscard]] Numbers numbersOf(const QBitArray &rows) const;
    [[nodiscard]] QBitArray rowsOf(const Numbers &numbers) const;
    [[nodiscard]] QItemSelection ranges(const QBitArray &rows) const;
    void tellQt(const QItemSelection &selection);

    QBitArray m_rows;
    QBitArray m_settled;     ///< without what is just being selected, such as with the mouse
    QItemSelection m_ranges; ///< the same as m_rows
    Numbers m_movingRows;    ///< while rows change places
    Numbers m_movingSettled; ///< the same
    NumberOf m_numberOf;
};

/// While it lives, Qt knows of nothing that is selected but what is in some neighbouring rows,
/// where it looks for each cell that it draws.
class RowSelection::Excerpt
{
public:
    Excerpt(RowSelection &selection, int firstRow, int lastRow);
    ~Excerpt();
    Q_DISABLE_COPY_MOVE(Excerpt)

private:
    RowSelection &m_selection;
    bool m_isNeeded;
};

} // namespace quillet
