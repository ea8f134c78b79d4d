#include "editor/StationTableModel.h"

#include "editor/CellFont.h"
#include "editor/CellText.h"
#include "editor/ListChange.h"
#include "editor/ViewController.h"
#include "framework/PlainToolTip.h"
#include "texts/ShownTexts.h"
#include "texts/StationColumns.h"

#include <QHash>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <set>

namespace quillet {

namespace {

/// A screen reader says nothing of an empty mark unless its text does.
QVariant markData(bool set, const StationColumn &column, int role)
{
    if (role == Qt::CheckStateRole)
        return QVariant::fromValue(set ? Qt::Checked : Qt::Unchecked);
    if (role == Qt::AccessibleTextRole)
        return qtTrId(set ? "kMarkSet" : "kMarkNotSet").arg(qtTrId(column.fullName));
    return {};
}

/// A mark that nobody can set; none where the file does not tell.
QVariant signData(std::optional<bool> set, const StationColumn &column, int role)
{
    if (!set)
        return {};
    if (role == StationTableModel::GlyphRole && *set)
        return QVariant::fromValue(column.glyph);
    if (role == Qt::ToolTipRole && *set)
        return qtTrId(column.fullName);
    return role == Qt::AccessibleTextRole ? markData(*set, column, role) : QVariant();
}

constexpr std::array fieldColumns{
    std::pair{StationField::Number, ColumnContent::Number},
    std::pair{StationField::Name, ColumnContent::Name},
    std::pair{StationField::Skipped, ColumnContent::Skipped},
    std::pair{StationField::Blocked, ColumnContent::Blocked},
};

/// The places at which two lists of one size differ, and all between them.
ListStretch difference(const StationList &a, const StationList &b)
{
    const auto first = std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin();
    const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin()).first - a.rbegin();
    return {static_cast<std::size_t>(first), a.size() - static_cast<std::size_t>(last)};
}

/// The rows, of which there may be fewer than there are stations in the list, and in another order,
/// whose stations stand in places of it.
std::vector<ListStretch> rowsOf(const std::vector<ListStretch> &places, const StationList &list,
                                const StationList &rows)
{
    const bool isWhole = places.size() == 1 && places.front() == ListStretch{0, list.size()};
    if (isWhole)
        return {{0, rows.size()}};
    if (rows == list)
        return places;
    StationList stations;
    for (const ListStretch &stretch : places)
        stations.insert(stations.end(), list.begin() + static_cast<std::ptrdiff_t>(stretch.first),
                        list.begin() + static_cast<std::ptrdiff_t>(stretch.end));
    return placesOf(stations, rows);
}

} // namespace

StationTableModel::StationTableModel(ViewController &controller, QObject *parent)
    : QAbstractTableModel(parent), m_controller(controller), m_font(cellFont())
{
    connect(&controller, &ViewController::documentChanged, this, [this] { m_satellites.reset(); });
}

void StationTableModel::setTextSize(int percent)
{
    m_font = cellFont(percent);
}

void StationTableModel::reload()
{
    takeRows();
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void StationTableModel::show(const ListChange &change)
{
    takeRows();
    if (change.list == m_controller.shown().base())
        tellFields(change);
}

/// Takes over what is on show now. Stations that stay in the rows keep their persistent indexes, so
/// that a cell that is still being edited reaches its own station or none.
void StationTableModel::takeRows()
{
    const StationList &list = m_controller.currentList();
    if (list.size() == m_rows.size()) {
        const ListStretch changed = difference(m_rows, list);
        if (changed.isEmpty() || moveBlock(list, changed) || rearrange(list))
            return;
    }
    beginResetModel();
    m_rows = list;
    endResetModel();
}

/// The usual case: one block of neighbours and the rows that it passed changed places. False for
/// anything else.
bool StationTableModel::moveBlock(const StationList &list, const ListStretch &changed)
{
    const auto at = [](auto begin, std::size_t place) {
        return begin + static_cast<std::ptrdiff_t>(place);
    };
    const auto first = at(m_rows.begin(), changed.first), end = at(m_rows.begin(), changed.end);
    const auto block = std::find(first, end, list[changed.first]);
    const auto given = at(list.begin(), changed.first);
    if (!std::equal(block, end, given) || !std::equal(first, block, given + (end - block)))
        return false;
    const auto row = [this](auto place) { return static_cast<int>(place - m_rows.begin()); };
    if (!beginMoveRows({}, row(block), row(end) - 1, {}, row(first)))
        return false;
    std::rotate(first, block, end);
    endMoveRows();
    return true;
}

/// The same stations in any other order, each of them once. False when they are others.
bool StationTableModel::rearrange(const StationList &list)
{
    QHash<const LGStation *, int> rowsNow;
    rowsNow.reserve(static_cast<qsizetype>(list.size()));
    for (const StationPtr &station : list)
        rowsNow.insert(station.get(), static_cast<int>(rowsNow.size()));
    const bool areSame =
        static_cast<std::size_t>(rowsNow.size()) == list.size() &&
        std::all_of(m_rows.begin(), m_rows.end(), [&rowsNow](const StationPtr &station) {
            return rowsNow.contains(station.get());
        });
    if (!areSame)
        return false;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &each : before) {
        const StationPtr &station = m_rows[static_cast<std::size_t>(each.row())];
        after.append(index(rowsNow.value(station.get()), each.column()));
    }
    m_rows = list;
    changePersistentIndexList(before, after);
    emit layoutChanged();
    return true;
}

