#include "editor/NumberDelegate.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace quillet {

QWidget *NumberDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &) const
{
    static const QRegularExpression digits(QStringLiteral("[0-9]{0,9}"));
    auto *field = new QLineEdit(parent);
    field->setFrame(false);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setValidator(new QRegularExpressionValidator(digits, field));
    return field;
}

void NumberDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    qobject_cast<QLineEdit *>(editor)->setText(index.data(Qt::EditRole).toString());
}

void NumberDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                  const QModelIndex &index) const
{
    const QString text = qobject_cast<QLineEdit *>(editor)->text();
    if (!text.isEmpty())
        model->setData(index, text, Qt::EditRole);
}

} // namespace quillet
