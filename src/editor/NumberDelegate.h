#pragma once

#include "editor/TypedTextDelegate.h"

namespace quillet {

/// Edits a program number: takes digits only.
class NumberDelegate : public TypedTextDelegate
{
    Q_OBJECT

public:
    using TypedTextDelegate::TypedTextDelegate;

    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
};

} // namespace quillet
