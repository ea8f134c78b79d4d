#include "editor/EmptyPage.h"

#include "editor/EmptyDocText.h"
#include "editor/StartPage.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace quillet {

namespace {

constexpr int widest = 96; // in letters, so that lines can be read
constexpr int margin = 10;

} // namespace

EmptyPage::EmptyPage(QTableView &covered)
    : QScrollArea(covered.parentWidget()), m_covered(covered), m_hint(new EmptyDocText)
{
    setObjectName(QStringLiteral("emptyPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    auto *content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(margin, margin, margin, margin);
    m_column->addStretch(1);
    m_column->addWidget(m_hint, 0, Qt::AlignHCenter);
    m_column->addStretch(1);
    setWidget(content);
    covered.installEventFilter(this);
    covered.viewport()->installEventFilter(this);
}

/// Not a part of the table, where assistive technology would find nothing but cells.
bool EmptyPage::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPlaced = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (isPlaced && (watched == &m_covered || watched->parent() == &m_covered))
        setGeometry(m_covered.viewport()->geometry().translated(m_covered.pos()));
    return QScrollArea::eventFilter(watched, event);
}

void EmptyPage::offer(RecentFiles &recentFiles, bool hasGuide)
{
    m_recentFiles = &recentFiles;
    m_hasGuide = hasGuide;
}

void EmptyPage::showHint(EmptyHint hint)
{
    m_isStart = hint == EmptyHint::NoFile;
    m_hint->showHint(hint);
    if (isVisible() || !m_isStart)
        showStart(m_isStart);
    setVisible(hint != EmptyHint::None);
    m_covered.horizontalHeader()->setVisible(!m_isStart);
}

/// A window that is to show a file has it by now.
void EmptyPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    showStart(m_isStart);
}

void EmptyPage::resizeEvent(QResizeEvent *event)
{
    fitColumn();
    QScrollArea::resizeEvent(event);
}

void EmptyPage::fitColumn()
{
    const int room = viewport()->width() - 2 * margin;
    const int width = qMin(room, widest * fontMetrics().averageCharWidth());
    m_hint->setTextWidth(width);
    if (m_start)
        m_start->setTextWidth(width);
}

void EmptyPage::showStart(bool isStart)
{
    if (isStart && !m_start)
        makeStartPage();
    if (!m_start || m_start->isHidden() != isStart)
        return;
    const bool hasFocus = m_covered.hasFocus() || isAncestorOf(window()->focusWidget());
    if (isStart)
        m_start->show();
    for (const int end : {0, m_column->count() - 1}) // which have the hint alone in the middle
        m_column->setStretch(end, isStart ? 0 : 1);
    m_covered.setFocusProxy(isStart ? &m_start->firstButton() : nullptr);
    if (hasFocus)
        m_covered.setFocus();
    m_start->setVisible(isStart); // by now without the focus, which would go on to the next button
}

void EmptyPage::makeStartPage()
{
    m_start = new StartPage(m_recentFiles, m_hasGuide);
    m_start->hide();
    m_column->insertWidget(m_column->count() - 1, m_start, 1, Qt::AlignHCenter);
    fitColumn();
    m_start->putBehind(m_covered);
    connect(m_start, &StartPage::openRequested, this, &EmptyPage::openRequested);
    connect(m_start, &StartPage::recentFileRequested, this, &EmptyPage::recentFileRequested);
    connect(m_start, &StartPage::sampleRequested, this, &EmptyPage::sampleRequested);
    connect(m_start, &StartPage::guideRequested, this, &EmptyPage::guideRequested);
}

} // namespace quillet