void StationTableModel::tellFields(const ListChange &change)
{
    const std::vector<ListStretch> rows = rowsOf(change.places, *change.list, m_rows);
    if (change.fields.testFlag(StationField::All)) {
        for (const ListStretch &stretch : rows)
            tellCells(stretch, 0, columnCount() - 1);
        return;
    }
    for (const auto &[field, content] : fieldColumns) {
        if (!change.fields.testFlag(field))
            continue;
        const int column = columnOf(content);
        for (const ListStretch &stretch : rows) {
            if (field == StationField::Skipped) // which every cell of the row tells
                tellCells(stretch, 0, columnCount() - 1);
            else
                tellCells(stretch, column, column);
        }
    }
}

void StationTableModel::tellCells(const ListStretch &rows, int firstColumn, int lastColumn)
{
    if (!rows.isEmpty()) {
        emit dataChanged(index(static_cast<int>(rows.first), firstColumn),
                         index(static_cast<int>(rows.end) - 1, lastColumn));
    }
}

quintptr StationTableModel::numberOf(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < m_rows.size() ? reinterpret_cast<quintptr>(m_rows[place].get()) : 0;
}

int StationTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int StationTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(stationColumns.size());
}

QVariant StationTableModel::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_rows.size())
        return {};
    const LGStation &station = *m_rows[row];
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(index.column()));
    if (role == Qt::FontRole)
        return m_font;
    if (role == SkippedRole)
        return station.isSkipped();
    switch (column.content) {
    case ColumnContent::Skipped:
        return markData(station.isSkipped(), column, role);
    case ColumnContent::Blocked:
        return markData(station.isBlocked(), column, role);
    case ColumnContent::Encrypted:
        return signData(station.isEncrypted(), column, role);
    case ColumnContent::Hidden:
        return signData(station.isInvisible(), column, role);
    case ColumnContent::Name:
        if (role == Qt::EditRole)
            return station.shownName();
        if (role == Qt::ToolTipRole)
            return plainToolTip(drawnName(station));
        [[fallthrough]];
    default:
        return textData(station, column, role);
    }
}

QVariant StationTableModel::textData(const LGStation &station, const StationColumn &column,
                                     int role) const
{
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    switch (column.content) {
    case ColumnContent::Number:
        return role == Qt::DisplayRole || role == Qt::EditRole ? station.progNumString()
                                                               : QVariant();
    case ColumnContent::Name:
        return role == Qt::DisplayRole ? drawnName(station) : QVariant();
    case ColumnContent::Type:
        return role == Qt::DisplayRole ? station.channelTypeForDisplay(m_controller.source())
                                       : QVariant();
    default:
        return role == Qt::DisplayRole ? detailText(station, column.content, satellites())
                                       : QVariant();
    }
}

const SatelliteNames &StationTableModel::satellites() const
{
    if (!m_satellites)
        m_satellites = m_controller.satelliteNames();
    return *m_satellites;
}

bool StationTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const bool isCheck = role == Qt::CheckStateRole;
    if (!index.isValid() || (!isCheck && role != Qt::EditRole))
        return false;
    const QVariant edited =
        isCheck ? QVariant(value.value<Qt::CheckState>() == Qt::Checked) : value;
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(index.column()));
    m_controller.setObjectValue(edited, column.identifier, index.row());
    return true; // what it changed has been told
}

QVariant StationTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(section));
    switch (role) {
    case Qt::DisplayRole:
        return qtTrId(column.title);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return qtTrId(column.fullName);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    case GlyphRole:
        return QVariant::fromValue(column.glyph);
    default:
        return {};
    }
}

Qt::ItemFlags StationTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    flags |= Qt::ItemNeverHasChildren;
    if (m_controller.shown().areForeign())
        return flags;
    flags |= Qt::ItemIsDragEnabled;
    switch (stationColumns.at(static_cast<std::size_t>(index.column())).content) {
    case ColumnContent::Number:
        flags |= Qt::ItemIsEditable;
        break;
    case ColumnContent::Name:
        flags.setFlag(Qt::ItemIsEditable, m_nameIsEditable);
        break;
    case ColumnContent::Skipped:
    case ColumnContent::Blocked:
        flags |= Qt::ItemIsUserCheckable;
        break;
    default:
        break;
    }
    return flags;
}

QStringList StationTableModel::mimeTypes() const
{
    return {TLLDocument::typeIdentifier()};
}

QMimeData *StationTableModel::mimeData(const QModelIndexList &indexes) const
{
    std::set<int> rows;
    for (const QModelIndex &index : indexes)
        rows.insert(index.row());
    QByteArrayList texts;
    for (const int row : rows)
        texts.append(QByteArray::number(row));
    auto *data = new QMimeData;
    data->setData(TLLDocument::typeIdentifier(), texts.join(' '));
    return data;
}

QList<qsizetype> StationTableModel::draggedRows(const QMimeData &data)
{
    QList<qsizetype> rows;
    for (const QByteArray &text : data.data(TLLDocument::typeIdentifier()).split(' ')) {
        bool isNumber = false;
        const int row = text.toInt(&isNumber);
        if (isNumber)
            rows.append(row);
    }
    return rows;
}

} // namespace quillet
