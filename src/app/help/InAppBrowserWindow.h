#pragma once

#include "app/help/HelpBrowser.h"

#include <QMainWindow>

class QAction;
class QToolBar;

namespace quillet {

class FindBar;
class InAppBrowserController;
class SystemServices;

/// The help window: a small browser with a toolbar. Remembers its size and place.
class InAppBrowserWindow : public QMainWindow, public HelpBrowser
{
    Q_OBJECT

public:
    /// The services must outlive the window.
    explicit InAppBrowserWindow(SystemServices &services);
    ~InAppBrowserWindow() override;

    void showPage(const QUrl &page, const QString &title) override;
    [[nodiscard]] InAppBrowserController &controller() const { return *m_controller; }

    void goHome();
    void goBack();
    /// Deliberately goes back, too, though it is enabled while there is something ahead.
    void goForward();
    void openInBrowser();
    void openInChrome();
    /// Opens the bar in which a word of the page can be looked for.
    void find();
    /// Whether the toolbar item of that name is enabled.
    [[nodiscard]] bool validateToolbarItem(const QString &name) const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeToolbar();
    void addKeys();
    void validateToolbar();
    void restoreFrame();
    void saveFrame() const;

    SystemServices &m_services;
    InAppBrowserController *m_controller;
    QToolBar *m_toolbar;
    FindBar *m_findBar;
};

} // namespace quillet
