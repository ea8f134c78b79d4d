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

} // namespace quillet
