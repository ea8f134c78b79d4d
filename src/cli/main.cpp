#include "cli/Console.h"
#include "cli/Tool.h"
#include "files/Environment.h"
#include "files/FileNames.h"
#include "support/StandardStreams.h"
#include "texts/Translations.h"

#include <QCoreApplication>
#include <QLocale>

#include <clocale>
#include <csignal>

using namespace quillet;

namespace {

/// What libraries say is not for those who read the tool's messages.
void dropMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // who reads no more must not stop a file from being written
#endif
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is an error of its writing
#endif
    holdStandardStreams();
    ignoreRelativeFolders();
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qInstallMessageHandler(dropMessage);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i])); // names of files, mostly
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    const QCoreApplication app(argc, argv);
#ifdef LC_MESSAGES
    std::setlocale(LC_MESSAGES, "C"); // what the system says of its errors stands in our sentences
#endif
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    installEnglishTexts();
    Console console;
    const ExitStatus status = runTool(arguments, console);
    return static_cast<int>(worse(status, console.finish()));
}
