#include "app/AppDelegate.h"
#include "app/ApplicationIcon.h"
#include "app/CommandLine.h"
#include "app/ExitHook.h"
#include "app/HelpProgram.h"
#include "app/OneInstance.h"
#include "app/Palettes.h"
#include "app/ProgramFiles.h"
#include "app/ProgramStyle.h"
#include "app/SessionFolder.h"
#include "app/Snapshot.h"
#include "app/TerminationSignals.h"
#include "files/Environment.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/RecoveryStore.h"
#include "files/Settings.h"
#include "framework/QtPrompts.h"
#include "framework/Speech.h"
#include "support/KXFileLog.h"
#include "support/LogClaim.h"
#include "support/StandardStreams.h"
#include "texts/Translations.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace quillet;

namespace {

enum ExitCode { Succeeded, Failed, Misused };

constexpr char hint[] = "Try 'quillet --help' for more information.\n";

int fail(ExitCode code, const QString &problem)
{
    std::fprintf(stderr, "quillet: %s\n%s", qPrintable(problem), code == Misused ? hint : "");
    return code;
}

QtMessageHandler printMessage = nullptr;

/// Qt would abort the program when there is no display; that is no crash.
void endWhereQtCannotStart(QtMsgType type, const QMessageLogContext &context,
                           const QString &message)
{
    if (type == QtFatalMsg)
        std::_Exit(fail(Failed, message.trimmed()));
    printMessage(type, context, message);
}

int makePicture(const CommandLine &line)
{
    if (line.isDark)
        useDarkPalette();
    else
        useLightPalette();
    const QString problem = makeSnapshot(line.files.value(0), line.snapshot);
    return problem.isEmpty() ? Succeeded : fail(Failed, problem);
}

/// Where the programs of the session meet; empty when this one keeps to itself.
QString meetingPlace(const CommandLine &line)
{
    const QString folder = line.isNewInstance ? QString() : sessionFolder();
    return folder.isEmpty() ? folder
                            : folder + QLatin1String("/quillet-") + sessionName(line.helpWindow);
}

std::unique_ptr<InstanceSocket> loadInstanceSocket()
{
    auto *module =
        qobject_cast<InstanceModule *>(loadProgramModule(QStringLiteral("quillet_session")));
    return module ? module->makeSocket() : nullptr;
}

int edit(const CommandLine &line, const OpenRequest &request)
{
    OneInstance instance(meetingPlace(line), loadInstanceSocket);
    if (instance.begin(request) == OneInstance::Role::HandedOver)
        return Succeeded; // the log is the other program's
    const LogClaim log;
    OpenFileLog(QStringLiteral("XT"), log.applicationName()); // before any file is read
    FileOperations operations;
    RecoveryStore recovery(RecoveryStore::usualRoot(), operations);
    QtPrompts prompts;
    AppDelegate delegate(prompts);
    delegate.setHelpArguments(line.helpWindow);
    delegate.keepChanges(recovery);
    const ExitHook atExit([&delegate] { delegate.writeRecovery(); });
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &delegate,
                     &AppDelegate::terminateSoon);
    instance.setMayTake([&delegate] { return delegate.mayOpen(); });
    QObject::connect(&instance, &OneInstance::requested, &delegate, &AppDelegate::openRequested);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &instance, &OneInstance::stop);
    delegate.applicationDidFinishLaunching(request.files);
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // whoever started the program may not read what it prints
#endif
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is an error of its writing
#endif
    holdStandardStreams();
    ignoreRelativeFolders();
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));

    // What needs no window is answered before Qt looks for a display.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i])); // names of files, mostly
    CommandLine line = CommandLine::parse(arguments);
    if (!line.error.isEmpty())
        return fail(Misused, line.error);
    if (line.answer) {
        const QString obstacle = printOut(line.answer->toLocal8Bit());
        return obstacle.isEmpty()
                   ? Succeeded
                   : fail(Failed, QStringLiteral("The text could not be printed: ") + obstacle);
    }
    if (!line.snapshot.isEmpty()) {
        const QString obstacle = snapshotObstacle(line.snapshot);
        if (!obstacle.isEmpty())
            return fail(Misused, obstacle);
        prepareForSnapshot();
    }

    if (line.snapshot.isEmpty() && !line.isHelpWindow) // else whoever asks has said all
        line.preferLanguage(Settings().text(Setting::Language));
    if (line.isHelpWindow)
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // the engine's wish
    const OpenRequest request = OpenRequest::ofThisStart(line.files);
    printMessage = qInstallMessageHandler(endWhereQtCannotStart);
    QApplication app(argc, argv); // takes Qt's own options
    qInstallMessageHandler(printMessage);
    QApplication::setStyle(new ProgramStyle);
    QApplication::setDesktopFileName(QStringLiteral("org.quillet.Quillet"));
    QApplication::setWindowIcon(QIcon(new ApplicationIcon));
    installTranslations(line.language);
    speakCurrentItems();
    if (!line.snapshot.isEmpty())
        return makePicture(line);
    if (line.isDark)
        useDarkPalette();
    else
        mendPalette();
    return line.isHelpWindow ? runHelpWindow() : edit(line, request);
}
