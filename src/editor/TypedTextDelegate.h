#pragma once

#include "editor/FadingDelegate.h"

namespace quillet {

/// Edits the text of a cell. However editing ends, the model gets a text only when another one was
/// typed; a field that was left as it was, or empty, changes nothing. Editing starts with the text
/// as it is stored, codes that are not drawn included; with none when it is so long that a field
/// would cut it.
class TypedTextDelegate : public FadingDelegate
{
    Q_OBJECT

public:
    using FadingDelegate::FadingDelegate;

    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace quillet
