#include "editor/ComparisonTable.h"

#include "editor/CheckMarkDelegate.h"
#include "editor/RowSelection.h"
#include "editor/TableColumns.h"
#include "editor/TableSelection.h"
#include "editor/TypedTextDelegate.h"
#include "texts/RowTexts.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

constexpr int rowsMeasured = 300; // the widths of the others will not be much larger
constexpr int lettersOfName = 12; // that tell most names apart
constexpr int leastRows = 2;      // on show whatever else needs room

} // namespace

ComparisonTable::ComparisonTable(StationComparison &comparison, QWidget *parent)
    : DarkModeTableView(parent), m_comparison(comparison), m_model(comparison)
{
    setObjectName(QStringLiteral("compareTable"));
    setAccessibleName(qtTrId("kCompareTable"));
    setModel(&m_model);
    setAcceptDrops(false);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new TypedTextDelegate(this));
    setItemDelegateForColumn(ComparisonModel::Check, new CheckMarkDelegate(this));
    setColumnHidden(ComparisonModel::Check, comparison.purpose() == ComparedWith::Purpose::Order);
    // What is pasted gets numbers by its new place.
    setColumnHidden(ComparisonModel::NumberThere,
                    comparison.purpose() == ComparedWith::Purpose::Paste);
    horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int, int before, int now) {
                const bool isShownOrHidden = before == 0 || now == 0;
                m_isSizedByHand = m_isSizedByHand || !(m_isFitting || isShownOrHidden);
            });
    if (comparison.purpose() == ComparedWith::Purpose::Compare) // elsewhere it goes on
        connect(this, &DarkModeTableView::returnPressed, this, &ComparisonTable::reveal);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.column() != ComparisonModel::Check)
            reveal();
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ComparisonTable::selectedRowsChanged);
    connect(&comparison, &StationComparison::rowsAboutToChange, this,
            &ComparisonTable::keepSelection);
    connect(&comparison, &StationComparison::rowsChanged, this, &ComparisonTable::restoreSelection);
    restoreSelection();
}

/// Its model goes before what listens to the selection.
ComparisonTable::~ComparisonTable()
{
    selectionModel()->disconnect(this);
}

void ComparisonTable::setTextSize(int percent)
{
    m_model.setTextSize(percent);
    sizeText(*this, percent);
    setMinimumHeight(horizontalHeader()->sizeHint().height() +
                     leastRows * verticalHeader()->defaultSectionSize() +
                     horizontalScrollBar()->sizeHint().height() + 2 * frameWidth());
    measureColumns();
    fitColumns();
}

void ComparisonTable::measureColumns()
{
    QHeaderView &header = *horizontalHeader();
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < ComparisonModel::columns; ++column)
        m_wanted[column] = qMax(header.sectionSizeHint(column), sizeHintForColumn(column));
    // The same whichever rows are on show.
    int &list = m_wanted[ComparisonModel::List];
    for (const StationComparison::List &each : m_comparison.lists())
        list = qMax(list, fontMetrics().horizontalAdvance(shortTitleOf(each)) + 2 * letter);
    for (const int column : {ComparisonModel::NumberHere, ComparisonModel::NumberThere})
        m_wanted[column] = qMax(m_wanted.at(column), 7 * letter);
}

/// What the narrow columns leave goes to the difference first, but for what tells names apart; the
/// names share the rest, and what one of them does not need is the other's.
void ComparisonTable::fitColumns()
{
    if (m_isSizedByHand)
        return;
    QHeaderView &header = *horizontalHeader();
    QList<int> widths = m_wanted;
    int left = viewport()->width();
    for (int column = 0; column < ComparisonModel::NameHere; ++column)
        left -= header.isSectionHidden(column) ? 0 : m_wanted.at(column);
    std::array names{ComparisonModel::NameHere, ComparisonModel::NameThere};
    const int telling = lettersOfName * fontMetrics().averageCharWidth();
    for (const int column : names) {
        widths[column] = qMax(header.sectionSizeHint(column), qMin(m_wanted.at(column), telling));
        left -= widths.at(column);
    }
    int &difference = widths[ComparisonModel::Difference];
    difference = qMin(difference, qMax(header.sectionSizeHint(ComparisonModel::Difference), left));
    left -= difference;
    const auto missing = [&](int column) { return m_wanted.at(column) - widths.at(column); };
    if (missing(names.front()) > missing(names.back()))
        std::swap(names.front(), names.back());
    int others = names.size();
    for (const int column : names) {
        const int more = qMin(missing(column), qMax(0, left) / others--);
        widths[column] += more;
        left -= more;
    }
    if (left > 0) {
        widths[ComparisonModel::NameHere] += left / 2;
        widths[ComparisonModel::NameThere] += left - left / 2;
    }
    m_isFitting = true;
    for (int column = 0; column < ComparisonModel::columns; ++column)
        header.resizeSection(column, widths.at(column));
    m_isFitting = false;
}

