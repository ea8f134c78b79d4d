#include "editor/NoticeBar.h"

#include "editor/Contrast.h"
#include "framework/Speech.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace quillet {

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent), m_icon(new QLabel), m_text(new QLabel), m_action(new QPushButton),
      m_other(new QPushButton), m_close(new QToolButton)
{
    makeSpeakable(*this);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 6, 6);
    row->setSpacing(10);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_action);
    row->addWidget(m_other);
    row->addWidget(m_close, 0, Qt::AlignTop);

    m_text->setObjectName(QStringLiteral("noticeText"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText); // names from files may look like markup
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->installEventFilter(this);
    m_action->setObjectName(QStringLiteral("noticeAction"));
    m_other->setObjectName(QStringLiteral("noticeOther"));
    for (QPushButton *button : {m_action, m_other})
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_close->setObjectName(QStringLiteral("noticeClose"));
    m_close->setText(QStringLiteral("×"));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::StrongFocus);
    m_close->setToolTip(qtTrId("kNoticeClose"));
    m_close->setAccessibleName(qtTrId("kNoticeClose"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::actionTriggered);
    connect(m_other, &QPushButton::clicked, this, &NoticeBar::otherActionTriggered);
    connect(m_close, &QToolButton::clicked, this, &NoticeBar::dismiss);
    hide();
}

void NoticeBar::setClosable(bool closable)
{
    m_close->setVisible(closable);
}

QString NoticeBar::text() const
{
    return m_text->text();
}

void NoticeBar::setTabOrderAfter(QWidget &widget)
{
    setTabOrder(&widget, m_action);
    setTabOrder(m_action, m_other);
    setTabOrder(m_other, m_close);
}

void NoticeBar::showNotice(Kind kind, const QString &text, const QString &actionTitle,
                           const QString &otherTitle)
{
    const bool isNews = isHidden() || text != m_text->text();
    m_kind = kind;
    m_text->setText(text);
    m_text->setMinimumHeight(0);
    m_action->setText(actionTitle);
    m_action->setHidden(actionTitle.isEmpty());
    m_other->setText(otherTitle);
    m_other->setHidden(otherTitle.isEmpty());
    updateIcon();
    if (isNews)
        speak(*this, text);
    show();
    update();
    if (isNews)
        emit announced(text);
}

void NoticeBar::updateIcon()
{
    const auto icon =
        m_kind == Kind::Warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = fontMetrics().height() * 3 / 2;
    m_icon->setPixmap(style()->standardIcon(icon, nullptr, this).pixmap(size, size));
}

/// The palette's ground with a share of the notice's own colour in it.
QColor NoticeBar::tinted(qreal share) const
{
    const QColor ground = palette().color(QPalette::Base);
    const QColor tint =
        m_kind == Kind::Warning ? QColor(0xF0, 0xA8, 0x18) : palette().color(QPalette::Highlight);
    return blended(tint, ground, share);
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(tinted(0.6));
    painter.setBrush(tinted(0.16));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

void NoticeBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateIcon();
}

/// A layout knows how high a wrapped text is at its width, but lets a window be smaller than that.
bool NoticeBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_text && (event->type() == QEvent::Resize || event->type() == QEvent::Show))
        m_text->setMinimumHeight(qMax(0, m_text->heightForWidth(m_text->width())));
    return QWidget::eventFilter(watched, event);
}

} // namespace quillet
