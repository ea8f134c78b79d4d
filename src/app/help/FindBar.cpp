#include "app/help/FindBar.h"

#include "framework/Speech.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>
#include <QToolButton>
#include <QWebEngineFindTextResult>
#include <QWebEngineView>

namespace quillet {

FindBar::FindBar(QWebEngineView &view, QWidget *parent)
    : QWidget(parent), m_view(view), m_field(new QLineEdit), m_matches(new QLabel)
{
    setObjectName(QStringLiteral("findBar"));
    m_field->setObjectName(QStringLiteral("findField"));
    m_field->setAccessibleName(qtTrId("kHelpFindField"));
    m_field->setPlaceholderText(qtTrId("kHelpFindField"));
    m_field->setClearButtonEnabled(true);
    m_matches->setObjectName(QStringLiteral("findMatches"));
    makeSpeakable(*m_matches);
    makeRow();
    hide();

    connect(m_field, &QLineEdit::textChanged, this, [this] { find(Direction::Forward); });
    connect(m_field, &QLineEdit::returnPressed, this, &FindBar::findNext);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(Qt::SHIFT | key, m_field), &QShortcut::activated, this,
                &FindBar::findPrevious);
    // Wherever the focus is; a bar that is hidden gets no keys.
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &FindBar::dismiss);
    connect(&m_view, &QWebEngineView::loadFinished, this, [this] {
        if (isVisible())
            find(Direction::Forward);
    });
}

void FindBar::makeRow()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 6, 6);
    row->addWidget(m_field, 1);
    m_field->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    const auto addButton = [this, row](const char *name, const QString &title, auto perform) {
        auto *button = new QToolButton;
        button->setObjectName(QLatin1String(name));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolTip(title);
        button->setAccessibleName(title);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this, perform);
        return button;
    };
    addButton("findPreviousButton", qtTrId("kHelpFindPrevious"), &FindBar::findPrevious)
        ->setArrowType(Qt::UpArrow);
    addButton("findNextButton", qtTrId("kHelpFindNext"), &FindBar::findNext)
        ->setArrowType(Qt::DownArrow);
    row->addWidget(m_matches, 1);
    addButton("findCloseButton", qtTrId("kHelpFindClose"), &FindBar::dismiss)
        ->setText(QStringLiteral("×"));
}

void FindBar::open()
{
    const bool wasHidden = isHidden();
    show();
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
    if (wasHidden)
        find(Direction::Forward);
}

void FindBar::findNext()
{
    if (m_field->text().isEmpty() || isHidden())
        open();
    else
        find(Direction::Forward);
}

void FindBar::findPrevious()
{
    if (m_field->text().isEmpty() || isHidden())
        open();
    else
        find(Direction::Backward);
}

void FindBar::find(Direction direction)
{
    const int search = ++m_search;
    const QString text = m_field->text();
    const QPointer<FindBar> bar(this); // the page may answer when the window has gone
    m_view.findText(text,
                    direction == Direction::Backward ? QWebEnginePage::FindBackward
                                                     : QWebEnginePage::FindFlags(),
                    [bar, search](const QWebEngineFindTextResult &found) {
                        if (bar && search == bar->m_search)
                            bar->showMatches(found.activeMatch(), found.numberOfMatches());
                    });
    if (text.isEmpty())
        tell({});
}

void FindBar::showMatches(int active, int count)
{
    if (m_field->text().isEmpty())
        return;
    tell(count == 0 ? qtTrId("kHelpFindNone") : qtTrId("kHelpFindCount").arg(active).arg(count));
}

void FindBar::tell(const QString &text)
{
    m_matches->setText(text);
    speak(*m_matches, text);
}

void FindBar::dismiss()
{
    ++m_search;
    m_view.findText({}); // takes the marks away
    hide();
    m_view.setFocus();
}

} // namespace quillet
