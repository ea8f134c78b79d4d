#include "editor/TypedTextDelegate.h"

#include "editor/CellText.h"
#include "texts/ShownTexts.h"

#include <QLineEdit>

namespace quillet {

void TypedTextDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QAbstractItemModel &model = *index.model();
    editor->setAccessibleName(
        model.headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString());
    auto *field = qobject_cast<QLineEdit *>(editor);
    if (field && index.data(Qt::EditRole).toString().size() > longestContentShown)
        field->setPlaceholderText(index.data().toString());
    else
        FadingDelegate::setEditorData(editor, index);
}

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

void TypedTextDelegate::initStyleOption(QStyleOptionViewItem *option,
                                        const QModelIndex &index) const
{
    FadingDelegate::initStyleOption(option, index);
    option->text = inItsDirection(option->text, option->direction);
}

} // namespace quillet
