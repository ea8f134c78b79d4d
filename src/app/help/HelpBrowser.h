#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>

#include <functional>
#include <memory>
#include <utility>

namespace quillet {

class SystemServices;

/// The window that shows the user guide. There is one in a run; closing it hides it.
class HelpBrowser
{
public:
    virtual ~HelpBrowser() = default;

    /// Shows the page and brings the window to the front.
    virtual void showPage(const QUrl &page, const QString &title) = 0;

    enum class Event {
        Shown,  ///< a page is on show
        Hidden, ///< the person has closed the window
        Broken, ///< the engine has failed and shows nothing any more
    };
    using Listener = std::function<void(Event)>;
    void setListener(Listener listener) { m_listener = std::move(listener); }

protected:
    void tell(Event event) const
    {
        if (m_listener)
            m_listener(event);
    }

private:
    Listener m_listener;
};

/// What the module with the web engine offers. Only the process of the help window loads it: linked
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
