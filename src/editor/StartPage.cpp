#include "editor/StartPage.h"

#include "editor/RecentList.h"
#include "editor/WrappedLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillet {

namespace {

QPushButton *makeButton(const char *title, const char *name)
{
    auto *button = new QPushButton(qtTrId(title));
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true); // so that Return presses it, too
    const QFontMetrics metrics = button->fontMetrics();
    button->setMinimumWidth(metrics.size(0, button->text()).width() + 2 * metrics.height());
    return button;
}

WrappedLabel *makeLabel(const char *text)
{
    auto *label = new WrappedLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(qtTrId(text));
    return label;
}

QLabel *makeTitle(const char *text)
{
    auto *label = new QLabel(qtTrId(text));
    QFont bold;
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

} // namespace

StartPage::StartPage(RecentFiles *recentFiles, bool hasGuide, QWidget *parent)
    : QWidget(parent), m_open(makeButton("kHintOpen", "startOpen")),
      m_sample(makeButton("kTrySample", "startSample")),
      m_guide(makeButton("kStartGuide", "startGuide")), m_recentTitle(makeTitle("kRecentLists")),
      m_what(makeLabel("kStartWhatText")), m_how(makeLabel("kStartHow"))
{
    setObjectName(QStringLiteral("startPage"));
    const QFontMetrics metrics = fontMetrics();
    for (QPushButton *button : {m_open, m_sample})
        button->setMinimumHeight(2 * metrics.height());
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics.height());
    buttons->addStretch();
    buttons->addWidget(m_open);
    buttons->addWidget(m_sample);
    buttons->addStretch();
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(buttons);
    rows->addSpacing(metrics.height());
    rows->addWidget(m_recentTitle);
    if (recentFiles) {
        makeRecentList(*recentFiles);
        rows->addWidget(m_recent, 100); // up to its whole height
        rows->addSpacing(metrics.height());
    }
    rows->addWidget(makeTitle("kStartWhat"));
    rows->addWidget(m_what);
    rows->addWidget(m_how);
    rows->addWidget(m_guide, 0, Qt::AlignLeading);
    rows->addStretch(1);
    m_guide->setVisible(hasGuide);
    showRecent();
    connect(m_open, &QPushButton::clicked, this, &StartPage::openRequested);
    connect(m_sample, &QPushButton::clicked, this, &StartPage::sampleRequested);
    connect(m_guide, &QPushButton::clicked, this, &StartPage::guideRequested);
}

void StartPage::makeRecentList(RecentFiles &recentFiles)
{
    m_recent = new RecentList(recentFiles);
    m_recent->setAccessibleName(m_recentTitle->text());
    connect(m_recent, &RecentList::filled, this, &StartPage::showRecent);
    // The file takes the place of the window whose list is still about to follow the click.
    connect(m_recent, &RecentList::chosen, this, &StartPage::recentFileRequested,
            Qt::QueuedConnection);
}

void StartPage::showRecent()
{
    const bool hasAny = m_recent && m_recent->count() > 0;
    m_recentTitle->setVisible(hasAny);
    if (m_recent)
        m_recent->setVisible(hasAny);
    m_how->setVisible(!hasAny);
}

void StartPage::setTextWidth(int width)
{
    setFixedWidth(width);
    m_what->setTextWidth(width);
    m_how->setTextWidth(width);
}

void StartPage::putBehind(QWidget &widget)
{
    QWidget *before = &widget;
    for (QWidget *each : {static_cast<QWidget *>(m_open), static_cast<QWidget *>(m_sample),
                          static_cast<QWidget *>(m_recent), static_cast<QWidget *>(m_guide)}) {
        if (!each)
            continue;
        setTabOrder(before, each);
        before = each;
    }
}

} // namespace quillet
