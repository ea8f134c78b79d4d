#include "editor/SpokenLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillet {

namespace {

QAccessibleInterface *alertInterface(const QString &, QObject *object)
{
    auto *label = qobject_cast<SpokenLabel *>(object);
    return label ? new QAccessibleWidget(label, QAccessible::AlertMessage) : nullptr;
}

} // namespace

SpokenLabel::SpokenLabel(QWidget *parent) : QLabel(parent)
{
    static const bool hasInterface = (QAccessible::installFactory(alertInterface), true);
    Q_UNUSED(hasInterface)
    setWordWrap(true);
    setTextFormat(Qt::PlainText); // names of files may look like markup
}

void SpokenLabel::speak(const QString &text)
{
    setAccessibleName(text);
    for (const auto kind : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent event(this, kind);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace quillet
