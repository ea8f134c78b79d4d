#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>

#include <memory>

namespace quillet {

class SystemServices;

/// The window that shows the user guide. There is one in a run; closing it hides it.
class HelpBrowser
{
public:
    virtual ~HelpBrowser() = default;

    /// Shows the page and brings the window to the front.
    virtual void showPage(const QUrl &page, const QString &title) = 0;
};

/// What the module with the web engine offers. It is loaded when help is first asked for: linked
/// into the program, the engine would slow down every start.
class HelpModule
{
public:
    virtual ~HelpModule() = default;

    /// The services must outlive the browser.
    [[nodiscard]] virtual std::unique_ptr<HelpBrowser> makeBrowser(SystemServices &services) = 0;
};

} // namespace quillet

Q_DECLARE_INTERFACE(quillet::HelpModule, "org.quillet.HelpModule/1")
