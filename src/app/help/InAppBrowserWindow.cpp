#include "app/help/InAppBrowserWindow.h"

#include "app/help/FindBar.h"
#include "app/help/InAppBrowserController.h"
#include "app/help/SystemServices.h"

#include <QAction>
#include <QIcon>
#include <QPalette>
#include <QScreen>
#include <QSettings>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <array>

namespace quillet {

namespace {

QString frameKey()
{
    return QStringLiteral("windows/InAppBrowser");
}

struct ToolbarItem
{
    const char *name;
    const char *title;    ///< id of the localized text
    const char *icon;     ///< its name in the desktop's icon theme; null: none
    QKeyCombination keys; ///< Key_unknown: none
    void (InAppBrowserWindow::*perform)();
};

constexpr std::array toolbarItems{
    ToolbarItem{"goBack", "kHelpBack", "go-previous", Qt::ALT | Qt::Key_Left,
                &InAppBrowserWindow::goBack},
    ToolbarItem{"goForward", "kHelpForward", "go-next", Qt::ALT | Qt::Key_Right,
                &InAppBrowserWindow::goForward},
    ToolbarItem{"goHome", "kHelpHome", "go-home", Qt::ALT | Qt::Key_Home,
                &InAppBrowserWindow::goHome},
    ToolbarItem{"openInBrowser", "kHelpOpenInBrowser", nullptr, Qt::Key_unknown,
                &InAppBrowserWindow::openInBrowser},
    ToolbarItem{"chrome", "kHelpOpenInChrome", nullptr, Qt::Key_unknown,
                &InAppBrowserWindow::openInChrome},
    ToolbarItem{"find", "kHelpFind", "edit-find", Qt::CTRL | Qt::Key_F, &InAppBrowserWindow::find},
};

// Connections that a page makes to other computers pass every filter of requests by.
constexpr const char *connectToNobody[]{
    "--force-webrtc-ip-handling-policy=disable_non_proxied_udp",
    "--host-resolver-rules=\"MAP * ~NOTFOUND, EXCLUDE 192.168.*\"",
};
constexpr const char *showDarkPages = "--force-dark-mode"; // Qt 6.4 does not tell it the desktop's

/// Sets the engine up, which reads this once, before its first page.
void setEngineUp(const QPalette &palette)
{
    const char *const variable = "QTWEBENGINE_CHROMIUM_FLAGS";
    QByteArray flags = qgetenv(variable);
    const auto add = [&flags](const char *flag) {
        if (!flags.contains(flag))
            flags.append(' ').append(flag);
    };
    for (const char *flag : connectToNobody)
        add(flag);
    if (palette.color(QPalette::Window).lightness() <
        palette.color(QPalette::WindowText).lightness())
        add(showDarkPages);
    qputenv(variable, flags);
}

} // namespace

InAppBrowserWindow::InAppBrowserWindow(SystemServices &services)
    : m_services(services), m_controller(nullptr), m_toolbar(addToolBar(qtTrId("kHelpToolbar"))),
      m_findBar(nullptr)
{
    setObjectName(QStringLiteral("helpWindow"));
    setEngineUp(palette());
    auto *container = new QWidget;
    auto *content = new QWidget;
    setCentralWidget(content);
    m_controller = new InAppBrowserController(*container, services, this);
    m_findBar = new FindBar(m_controller->webView());
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(container, 1);
    column->addWidget(m_findBar);
    // No flash of white before the first page of a dark window.
    m_controller->webView().page()->setBackgroundColor(palette().color(QPalette::Base));
    makeToolbar();
    addKeys();
    connect(m_controller, &InAppBrowserController::historyChanged, this,
            &InAppBrowserWindow::validateToolbar);
    connect(&m_controller->webView(), &QWebEngineView::loadFinished, this, [this] {
        if (isVisible())
            tell(Event::Shown);
    });
    connect(&m_controller->webView(), &QWebEngineView::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    tell(Event::Broken);
            });
    validateToolbar();
    restoreFrame();
}

InAppBrowserWindow::~InAppBrowserWindow()
{
    if (isVisible())
        saveFrame();
    delete m_controller; // before the view, which the window's content owns
}

void InAppBrowserWindow::makeToolbar()
{
    m_toolbar->setMovable(false);
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const ToolbarItem &item : toolbarItems) {
        QAction *action = m_toolbar->addAction(qtTrId(item.title), this, item.perform);
        if (item.icon)
            action->setIcon(QIcon::fromTheme(QLatin1String(item.icon)));
        action->setObjectName(QLatin1String(item.name));
        if (item.keys.key() != Qt::Key_unknown)
            action->setShortcut(item.keys);
        if (item.perform == &InAppBrowserWindow::find)
            action->setToolTip(qtTrId("kHelpFindTip"));
    }
}

void InAppBrowserWindow::addKeys()
{
    const auto addKey = [this](const QList<QKeySequence> &keys, auto *receiver, auto perform) {
        auto *action = new QAction(this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, receiver, perform);
        addAction(action);
    };
    addKey({Qt::CTRL | Qt::Key_W}, this, &QWidget::close);
    addKey({Qt::Key_F3, Qt::CTRL | Qt::Key_G}, m_findBar, &FindBar::findNext);
    addKey({Qt::SHIFT | Qt::Key_F3, Qt::CTRL | Qt::SHIFT | Qt::Key_G}, m_findBar,
           &FindBar::findPrevious);
}

void InAppBrowserWindow::showPage(const QUrl &page, const QString &title)
{
    setWindowTitle(title);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_controller->loadHomePage(page);
    m_controller->webView().setFocus();
}

void InAppBrowserWindow::goHome()
{
    m_controller->reloadHomePage();
}

void InAppBrowserWindow::goBack()
{
    m_controller->goBack();
}

void InAppBrowserWindow::goForward()
{
    goBack();
}

void InAppBrowserWindow::openInBrowser()
{
    m_services.openUrl(m_controller->homeURL());
}

void InAppBrowserWindow::openInChrome()
{
    const std::optional<QString> chrome = m_services.findChrome();
    if (chrome && !m_controller->homeURL().isEmpty())
        m_services.openUrlWith(m_controller->homeURL(), *chrome);
}

void InAppBrowserWindow::find()
{
    m_findBar->open();
}

bool InAppBrowserWindow::validateToolbarItem(const QString &name) const
{
    if (name == QLatin1String("goBack"))
        return m_controller->canGoBack();
    if (name == QLatin1String("goForward"))
        return m_controller->canGoForward();
    if (name == QLatin1String("chrome"))
        return m_controller->chromeURL().has_value();
    return true;
}

void InAppBrowserWindow::validateToolbar()
{
    for (QAction *action : m_toolbar->actions())
        action->setEnabled(validateToolbarItem(action->objectName()));
}

void InAppBrowserWindow::restoreFrame()
{
    const int line = fontMetrics().height();
    if (!restoreGeometry(QSettings().value(frameKey()).toByteArray()))
        resize(QSize(66 * line, 48 * line).boundedTo(screen()->availableSize()));
}

void InAppBrowserWindow::saveFrame() const
{
    QSettings().setValue(frameKey(), saveGeometry());
}

void InAppBrowserWindow::closeEvent(QCloseEvent *event)
{
    saveFrame();
    QMainWindow::closeEvent(event);
    tell(Event::Hidden);
}

} // namespace quillet
