#include "editor/RowSelection.h"

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillet {

namespace {

constexpr int fewRanges = 16; ///< among which Qt looks for a cell in no time

QBitArray rowsIn(const QItemSelection &selection, int count)
{
    QBitArray rows(count);
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid())
            rows.fill(true, range.top(), qMin(range.bottom() + 1, count));
    }
    return rows;
}

} // namespace

/// It hears of changes of the model before Qt's part does, which would follow each cell.
RowSelection::RowSelection(QAbstractItemModel &model, NumberOf numberOf, QObject *parent)
    : QItemSelectionModel(nullptr, parent), m_numberOf(std::move(numberOf))
{
    connect(&model, &QAbstractItemModel::rowsAboutToBeMoved, this, &RowSelection::rowsWillMove);
    connect(&model, &QAbstractItemModel::rowsMoved, this, &RowSelection::rowsHaveMoved);
    connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, this, &RowSelection::rowsWillMove);
    connect(&model, &QAbstractItemModel::layoutChanged, this, &RowSelection::rowsHaveMoved);
    setModel(&model);
}

void RowSelection::select(const QItemSelection &selection, SelectionFlags command)
{
    if (!model() || command == NoUpdate)
        return;
    const int count = model()->rowCount();
    m_rows.resize(count); // there may be others by now, of which none is selected
    m_settled.resize(count);
    if (command.testFlag(Clear))
        m_settled.fill(false);
    else if (!command.testFlag(Current))
        m_settled = m_rows;
    const QBitArray chosen = rowsIn(selection, count);
    if (command.testFlag(Toggle))
        change(m_settled ^ chosen);
    else if (command.testFlag(Deselect))
        change(m_settled & ~chosen);
    else if (command.testFlag(Select))
        change(m_settled | chosen);
    else if (command.testFlag(Clear))
        change(m_settled);
}

void RowSelection::selectRows(const QList<qsizetype> &rows)
{
    const int count = model()->rowCount();
    m_rows.resize(count);
    m_settled = QBitArray(count);
    QBitArray chosen(count);
    for (const qsizetype row : rows) {
        if (row < count)
            chosen.setBit(row);
    }
    change(chosen);
}

QList<qsizetype> RowSelection::rows() const
{
    QList<qsizetype> rows;
    rows.reserve(m_rows.count(true));
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (m_rows.testBit(row))
            rows.append(row);
    }
    return rows;
}

void RowSelection::change(const QBitArray &rows)
{
    const QBitArray before = std::exchange(m_rows, rows);
    if (m_rows == before)
        return;
    const QItemSelection rangesBefore = std::exchange(m_ranges, ranges(m_rows));
    tellQt(m_ranges);
    const bool haveCommon = (m_rows & before).count(true) > 0;
    emit selectionChanged(haveCommon ? ranges(m_rows & ~before) : m_ranges,
                          haveCommon ? ranges(before & ~m_rows) : rangesBefore);
}

/// One for each run of neighbours.
QItemSelection RowSelection::ranges(const QBitArray &rows) const
{
    QItemSelection selection;
    const int lastColumn = model()->columnCount() - 1;
    const auto count = static_cast<int>(rows.size());
    for (int row = 0; row < count; ++row) {
        if (!rows.testBit(row))
            continue;
        const int first = row;
        while (row + 1 < count && rows.testBit(row + 1))
            ++row;
        selection.append({model()->index(first, 0), model()->index(row, lastColumn)});
    }
    return selection;
}

/// From nothing, for then it compares nothing.
void RowSelection::tellQt(const QItemSelection &selection)
{
    const QSignalBlocker toldAlready(this);
    QItemSelectionModel::select(QItemSelection(), Clear);
    if (!selection.isEmpty())
        QItemSelectionModel::select(selection, Select);
}

void RowSelection::rowsWillMove()
{
    m_movingRows = numbersOf(m_rows);
    m_movingSettled = numbersOf(m_settled);
    m_ranges.clear();
    tellQt(m_ranges);
}

void RowSelection::rowsHaveMoved()
{
    m_rows = rowsOf(std::exchange(m_movingRows, {}));
    m_settled = rowsOf(std::exchange(m_movingSettled, {}));
    m_ranges = ranges(m_rows);
    tellQt(m_ranges);
}

RowSelection::Numbers RowSelection::numbersOf(const QBitArray &rows) const
{
    Numbers numbers;
    numbers.reserve(rows.count(true));
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        if (rows.testBit(row))
            numbers.insert(m_numberOf(row));
    }
    return numbers;
}

QBitArray RowSelection::rowsOf(const Numbers &numbers) const
{
    const int count = model()->rowCount();
    QBitArray rows(count);
    for (int row = 0; row < count && !numbers.isEmpty(); ++row)
        rows.setBit(row, numbers.contains(m_numberOf(row)));
    return rows;
}

RowSelection::Excerpt::Excerpt(RowSelection &selection, int firstRow, int lastRow)
    : m_selection(selection), m_isNeeded(selection.m_ranges.size() > fewRanges)
{
    if (!m_isNeeded)
        return;
    QItemSelection shown;
    const auto isThere = [=](const QItemSelectionRange &range) {
        return range.bottom() >= firstRow && range.top() <= lastRow;
    };
    std::copy_if(selection.m_ranges.cbegin(), selection.m_ranges.cend(), std::back_inserter(shown),
                 isThere);
    selection.tellQt(shown);
}

RowSelection::Excerpt::~Excerpt()
{
    if (m_isNeeded)
        m_selection.tellQt(m_selection.m_ranges);
}

} // namespace quillet
