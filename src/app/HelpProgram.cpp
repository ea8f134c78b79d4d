#include "app/HelpProgram.h"

#include "app/DesktopServices.h"
#include "app/HelpLoader.h"
#include "app/TerminationSignals.h"
#include "app/help/HelpProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace quillet {

namespace {

constexpr std::chrono::seconds timeToEnd{3};

/// Reads standard input on a thread of its own, which ends the process when the event loop does not
/// do so: the engine may hang. `asked` gets each line in the event loop. The receiver must live as
/// long as the process.
template<typename Asked>
void readRequests(QObject &receiver, Asked asked)
{
    std::thread([&receiver, asked] {
        QFile input;
        if (input.open(fileno(stdin), QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            QByteArray line;
            for (char byte = 0; input.read(&byte, 1) == 1;) {
                if (byte != '\n') {
                    line.append(byte);
                    continue;
                }
                QMetaObject::invokeMethod(&receiver, [asked, line] { asked(line); });
                line.clear();
            }
        }
        QMetaObject::invokeMethod(&receiver, [] { QCoreApplication::exit(); });
        std::this_thread::sleep_for(timeToEnd);
        std::_Exit(EXIT_FAILURE);
    }).detach();
}

void tellEvent(HelpBrowser::Event event)
{
    switch (event) {
    case HelpBrowser::Event::Shown:
    case HelpBrowser::Event::Hidden:
        std::puts(event == HelpBrowser::Event::Shown ? helpIsShown : helpIsHidden);
        std::fflush(stdout);
        break;
    case HelpBrowser::Event::Broken:
        QCoreApplication::exit(EXIT_FAILURE);
        break;
    }
}

} // namespace

int runHelpWindow()
{
    QGuiApplication::setQuitOnLastWindowClosed(false); // closing hides it
    // What is meant for the program by its terminal is the program's to follow.
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, qApp, [](int number) {
        if (number == SIGTERM)
            QCoreApplication::exit();
    });
    static auto *receiver = new QObject; // never deleted: the thread may still use it
    static std::unique_ptr<HelpBrowser> browser;
    readRequests(*receiver, [](const QByteArray &line) {
        const HelpRequest request = HelpRequest::fromLine(line);
        if (browser)
            browser->showPage(request.page, request.title);
    });
    DesktopServices services;
    browser = loadHelpBrowser(services);
    if (!browser)
        return EXIT_FAILURE;
    browser->setListener(tellEvent);
    const int code = QCoreApplication::exec();
    browser.reset();
    return code;
}

} // namespace quillet
