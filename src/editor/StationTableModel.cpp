#include "editor/StationTableModel.h"

#include "editor/CellFont.h"
#include "editor/StationColumns.h"
#include "editor/ViewController.h"

#include <QMimeData>

#include <set>

namespace quillet {

namespace {

QVariant checkMark(bool set)
{
    return QVariant::fromValue(set ? Qt::Checked : Qt::Unchecked);
}

} // namespace

StationTableModel::StationTableModel(ViewController &controller, QObject *parent)
    : QAbstractTableModel(parent), m_controller(controller), m_font(cellFont())
{
}

void StationTableModel::reload()
{
    m_typedNames.clear();
    const StationList &list = m_controller.currentList();
    std::vector<const LGStation *> shown;
    shown.reserve(list.size());
    for (const StationPtr &station : list)
        shown.push_back(station.get());
    const auto rows = static_cast<int>(shown.size());
    // Where other stations come into the rows, a cell still being edited must not reach them. An
    // edit that has just been taken over may move its station.
    const bool isSame = rows == m_rows && rows > 0 && (m_isEditing || shown == m_shown);
    m_shown = std::move(shown);
    if (isSame) {
        emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int StationTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int StationTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(stationColumns.size());
}

QVariant StationTableModel::data(const QModelIndex &index, int role) const
{
    const StationList &list = m_controller.currentList();
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= list.size())
        return {};
    const LGStation &station = *list[row];
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(index.column()));
    if (role == Qt::FontRole)
        return m_font;
    const bool isText = role == Qt::DisplayRole;
    switch (column.content) {
    case ColumnContent::Number:
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return isText || role == Qt::EditRole ? station.progNumString() : QVariant();
    case ColumnContent::Name:
        if (!isText && role != Qt::EditRole && role != Qt::ToolTipRole)
            return {};
        return m_typedNames.contains(index.row()) ? m_typedNames[index.row()]
                                                  : station.stationName();
    case ColumnContent::Type:
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::AlignCenter);
        return isText ? station.channelTypeForDisplay(m_controller.source()) : QVariant();
    case ColumnContent::Skipped:
        return role == Qt::CheckStateRole ? checkMark(station.isSkipped()) : QVariant();
    case ColumnContent::Blocked:
        return role == Qt::CheckStateRole ? checkMark(station.isBlocked()) : QVariant();
    }
    return {};
}

bool StationTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.row() >= m_rows)
        return false;
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(index.column()));
    const bool isCheck = role == Qt::CheckStateRole;
    if (!isCheck && role != Qt::EditRole)
        return false;
    const QVariant edited =
        isCheck ? QVariant(value.value<Qt::CheckState>() == Qt::Checked) : value;
    if (column.content == ColumnContent::Name)
        m_typedNames[index.row()] = value.toString();
    m_isEditing = true;
    m_controller.setObjectValue(edited, column.identifier, index.row());
    m_isEditing = false;
    if (index.row() < m_rows)
        emit dataChanged(index, index);
    return true;
}

QVariant StationTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const StationColumn &column = stationColumns.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole)
        return qtTrId(column.title);
    if (role == Qt::TextAlignmentRole) {
        const bool isNumber = column.content == ColumnContent::Number;
        const bool isName = column.content == ColumnContent::Name;
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber ? Qt::AlignRight
                                                       : isName ? Qt::AlignLeft
                                                                : Qt::AlignHCenter));
    }
    return {};
}

Qt::ItemFlags StationTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    flags |= Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    switch (stationColumns.at(static_cast<std::size_t>(index.column())).content) {
    case ColumnContent::Number:
        flags |= Qt::ItemIsEditable;
        break;
    case ColumnContent::Name:
        flags.setFlag(Qt::ItemIsEditable, m_nameIsEditable);
        break;
    case ColumnContent::Type:
        break;
    case ColumnContent::Skipped:
    case ColumnContent::Blocked:
        flags |= Qt::ItemIsUserCheckable;
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
