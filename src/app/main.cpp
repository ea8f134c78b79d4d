#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/ExitHook.h"
#include "app/HelpProgram.h"
#include "app/OneInstance.h"
#include "app/Palettes.h"
#include "app/SessionFolder.h"
#include "app/Snapshot.h"
#include "app/TerminationSignals.h"
#include "files/Environment.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/RecoveryStore.h"
#include "framework/QtPrompts.h"
#include "support/KXFileLog.h"
#include "support/LogClaim.h"
#include "texts/Translations.h"

#include <QApplication>
#include <QIcon>

#include <csignal>
#include <cstdio>

using namespace quillet;

namespace {

QIcon applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/quillet-%1.png").arg(size));
    return icon;
}

enum ExitCode { Succeeded, Failed, Misused };

constexpr char usage[] = "usage: quillet [--new-instance] [FILE...]\n"
                         "       quillet --snapshot <picture> [FILE]\n"
                         "       quillet --help\n";

int fail(ExitCode code, const QString &problem)
{
    std::fprintf(stderr, "quillet: %s\n%s", qPrintable(problem), code == Misused ? usage : "");
    return code;
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

int edit(const CommandLine &line, const OpenRequest &request)
{
    OneInstance instance(meetingPlace(line));
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
    ignoreRelativeFolders();
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));

    // What needs no window is answered before Qt looks for a display.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i])); // names of files, mostly
    const CommandLine line = CommandLine::parse(arguments);
    if (!line.error.isEmpty())
        return fail(Misused, line.error);
    if (line.answer) {
        std::fputs(qPrintable(*line.answer), stdout);
        return Succeeded;
    }
    if (!line.snapshot.isEmpty()) {
        const QString obstacle = snapshotObstacle(line.snapshot);
        if (!obstacle.isEmpty())
            return fail(Misused, obstacle);
        prepareForSnapshot();
    }

    if (line.isHelpWindow)
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // the engine's wish
    const OpenRequest request = OpenRequest::ofThisStart(line.files);
    QApplication app(argc, argv); // takes Qt's own options
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QApplication::setWindowIcon(applicationIcon());
    installTranslations(line.language);
    if (!line.snapshot.isEmpty())
        return makePicture(line);
    if (line.isDark)
        useDarkPalette();
    return line.isHelpWindow ? runHelpWindow() : edit(line, request);
}
