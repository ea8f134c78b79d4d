#include "editor/ToldLine.h"

#include "support/ShortText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QResizeEvent>

namespace quillet {

namespace {

constexpr int longEnoughToRead = 20000;

/// Lets screen readers speak the line as soon as it has a text.
QAccessibleInterface *alertInterface(const QString &, QObject *object)
{
    auto *line = qobject_cast<ToldLine *>(object);
    return line ? new QAccessibleWidget(line, QAccessible::AlertMessage) : nullptr;
}

} // namespace

ToldLine::ToldLine(QWidget *parent) : QLabel(parent)
{
    static const bool hasInterface = (QAccessible::installFactory(alertInterface), true);
    Q_UNUSED(hasInterface)
    setObjectName(QStringLiteral("toldText"));
    setWordWrap(true);
    setTextFormat(Qt::PlainText); // names of files may look like markup
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        clear();
        setAccessibleName({});
        emit silenced();
    });
}

void ToldLine::tell(const QString &text)
{
    constexpr qsizetype longest = 300; // in two or three lines; names may be endless
    setText(shortened(text.simplified(), longest));
    setAccessibleName(text);
    m_silence.start(longEnoughToRead);
    for (const auto kind : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent event(this, kind);
        QAccessible::updateAccessibility(&event);
    }
    emit announced(text);
}

QSize ToldLine::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2,
            qMax(fontMetrics().height(), heightForWidth(width()))};
}

void ToldLine::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

} // namespace quillet
