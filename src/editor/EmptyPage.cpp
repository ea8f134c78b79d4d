#include "editor/EmptyPage.h"

#include "editor/EmptyDocText.h"
#include "editor/StartPage.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

namespace quillet {

EmptyPage::EmptyPage(QTableView &covered)
    : QScrollArea(covered.viewport()), m_covered(covered), m_column(new QVBoxLayout),
      m_hint(new EmptyDocText)
{
    setObjectName(QStringLiteral("emptyPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    auto *content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    m_column->addWidget(m_hint, 1);
    auto *row = new QHBoxLayout(content);
    row->addStretch(1);
    row->addLayout(m_column, 1000); // all there is, up to the width of the start page
    row->addStretch(1);
    setWidget(content);
    auto *whole = new QVBoxLayout(covered.viewport());
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(this);
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
    setVisible(hint != EmptyHint::None);
    if (isVisible() || !m_isStart)
        showStart(m_isStart);
}

void EmptyPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    showStart(m_isStart);
}

void EmptyPage::showStart(bool isStart)
{
    if (isStart && !m_start)
        makeStartPage();
    if (!m_start || m_start->isHidden() != isStart)
        return;
    const bool hasFocus = m_covered.hasFocus() || m_covered.isAncestorOf(window()->focusWidget());
    m_start->setVisible(isStart);
    m_column->setStretchFactor(m_hint, isStart ? 0 : 1);
    m_covered.horizontalHeader()->setVisible(!isStart);
    m_covered.setFocusProxy(isStart ? &m_start->firstButton() : nullptr);
    if (hasFocus)
        m_covered.setFocus();
}

void EmptyPage::makeStartPage()
{
    m_start = new StartPage(m_recentFiles, m_hasGuide);
    m_start->hide();
    m_column->addWidget(m_start, 1);
    m_start->putBehind(m_covered);
    connect(m_start, &StartPage::openRequested, this, &EmptyPage::openRequested);
    connect(m_start, &StartPage::recentFileRequested, this, &EmptyPage::recentFileRequested);
    connect(m_start, &StartPage::sampleRequested, this, &EmptyPage::sampleRequested);
    connect(m_start, &StartPage::guideRequested, this, &EmptyPage::guideRequested);
}

} // namespace quillet
