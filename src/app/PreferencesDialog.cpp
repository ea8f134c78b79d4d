#include "app/PreferencesDialog.h"

#include "app/GeneralPage.h"
#include "app/SavingPage.h"
#include "app/TablePage.h"
#include "framework/Mnemonics.h"
#include "framework/ScreenPlace.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace quillet {

namespace {

constexpr int usualWidth = 76; ///< of a page, in average characters

/// Shows a page whole where the screen has room for it, and a part of it elsewhere.
class PageArea : public QScrollArea
{
public:
    explicit PageArea(QWidget &page)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(&page);
        page.setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }
    [[nodiscard]] QSize sizeHint() const override
    {
        const int width = qMax(widget()->minimumSizeHint().width(),
                               usualWidth * fontMetrics().averageCharWidth());
        const bool wraps = widget()->hasHeightForWidth();
        return {width, wraps ? widget()->heightForWidth(width) : widget()->sizeHint().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const int line = fontMetrics().lineSpacing();
        return {16 * line, 6 * line};
    }
};

} // namespace

PreferencesDialog::PreferencesDialog(Settings &settings, const VersionStore &versions)
    : m_tabs(new QTabWidget)
{
    setObjectName(QStringLiteral("preferencesDialog"));
    setWindowTitle(qtTrId("kPrefTitle"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_tabs->setObjectName(QStringLiteral("preferencesPages"));
    add(*new GeneralPage(settings));
    add(*new TablePage(settings));
    auto *saving = new SavingPage(settings, versions);
    add(*saving);
    connect(saving, &SavingPage::versionFolderRequested, this,
            &PreferencesDialog::versionFolderRequested);

    auto *buttons = new QDialogButtonBox;
    m_useUsual = buttons->addButton(qtTrId("kPrefUsual"), QDialogButtonBox::ResetRole);
    m_useUsual->setObjectName(QStringLiteral("useUsual"));
    m_close = buttons->addButton(qtTrId("kClose"), QDialogButtonBox::RejectRole);
    m_close->setDefault(true);
    connect(m_useUsual, &QPushButton::clicked, this, [this] { page().useUsual(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_tabs, 1);
    column->addWidget(buttons);
    setMnemonics();
    connect(m_tabs, &QTabWidget::currentChanged, this, &PreferencesDialog::showState);
    connect(&settings, &Settings::changed, this, &PreferencesDialog::showState);
    showState();
    resize(sizeHint());
    keepOnScreen(*this);
}

void PreferencesDialog::add(PreferencesPage &page)
{
    m_pages.push_back(&page);
    m_tabs->addTab(new PageArea(page), page.title());
}

/// The tabs and the buttons are on show together with each page.
void PreferencesDialog::setMnemonics()
{
    QStringList titles;
    for (const PreferencesPage *page : m_pages)
        titles.append(page->title());
    titles += {qtTrId("kPrefUsual"), qtTrId("kClose")};
    const QStringList marked = withMnemonics(titles);
    for (int i = 0; i < m_tabs->count(); ++i)
        m_tabs->setTabText(i, marked[i]);
    m_useUsual->setText(marked[m_tabs->count()]);
    m_close->setText(marked.back());
    for (PreferencesPage *page : m_pages)
        page->setMnemonics(titles);
}

void PreferencesDialog::showState()
{
    m_useUsual->setEnabled(!page().isUsual());
    m_useUsual->setToolTip(page().isUsual() ? qtTrId("kTipPrefUsual") : QString());
}

PreferencesPage &PreferencesDialog::page() const
{
    return *m_pages.at(static_cast<std::size_t>(m_tabs->currentIndex()));
}

} // namespace quillet
