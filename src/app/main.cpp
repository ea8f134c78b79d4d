#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Snapshot.h"
#include "app/Translations.h"
#include "framework/QtPrompts.h"

#include <QApplication>

#include <cstdio>

using namespace quillet;

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine line = CommandLine::parse(arguments);
    if (!line.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(line.error));
        return 2;
    }
    if (line.answer) {
        std::fputs(qPrintable(*line.answer), stdout);
        return 0;
    }
    if (!line.snapshot.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Quillet"));
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    installTranslations();
    if (line.isDark)
        useDarkPalette();
    if (!line.snapshot.isEmpty()) {
        const QString problem = makeSnapshot(line.files.value(0), line.snapshot);
        if (problem.isEmpty())
            return 0;
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    QtPrompts prompts;
    AppDelegate delegate(prompts);
    delegate.applicationDidFinishLaunching(line.files);
    return QApplication::exec();
}
