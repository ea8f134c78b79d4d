// Opens a list as the program does, types a number without confirming it, says so and goes on until
// it is told to end. Takes the list, the folder of recovery and the ids of the buttons that are
// pressed in the questions to come.

#include "framework/WindowController.h"
#include "gui/AppFixture.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QTest>

#include <chrono>
#include <cstdio>

using namespace quillet;
using namespace quillet::testing;

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QEventLoop joining; // whoever joins a session is asked for its state first
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &joining, &QEventLoop::quit);
    joining.exec();
    const QStringList arguments = QApplication::arguments();
    FileOperations operations;
    RecoveryStore store(arguments[2], operations);
    App app(nullptr, App::Settings::Kept);
    // Only what asks for it at once writes anything.
    app.delegate.keepChanges(store, {std::chrono::hours(1), std::chrono::hours(1)});
    app.delegate.applicationDidFinishLaunching({arguments[1]});
    for (const QString &id : arguments.mid(3))
        app.preset.answerAlert(label(id.toLatin1().constData()));

    const Document &document = *app.delegate.documents().documents().front();
    QMainWindow &window = *document.windowControllers().front()->window();
    window.activateWindow(); // there is no window manager that would
    if (!QTest::qWaitForWindowActive(&window))
        return 1;
    QTableView &table = tableOf(window);
    table.setCurrentIndex(table.model()->index(0, 0));
    table.edit(table.currentIndex());
    auto *field = table.viewport()->findChild<QLineEdit *>();
    if (!field)
        return 2;
    QTest::keyClicks(field, QStringLiteral("777"));
    std::puts("ready");
    std::fflush(stdout);
    return QApplication::exec();
}
