#pragma once

#include "editor/StationInfo.h"

#include <QAbstractTableModel>

namespace quillet {

/// The rows of the info panel: a field's name and its content, of which only the beginning is drawn
/// when it is very long. Nothing here can be changed; a cell counts as editable so that a part of
/// its text can be selected.
class StationInfoModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Field, Content, ColumnCount };

    explicit StationInfoModel(StationInfo info, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    StationInfo m_info;
};

} // namespace quillet
