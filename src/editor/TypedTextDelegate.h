#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// Edits the text of a cell. However editing ends, the model gets a text only when another one was
/// typed; a field that was left as it was, or empty, changes nothing.
class TypedTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
};

} // namespace quillet
