#include "app/CommandLine.h"

#include <QCommandLineParser>

namespace quillet {

CommandLine CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Edits the channel lists (TLL files) of LG television sets."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption snapshot(
        QStringLiteral("snapshot"),
        QStringLiteral("Save a picture of the window that shows FILE as <picture> (PNG) and end. "
                       "Needs no display."),
        QStringLiteral("picture"));
    const QCommandLineOption dark(QStringLiteral("dark"),
                                  QStringLiteral("Make that picture in dark colours."));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Show the texts in <language>, for example \"de\"."),
        QStringLiteral("language"));
    parser.addOption(language);
    parser.addOption(snapshot);
    parser.addOption(dark);
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Channel lists to open."),
                                 QStringLiteral("[FILE...]"));

    CommandLine line;
    if (!parser.parse(arguments))
        line.error = parser.errorText();
    if (parser.isSet(help))
        line.answer = parser.helpText();
    else if (parser.isSet(version))
        line.answer = QStringLiteral("Quillet " QUILLET_VERSION "\n");
    line.files = parser.positionalArguments();
    line.language = parser.value(language);
    line.snapshot = parser.value(snapshot);
    line.isDark = parser.isSet(dark);
    if (!line.snapshot.isEmpty() && line.files.size() > 1)
        line.error = QStringLiteral("--snapshot shows one file only.");
    return line;
}

} // namespace quillet
