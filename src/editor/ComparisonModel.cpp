#include "editor/ComparisonModel.h"

#include "editor/CellFont.h"
#include "editor/StationComparison.h"
#include "framework/PlainToolTip.h"
#include "texts/RowTexts.h"
#include "texts/ShownTexts.h"

#include <array>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

bool isNumber(int column)
{
    return column == ComparisonModel::NumberHere || column == ComparisonModel::NumberThere;
}

std::array<const char *, ComparisonModel::columns> titlesFor(Purpose purpose)
{
    const bool isPaste = purpose == Purpose::Paste;
    return {isPaste ? "kCompareMove" : "kCompareTake",
            "kCompareList",
            "kColumnNumber",
            purpose == Purpose::Order ? "kCompareNumberNew" : "kCompareNumberThere",
            "kColumnName",
            isPaste ? "kCompareClipboard" : "kCompareNameThere",
            "kCompareDifference"};
}

} // namespace

ComparisonModel::ComparisonModel(StationComparison &comparison, QObject *parent)
    : QAbstractTableModel(parent), m_comparison(comparison),
      m_titles(titlesFor(comparison.purpose()))
{
    connect(&comparison, &StationComparison::rowsAboutToChange, this,
            [this] { beginResetModel(); });
    connect(&comparison, &StationComparison::rowsChanged, this, [this] { endResetModel(); });
    connect(&comparison, &StationComparison::choiceChanged, this, [this] {
        if (rowCount() > 0)
            emit dataChanged(index(0, Check), index(rowCount() - 1, Difference));
    });
}

void ComparisonModel::setTextSize(int percent)
{
    m_font = cellFont(percent);
}

int ComparisonModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_comparison.rowCount());
}

int ComparisonModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ComparisonModel::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_comparison.rowCount())
        return {};
    switch (role) {
    case Qt::FontRole:
        return m_font;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    case Qt::DisplayRole:
        return index.column() == Check ? QVariant() : textAt(row, index.column());
    case Qt::ToolTipRole:
        return isNumber(index.column()) || index.column() == Check
                   ? QVariant()
                   : plainToolTip(textAt(row, index.column()));
    default:
        return index.column() == Check ? checkData(row, role) : QVariant();
    }
}

/// A screen reader says nothing of an empty mark unless its text does.
QVariant ComparisonModel::checkData(std::size_t row, int role) const
{
    if (!m_comparison.canBeChecked(row))
        return role == Qt::AccessibleTextRole ? qtTrId("kMarkNone") : QVariant();
    const bool isChecked = m_comparison.isChecked(row);
    if (role == Qt::CheckStateRole)
        return QVariant::fromValue(isChecked ? Qt::Checked : Qt::Unchecked);
    if (role == Qt::AccessibleTextRole)
        return qtTrId(isChecked ? "kMarkSet" : "kMarkNotSet").arg(qtTrId(m_titles[Check]));
    return {};
}

QString ComparisonModel::textAt(std::size_t row, int column) const
{
    const ComparisonRow &shown = m_comparison.row(row);
    switch (column) {
    case List:
        return shortTitleOf({shown.isTV, shown.source});
    case NumberHere:
        return shown.here ? shown.here->progNumString() : QString();
    case NumberThere:
        return shortened(shown.numberThere, longestNameShown);
    case NameHere:
        return drawnName(shown.nameHere);
    case NameThere:
        return drawnName(shown.nameThere);
    case Difference:
        return textOf(shown, m_comparison.purpose());
    default:
        return {};
    }
}

bool ComparisonModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || index.column() != Check || role != Qt::CheckStateRole ||
        row >= m_comparison.rowCount() || !m_comparison.canBeChecked(row))
        return false;
    m_comparison.check({row}, value.value<Qt::CheckState>() == Qt::Checked);
    return true; // which it has told
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columns)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((isNumber(section) ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return qtTrId(m_titles.at(static_cast<std::size_t>(section)));
    return {};
}

Qt::ItemFlags ComparisonModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    flags |= Qt::ItemNeverHasChildren;
    const auto row = static_cast<std::size_t>(index.row());
    flags.setFlag(Qt::ItemIsUserCheckable, index.column() == Check &&
                                               row < m_comparison.rowCount() &&
                                               m_comparison.canBeChecked(row));
    return flags;
}

} // namespace quillet
