#include "editor/ToldLine.h"

#include "support/ShortText.h"

#include <QResizeEvent>

namespace quillet {

namespace {

constexpr int longEnoughToRead = 20000;

} // namespace

ToldLine::ToldLine(QWidget *parent) : SpokenLabel(parent)
{
    setObjectName(QStringLiteral("toldText"));
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
    m_silence.start(longEnoughToRead);
    speak(text);
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
