#include "editor/TypedTextDelegate.h"

#include <QLineEdit>

namespace quillet {

void TypedTextDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                     const QModelIndex &index) const
{
    const auto *field = qobject_cast<const QLineEdit *>(editor);
    if (!field || !field->isModified())
        return;
    const QString text = field->text();
    if (!text.isEmpty() && text != index.data(Qt::EditRole).toString())
        model->setData(index, text, Qt::EditRole);
}

} // namespace quillet
