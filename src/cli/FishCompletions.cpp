#include "cli/CompletionFacts.h"

namespace quillet {

namespace {

constexpr char beginning[] =
    R"sh(# Has fish complete the commands, options and files of quillet-cli.
# Written by: quillet-cli --completion fish

set -g __quillet_cli_forms %1

# Whether nothing but the argument stands before what is being written.
function __quillet_cli_follows
    set -l words (commandline -opc)
    test "$words[2..]" = "$argv"
end

# How many operands follow the command, and the options that do.
function __quillet_cli_given
    set -l words (commandline -opc)
    set -e words[1..2]
    # The value of the last one may be what is being written.
    argparse --ignore-unknown $__quillet_cli_forms -- $words 2>/dev/null
    or argparse --ignore-unknown $__quillet_cli_forms -- $words[1..-2] 2>/dev/null
    count $argv
    for form in $__quillet_cli_forms
        set -l name (string replace -r -- '^./' '' $form | string replace -- '=+' '')
        set -q _flag_(string replace --all -- - _ $name)
        and echo $name
    end
end

# Whether the command is one of those behind the first argument, an option that was not given yet.
function __quillet_cli_wants
    set -l words (commandline -opc)
    test (count $words) -ge 2
    and contains -- $words[2] $argv[2..]
    and not contains -- $argv[1] (__quillet_cli_given)
end

# Whether the command is the first argument and the number of its operands passes a test.
function __quillet_cli_expects
    set -l words (commandline -opc)
    test (count $words) -ge 2; and test "$words[2]" = $argv[1]; or return
    set -l given (__quillet_cli_given)
    test $given[1] $argv[2..]
end

# Those of the arguments that the list which is being written has not, each behind that list.
function __quillet_cli_list
    set -l list (commandline -ct | string replace -r -- '^(--[^=]*=|-[a-z])' '')
    set -l given (string match -r -- '^.*,' $list; or echo)
    for each in $argv
        string match -qr -- ','(string replace -r -- ':.*' '' $each)'[,:]' ,$given
        or echo $given$each
    end
end

# Files with one of the endings, and folders. Fails where there are none such, or where a name has
# a line end in it: then fish itself completes all files.
function __quillet_cli_files
    set -l word (commandline -ct | string replace -r -- '^--[^=]*=' '')
    set -l all (complete -C "__fish_command_without_completions $word")
    set -l wanted (string match -ri -- '^.*\.(?:'(string join '|' -- $argv)')$' $all)
    or return
    for each in $wanted
        test -e (string replace -r -- '^~/' ~/ $each); or return
    end
    printf '%s\n' $wanted (string match -r -- '^.*/$' $all)
end

)sh";

QString quoted(const QString &text)
{
    return u'\'' +
           QString(text)
               .replace(u'\\', QLatin1String("\\\\"))
               .replace(u'\'', QLatin1String("\\'")) +
           u'\'';
}

QString line(const QString &condition, const QString &rest)
{
    return QStringLiteral("complete -c quillet-cli -n %1 %2\n").arg(quoted(condition), rest);
}

QString valuesOf(const OptionFacts &facts)
{
    QStringList values = choicesOf(facts);
    switch (valueKind(facts)) {
    case ValueKind::None:
        return {};
    case ValueKind::Text:
        return QStringLiteral(" -x");
    case ValueKind::File:
        return QStringLiteral(" -rF");
    case ValueKind::Choice:
        return QStringLiteral(" -kxa ") + quoted(choicesOf(facts).join(u' '));
    case ValueKind::List:
        break;
    }
    if (facts.option == Option::By) {
        const QStringList names = values;
        for (const QString &direction : QString::fromLatin1(directionNames).split(u' ')) {
            for (const QString &name : names)
                values.append(name + u':' + direction);
        }
    }
    return QStringLiteral(" -kxa '(__quillet_cli_list %1)'").arg(values.join(u' '));
}

QString switchesAndHint(const OptionFacts &facts)
{
    const QString names = QString::fromLatin1(facts.names);
    QString text = QLatin1String("-l ") + longNameOf(facts);
    if (names.contains(u','))
        text.prepend(QLatin1String("-s ") + names.section(u',', 0, 0) + u' ');
    return text + QLatin1String(" -d ") + quoted(hintOf(facts));
}

QString formsOfAll()
{
    QStringList forms;
    for (const OptionFacts &facts : optionFacts) {
        if (toolOptions.has(facts.option) && facts.option != Option::Help)
            continue;
        QString form = QString::fromLatin1(facts.names).replace(u',', u'/');
        if (facts.value)
            form += QLatin1String("=+");
        forms.append(form);
    }
    return forms.join(u' ');
}

QString optionLine(const OptionFacts &facts)
{
    QStringList words{repeatedOptions.has(facts.option) ? QStringLiteral("''") : longNameOf(facts)};
    for (const Command &command : commands()) {
        if (command.options.has(facts.option))
            words.append(QLatin1String(command.name));
    }
    if (words.size() == 1)
        return {};
    return line(QLatin1String("__quillet_cli_wants ") + words.join(u' '),
                switchesAndHint(facts) + valuesOf(facts));
}

QString fileLines(const QString &condition, const QString &suffixes)
{
    const QString files = QLatin1String("__quillet_cli_files ") + suffixes;
    return line(condition, QStringLiteral("-kxa '(%1)'").arg(files)) +
           line(condition + QStringLiteral("; and not %1 >/dev/null").arg(files),
                QStringLiteral("-F"));
}

QString operandLines(const Command &command)
{
    QString text;
    const QStringList suffixes = suffixesOf(command);
    for (qsizetype i = 0; i < suffixes.size(); ++i) {
        const QString test = command.most == 0 ? QStringLiteral("-ge") : QStringLiteral("-eq");
        text += fileLines(QStringLiteral("__quillet_cli_expects %1 %2 %3")
                              .arg(QLatin1String(command.name), test)
                              .arg(i),
                          suffixes.at(i));
    }
    return text;
}

} // namespace

QString fishCompletions()
{
    QString text = QString(QLatin1String(beginning)).arg(formsOfAll());
    text += QLatin1String("complete -c quillet-cli -f\n");
    const QString first = QStringLiteral("__quillet_cli_follows");
    const QString help = QStringLiteral("__quillet_cli_follows help");
    for (const Command &command : commands()) {
        const QString name = QLatin1String(command.name);
        const QString hint = QString::fromLatin1(command.summary).chopped(1);
        const QString rest = QStringLiteral("-kxa %1 -d %2").arg(name, quoted(hint));
        text += line(first, rest) + line(help, rest);
    }
    text += line(first, QStringLiteral("-kxa help -d 'Show help'"));
    for (const OptionFacts &facts : factsOf(toolOptions)) {
        text += line(first, switchesAndHint(facts));
        if (facts.choices)
            text += line(first + QLatin1String(" --") + longNameOf(facts),
                         QLatin1String("-kxa ") + quoted(choicesOf(facts).join(u' ')));
    }
    for (const OptionFacts &facts : optionFacts)
        text += optionLine(facts);
    for (const Command &command : commands())
        text += operandLines(command);
    return text;
}

} // namespace quillet
