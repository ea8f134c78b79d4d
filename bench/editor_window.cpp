// The program's start without arguments, up to its empty window.

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "bench/FirstPaint.h"
#include "framework/QtPrompts.h"
#include "texts/Translations.h"

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    const quillet::CommandLine line =
        quillet::CommandLine::parse({QString::fromLocal8Bit(argv[0])});

    const QApplication app(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("org.quillet.Quillet"));
    const quillet::bench::FirstPaint firstPaint;
    quillet::installTranslations();
    quillet::QtPrompts prompts;
    quillet::AppDelegate delegate(prompts);
    delegate.applicationDidFinishLaunching(line.files);
    return QApplication::exec();
}
