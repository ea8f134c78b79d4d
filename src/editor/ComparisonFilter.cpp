#include "editor/ComparisonFilter.h"

#include "framework/Speech.h"
#include "texts/RowTexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

constexpr std::array kindsInOrder{ComparisonKind::Moved,    ComparisonKind::Renamed,
                                  ComparisonKind::Flags,    ComparisonKind::Fields,
                                  ComparisonKind::OnlyHere, ComparisonKind::OnlyThere,
                                  ComparisonKind::Unclear,  ComparisonKind::Same};
constexpr int kindsInLine = 4;

/// Whether a purpose has rows of that kind.
bool hasKind(Purpose purpose, ComparisonKind kind)
{
    switch (purpose) {
    case Purpose::Compare:
        return kind != ComparisonKind::Unclear;
    case Purpose::Order:
        return kind == ComparisonKind::Moved || kind == ComparisonKind::OnlyHere ||
               kind == ComparisonKind::OnlyThere || kind == ComparisonKind::Same;
    case Purpose::Import:
        return kind != ComparisonKind::OnlyHere;
    case Purpose::Paste:
        break; // where they go does not depend on what differs
    }
    return false;
}

} // namespace

ComparisonFilter::ComparisonFilter(StationComparison &comparison, QWidget *parent)
    : QWidget(parent), m_comparison(comparison), m_lists(new QComboBox),
      m_searchTitle(new QLabel(qtTrId("kSearchTitle"))), m_search(new QLineEdit)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(makeTop());
    column->addLayout(makeKinds());
    connect(&comparison, &StationComparison::rowsChanged, this, &ComparisonFilter::showState);
    showState();
}

QLayout *ComparisonFilter::makeTop()
{
    m_lists->setObjectName(QStringLiteral("compareList"));
    nameChoice(*m_lists, qtTrId("kCompareList"));
    connect(m_lists, &QComboBox::activated, this, [this](int item) {
        const auto &lists = m_comparison.lists();
        m_comparison.showList(item == 0 ? std::nullopt
                                        : std::optional(lists[static_cast<std::size_t>(item - 1)]));
    });
    m_search->setObjectName(QStringLiteral("compareSearch"));
    m_search->setPlaceholderText(qtTrId("kSearchPlaceholder"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, &m_comparison, &StationComparison::search);
    m_searchTitle->setBuddy(m_search);
    auto *row = new QHBoxLayout;
    row->addWidget(m_lists);
    row->addWidget(m_searchTitle);
    row->addWidget(m_search, 1);
    return row;
}

QLayout *ComparisonFilter::makeKinds()
{
    auto *grid = new QGridLayout;
    for (const ComparisonKind kind : kindsInOrder) {
        if (!hasKind(m_comparison.purpose(), kind))
            continue;
        auto *box = new QCheckBox;
        box->setObjectName(QStringLiteral("compareKind%1").arg(static_cast<int>(kind)));
        box->setChecked(m_comparison.filter().kinds().testFlag(kind));
        connect(box, &QCheckBox::toggled, this, &ComparisonFilter::showKinds);
        const auto place = static_cast<int>(m_kinds.size());
        grid->addWidget(box, place / kindsInLine, place % kindsInLine);
        m_kinds.emplace_back(kind, box);
    }
    return grid;
}

void ComparisonFilter::showState()
{
    m_lists->clear();
    m_lists->addItem(qtTrId("kCompareAllLists"));
    int current = 0;
    for (const StationComparison::List &list : m_comparison.lists()) {
        m_lists->addItem(titleOf(list));
        if (m_comparison.filter().list() == list)
            current = m_lists->count() - 1;
    }
    m_lists->setCurrentIndex(current);
    m_lists->setVisible(m_lists->count() > 2);
    for (const auto &[kind, box] : m_kinds) {
        box->setText(QStringLiteral("%1 (%2)")
                         .arg(titleOf(kind, m_comparison.purpose()))
                         .arg(m_comparison.count(kind)));
    }
}

void ComparisonFilter::showKinds()
{
    ComparisonKinds kinds;
    for (const auto &[kind, box] : m_kinds)
        kinds.setFlag(kind, box->isChecked());
    m_comparison.showKinds(kinds);
}

void ComparisonFilter::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

/// Escape leaves the search before it closes the window.
bool ComparisonFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool isEscape = key.key() == Qt::Key_Escape;
    const bool leaves = isEscape || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                        key.key() == Qt::Key_Down;
    if (!leaves || (key.modifiers() & ~Qt::KeypadModifier))
        return false;
    if (isEscape)
        m_search->clear();
    emit left();
    return true;
}

} // namespace quillet
