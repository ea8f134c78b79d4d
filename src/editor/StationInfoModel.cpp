#include "editor/StationInfoModel.h"

#include "editor/CellFont.h"
#include "editor/CellText.h"
#include "framework/PlainToolTip.h"
#include "texts/ShownTexts.h"

namespace quillet {

StationInfoModel::StationInfoModel(StationInfo info, QObject *parent)
    : QAbstractTableModel(parent), m_info(std::move(info))
{
}

int StationInfoModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_info.fields().size());
}

int StationInfoModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant StationInfoModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::FontRole)
        return cellFont();
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole)
        return {};
    if (role == Qt::EditRole)
        return index.column() == Field ? m_info.fields().at(index.row())
                                       : m_info.content(index.row());
    const QString drawn = index.column() == Field ? drawnContent(m_info.fields().at(index.row()))
                                                  : m_info.shownContent(index.row());
    return role == Qt::ToolTipRole ? plainToolTip(drawn) : drawn;
}

QVariant StationInfoModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    if (role == Qt::DisplayRole)
        return section == Field ? qtTrId("kInfoField") : qtTrId("kInfoContent");
    return {};
}

Qt::ItemFlags StationInfoModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable | Qt::ItemNeverHasChildren : flags;
}

} // namespace quillet
