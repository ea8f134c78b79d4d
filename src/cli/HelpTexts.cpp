#include "cli/HelpTexts.h"

#include "cli/CommandTable.h"
#include "cli/OptionTexts.h"

#include <QStringList>

namespace quillet {

namespace {

constexpr qsizetype lineLength = 80;
constexpr qsizetype nameWidth = 26;

/// A name and what it means, that in lines beside it.
QString row(const QString &name, const QString &text)
{
    QString out = QLatin1String("  ") + name;
    qsizetype length = out.size();
    if (length + 1 >= nameWidth) {
        out += u'\n';
        length = 0;
    }
    out += QString(nameWidth - length, u' ');
    length = nameWidth;
    for (const QString &word : text.split(u' ')) {
        if (length + word.size() >= lineLength) {
            while (out.endsWith(u' '))
                out.chop(1);
            out += u'\n' + QString(nameWidth, u' ');
            length = nameWidth;
        }
        out += word + u' ';
        length += word.size() + 1;
    }
    return out.trimmed().prepend(QLatin1String("  ")) + u'\n';
}

QString nameOf(const OptionFacts &facts)
{
    QString text = switchesOf(facts).join(QLatin1String(", "));
    if (facts.value)
        text += QLatin1String(" <") + QLatin1String(facts.value) + u'>';
    return text;
}

QString descriptionOf(const OptionFacts &facts)
{
    QString text = QString::fromLatin1(facts.description);
    if (facts.choices)
        text +=
            QStringLiteral(" %1 of %2.")
                .arg(listOptions.has(facts.option) ? QLatin1String("Some") : QLatin1String("One"),
                     choicesOf(facts).join(QLatin1String(", ")));
    return text;
}

QString optionRows(OptionSet options)
{
    QString text;
    for (const OptionFacts &facts : optionFacts) {
        if (options.has(facts.option))
            text += row(nameOf(facts), descriptionOf(facts));
    }
    return text;
}

constexpr char statuses[] =
    "Exit status:\n"
    "  0  done, and nothing to tell\n"
    "  1  findings: differences, damage, conflicts, or a loss that was refused\n"
    "  2  the command line cannot be understood\n"
    "  3  a file could not be read or written\n";

} // namespace

QString toolHelp()
{
    QString text = QStringLiteral(
        "Usage: quillet-cli COMMAND [OPTIONS] FILE...\n"
        "Reads and edits the channel lists (TLL files) of LG television sets.\n\n"
        "Nothing is ever written without --output or --in-place. \"-\" stands for the\n"
        "standard input or output. 'quillet-cli COMMAND --help' tells of a command.\n\n"
        "Commands:\n");
    for (const Command &command : commands())
        text += row(QLatin1String(command.name), QLatin1String(command.summary));
    text += QLatin1String("\nOptions:\n");
    text += optionRows(toolOptions);
    return text + u'\n' + QLatin1String(statuses);
}

QString commandHelp(const Command &command)
{
    QString text = QStringLiteral("Usage: quillet-cli %1 [OPTIONS] %2\n%3\n\n%4\n\nOptions:\n")
                       .arg(QLatin1String(command.name), QLatin1String(command.operands),
                            QLatin1String(command.summary), QLatin1String(command.description));
    text += optionRows(command.options);
    return text + u'\n' + QLatin1String(statuses);
}

} // namespace quillet
