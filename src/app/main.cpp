#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Snapshot.h"
#include "app/Translations.h"
#include "files/FileNames.h"
#include "framework/QtPrompts.h"
#include "support/KXFileLog.h"

#include <QApplication>
#include <QIcon>
#include <QRegularExpression>

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

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is an error of its writing
#endif
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i])); // names of files, mostly
    // What needs no window is answered before Qt looks for a display.
    const CommandLine early = CommandLine::parse(arguments);
    const bool mayBeQts = arguments.indexOf(QRegularExpression(QStringLiteral("-[a-z]+"))) >= 0;
    if (!early.error.isEmpty() && !mayBeQts) {
        std::fprintf(stderr, "%s\n", qPrintable(early.error));
        return 2;
    }
    if (early.answer) {
        std::fputs(qPrintable(*early.answer), stdout);
        return 0;
    }
    if (!early.snapshot.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv); // takes Qt's own options out
    QStringList left;
    for (int i = 0; i < argc; ++i)
        left.append(pathFromBytes(argv[i]));
    const CommandLine line = CommandLine::parse(left);
    if (!line.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(line.error));
        return 2;
    }
    QApplication::setApplicationDisplayName(QStringLiteral("Quillet"));
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QApplication::setWindowIcon(applicationIcon());
    installTranslations(line.language);
    if (!line.snapshot.isEmpty()) {
        if (line.isDark)
            useDarkPalette();
        const QString problem = makeSnapshot(line.files.value(0), line.snapshot);
        if (problem.isEmpty())
            return 0;
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    OpenFileLog(QStringLiteral("XT")); // before the files of the command line are read
    QtPrompts prompts;
    AppDelegate delegate(prompts);
    delegate.applicationDidFinishLaunching(line.files);
    return QApplication::exec();
}