void ComparisonTable::resizeEvent(QResizeEvent *event)
{
    DarkModeTableView::resizeEvent(event);
    fitColumns();
}

std::vector<std::size_t> ComparisonTable::selected() const
{
    const QList<qsizetype> rows = rowSelection().rows();
    return {rows.begin(), rows.end()};
}

void ComparisonTable::focusRows()
{
    setFocus();
    if (selectionModel()->hasSelection() || m_model.rowCount() == 0)
        return;
    // To the name: a mark need not be there, and says nothing of the station.
    const QModelIndex name =
        m_model.index(qMax(0, currentIndex().row()), ComparisonModel::NameHere);
    selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
    goToRow(name.row());
    selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
}

QString ComparisonTable::currentMark() const
{
    return currentIndex()
        .siblingAtColumn(ComparisonModel::Check)
        .data(Qt::AccessibleTextRole)
        .toString();
}

/// Wherever in the row the current cell is. A Return that was meant for something else and is held
/// down is none.
void ComparisonTable::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->isAutoRepeat())
        return;
    const bool isSpace = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (!isSpace || event->modifiers())
        return DarkModeTableView::keyPressEvent(event);
    if (!event->isAutoRepeat())
        m_comparison.toggle(selected());
}

/// Those selected, of the list that the current row is of.
void ComparisonTable::reveal()
{
    std::vector<std::size_t> rows = selected();
    const int current = currentIndex().row();
    if (current >= 0)
        rows.insert(rows.begin(), static_cast<std::size_t>(current));
    m_comparison.reveal(rows);
}

ComparisonTable::RowKey ComparisonTable::keyOf(std::size_t row) const
{
    const ComparisonRow &shown = m_comparison.row(row);
    return {shown.here.get(), shown.there.get(), shown.here ? 0 : shown.placeThere};
}

void ComparisonTable::keepSelection()
{
    const std::vector<std::size_t> rows = selected();
    if (!rows.empty() || !m_areSelectedHidden)
        m_selectedKeys.clear();
    for (const std::size_t row : rows)
        m_selectedKeys.push_back(keyOf(row));
    std::sort(m_selectedKeys.begin(), m_selectedKeys.end());
    if (const QModelIndex current = currentIndex(); current.isValid()) {
        m_currentRow = current.row();
        m_currentColumn = current.column();
        const RowKey key = keyOf(static_cast<std::size_t>(m_currentRow));
        m_currentKey = m_standIn == key ? m_currentKey : key;
    }
    m_scrolled = verticalScrollBar()->value();
}

void ComparisonTable::restoreSelection()
{
    QList<qsizetype> rows;
    for (std::size_t row = 0; row < m_comparison.rowCount(); ++row) {
        if (std::binary_search(m_selectedKeys.begin(), m_selectedKeys.end(), keyOf(row)))
            rows.append(static_cast<qsizetype>(row));
    }
    m_areSelectedHidden = rows.isEmpty() && !m_selectedKeys.empty();
    selectRows(*this, rows);
    restoreCurrent();
    verticalScrollBar()->setValue(m_scrolled);
    const bool isOrdered =
        m_comparison.purpose() != ComparedWith::Purpose::Compare || m_comparison.isSameOrder();
    setPlaceholderText(!m_comparison.isEmpty() ? qtTrId("kCompareNoneShown")
                       : isOrdered             ? qtTrId("kCompareEmpty")
                                               : qtTrId("kDiffOrder") + u'.');
    setColumnHidden(ComparisonModel::List,
                    m_comparison.lists().size() < 2 || m_comparison.filter().list().has_value());
    measureColumns();
    fitColumns();
}

/// While its station is not on show, the row that stands there now.
void ComparisonTable::restoreCurrent()
{
    m_standIn.reset();
    const int count = m_model.rowCount();
    if (m_currentRow < 0 || count == 0)
        return;
    int row = 0;
    while (row < count && keyOf(static_cast<std::size_t>(row)) != m_currentKey)
        ++row;
    if (row == count) {
        row = qMin(m_currentRow, count - 1);
        m_standIn = keyOf(static_cast<std::size_t>(row));
    }
    selectionModel()->setCurrentIndex(m_model.index(row, m_currentColumn),
                                      QItemSelectionModel::NoUpdate);
}

} // namespace quillet
