#include "app/CommandLine.h"

#include "app/PlatformOptions.h"
#include "files/FileNames.h"
#include "texts/Translations.h"

#include <QCommandLineParser>

namespace quillet {

namespace {

struct Option
{
    const char *names; ///< apart by commas
    const char *value; ///< what it is called; null: none is taken
    const char *description;
};

constexpr Option languageOption{"language", "language",
                                "Show the texts in <language> (%LANGUAGES) instead of the "
                                "desktop's."};
constexpr Option snapshotOption{
    "snapshot", "picture",
    "Save a picture of the window that shows FILE as <picture> (PNG) and end. "
    "Needs no display."};
constexpr Option darkOption{"dark", nullptr, "Use dark colours, whatever the desktop's are."};
constexpr Option newInstanceOption{
    "new-instance", nullptr,
    "Start a program of its own instead of opening the files in one that is running."};
constexpr Option helpOption{"h,help", nullptr, "Show this help."};
constexpr Option allHelpOption{"help-all", nullptr, "Show this help and Qt's own options."};
constexpr Option versionOption{"v,version", nullptr, "Show the program's version."};
constexpr Option helpWindowOption{"help-window", nullptr, ""}; // for the program itself

constexpr char exitStatus[] =
    R"(Exit status:
  0  The program was quit, its files were handed to one that is running, the
     picture was saved, or the text that was asked for was printed.
  1  The file could not be read or the picture not be saved, the text could not
     be printed, or there is no display (any more) to show windows on.
  2  An argument is wrong, or the picture would replace something else than a
     PNG picture. Nothing was done.
The window tells of files that cannot be opened; the exit status does not.
)";

QString languageNames()
{
    return textLanguages().join(QLatin1String(", "));
}

QCommandLineOption made(const Option &option)
{
    QString description = QString::fromLatin1(option.description);
    if (const QLatin1String languages("%LANGUAGES"); description.contains(languages))
        description.replace(languages, languageNames());
    return {QString::fromLatin1(option.names).split(u','), description,
            QString::fromLatin1(option.value)};
}

QString firstName(const Option &option)
{
    return QString::fromLatin1(option.names).section(u',', 0, 0);
}

QString helpText(const QCommandLineParser &parser)
{
    // The parser only knows the name of the program once there is an application object.
    return parser.helpText().replace(QLatin1String("<executable_name>"), QLatin1String("quillet"));
}

/// What is wrong with options that the parser has taken; empty: nothing.
QString problem(const QCommandLineParser &parser)
{
    const QString chosen = parser.value(firstName(languageOption));
    if (parser.isSet(firstName(languageOption)) && !hasTexts(chosen))
        return QStringLiteral("There are no texts in the language \"%1\", only in %2.")
            .arg(chosen, languageNames());
    if (parser.positionalArguments().contains(QString()))
        return QStringLiteral("A file needs a name.");
    if (!parser.isSet(firstName(snapshotOption)))
        return {};
    const QString picture = parser.value(firstName(snapshotOption));
    if (picture.isEmpty() || picture.startsWith(u'-'))
        return QStringLiteral("--snapshot needs the name of a picture.");
    if (parser.positionalArguments().size() > 1)
        return QStringLiteral("--snapshot shows one file only.");
    return {};
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const PlatformOptions platform = takePlatformOptions(arguments);
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Edits the channel lists (TLL files) of LG television sets."));
    for (const Option &option : {helpOption, allHelpOption, versionOption, languageOption,
                                 snapshotOption, darkOption, newInstanceOption})
        parser.addOption(made(option));
    QCommandLineOption hidden = made(helpWindowOption);
    hidden.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(hidden);
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A channel list to open."),
                                 QStringLiteral("[FILE...]"));

    CommandLine line;
    line.error = parser.parse(platform.others) ? problem(parser) : parser.errorText();
    if (!platform.incomplete.isEmpty())
        line.error = QStringLiteral("Missing value after '%1'.").arg(platform.incomplete);
    line.error = readable(line.error); // an argument may be anything
    const bool isAllWanted = parser.isSet(firstName(allHelpOption));
    if (isAllWanted || parser.isSet(firstName(helpOption)))
        line.answer = helpText(parser) + u'\n' +
                      (isAllWanted ? platformOptionsText() + u'\n' : QString()) +
                      QLatin1String(exitStatus);
    else if (parser.isSet(firstName(versionOption)))
        line.answer = QStringLiteral("Quillet " QUILLET_VERSION "\n");
    line.files = parser.positionalArguments();
    line.language = parser.value(firstName(languageOption));
    line.snapshot = parser.value(firstName(snapshotOption));
    line.isDark = parser.isSet(firstName(darkOption));
    line.isNewInstance = parser.isSet(firstName(newInstanceOption));
    line.isHelpWindow = parser.isSet(firstName(helpWindowOption));

    line.helpWindow = platform.ofEveryWindow;
    line.helpWindow.append(QStringLiteral("--help-window"));
    if (!line.language.isEmpty())
        line.helpWindow += {QStringLiteral("--language"), line.language};
    if (line.isDark)
        line.helpWindow.append(QStringLiteral("--dark"));
    return line;
}

void CommandLine::preferLanguage(const QString &preferred)
{
    if (!language.isEmpty() || !hasTexts(preferred))
        return;
    language = preferred;
    helpWindow += {QStringLiteral("--language"), language};
}

} // namespace quillet
