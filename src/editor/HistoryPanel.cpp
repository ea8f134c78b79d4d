#include "editor/HistoryPanel.h"

#include <QEvent>
#include <QListView>
#include <QTimer>
#include <QVBoxLayout>

namespace quillet {

namespace {

/// No wider than its steps need, for the table has the better use of the room.
class StepList : public QListView
{
public:
    using QListView::QListView;
    [[nodiscard]] QSize sizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 34, QListView::sizeHint().height()};
    }
};

} // namespace

HistoryPanel::HistoryPanel(QWidget *parent)
    : QDockWidget(qtTrId("kHistoryTitle"), parent), m_list(new StepList)
{
    setObjectName(QStringLiteral("historyPanel"));
    // A window of its own would stay open to clicks while a sheet asks something.
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    m_list->setObjectName(QStringLiteral("historyList"));
    m_list->setAccessibleName(qtTrId("kHistoryTitle"));
    m_list->setModel(&m_model);
    m_list->setUniformItemSizes(true);
    m_list->setSpacing(3);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumWidth(m_list->fontMetrics().averageCharWidth() * 16);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(6, 6, 12, 6); // as far from the edge as the rest of the window
    column->addWidget(m_list);
    setWidget(content);
    const auto choose = [this](const QModelIndex &index) { emit stepChosen(index.row()); };
    connect(m_list, &QListView::clicked, this, choose);
    connect(m_list, &QListView::activated, this, choose);
    connect(&m_model, &HistoryModel::currentChanged, this, &HistoryPanel::showCurrent);
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
}

/// The row of the state there is stays marked, whatever was clicked or passed on the way.
bool HistoryPanel::eventFilter(QObject *watched, QEvent *event)
{
    const bool isClick = event->type() == QEvent::MouseButtonRelease && watched != m_list;
    if (isClick || (event->type() == QEvent::FocusOut && watched == m_list))
        QTimer::singleShot(0, this, &HistoryPanel::showCurrent);
    return QDockWidget::eventFilter(watched, event);
}

/// While nobody sees it, steps cost nothing here.
void HistoryPanel::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    showCurrent();
}

void HistoryPanel::showCurrent()
{
    if (!isVisible())
        return;
    const QModelIndex current = m_model.index(m_model.currentRow());
    m_list->setCurrentIndex(current);
    m_list->scrollTo(current);
}

} // namespace quillet
