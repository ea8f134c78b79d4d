#include "cli/CompletionFacts.h"

namespace quillet {

namespace {

constexpr char beginning[] = R"sh(#compdef quillet-cli
# Has zsh complete the commands, options and files of quillet-cli.
# Written by: quillet-cli --completion zsh

# Files of the kinds that the last argument names, and folders; all files where there are none.
_quillet_cli_files()
{
    _files "${@[1,-2]}" -g "*.(#i)(${argv[-1]// /|})(-.)"
}

)sh";

constexpr char ending[] = R"sh(
if [[ ${funcstack[1]-} == _quillet-cli ]]; then
    _quillet-cli "$@"
else
    compdef _quillet-cli quillet-cli
fi
)sh";

QString quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

/// With a backslash before each of these characters.
QString escaped(QString text, const QString &characters)
{
    for (const QChar character : characters)
        text.replace(character, QString(u'\\') + character);
    return text;
}

/// The values of an option, for _arguments.
QString actionOf(const OptionFacts &facts)
{
    switch (valueKind(facts)) {
    case ValueKind::File:
        return QStringLiteral("_quillet_cli_files tll");
    case ValueKind::Choice:
        return u'(' + choicesOf(facts).join(u' ') + u')';
    case ValueKind::List:
        return QStringLiteral(" _quillet_cli_list ") + longNameOf(facts);
    case ValueKind::Text:
    case ValueKind::None:
        break;
    }
    return QStringLiteral(" ");
}

QString formOf(const OptionFacts &facts, bool endsAll)
{
    const QStringList switches = switchesOf(facts);
    const bool hasValue = valueKind(facts) != ValueKind::None;
    const bool isRepeated = repeatedOptions.has(facts.option);
    const bool isAlone = endsAll || facts.option == Option::Help;
    QStringList heads;
    for (const QString &name : switches) {
        const bool isLong = name.startsWith(QLatin1String("--"));
        heads.append(name + QLatin1String(!hasValue || endsAll ? "" : isLong ? "=" : "+"));
    }
    QString text = isRepeated ? QStringLiteral("\\*")
                   : isAlone  ? QStringLiteral("'(- *)'")
                              : quoted(u'(' + switches.join(u' ') + u')');
    text += heads.size() == 1 ? heads.constFirst() : u'{' + heads.join(u',') + u'}';
    QString rest = u'[' + escaped(hintOf(facts), QStringLiteral("\\[]")) + u']';
    if (hasValue)
        rest += u':' + QLatin1String(facts.value) + u':' + actionOf(facts);
    return QLatin1String("            ") + text + quoted(rest) + QLatin1String(" \\\n");
}

QString operandForms(const Command &command)
{
    QString text;
    const QStringList names = QString::fromLatin1(command.operands).split(u' ');
    const QStringList suffixes = suffixesOf(command);
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString place = command.most == 0 ? QStringLiteral("*") : QString::number(i + 1);
        const QString what = QString(names.at(i)).remove(QLatin1String("...")).toLower();
        text += QLatin1String("            ") +
                quoted(place + u':' + what + QLatin1String(R"(:_quillet_cli_files ")") +
                       suffixes.at(i) + u'"') +
                QLatin1String(" \\\n");
    }
    return text.chopped(3) + u'\n';
}

QString commandCase(const Command &command)
{
    QString forms;
    for (const OptionFacts &facts : factsOf(command.options))
        forms += formOf(facts, false);
    return QStringLiteral("    %1)\n        _arguments -s -S : \\\n%2        ;;\n")
        .arg(QLatin1String(command.name), forms + operandForms(command));
}

/// How the values of options are completed that are several, apart by commas.
QString listFunction()
{
    QString cases;
    for (const OptionFacts &facts : factsOf(listOptions)) {
        QStringList values = choicesOf(facts);
        if (facts.option == Option::By) {
            for (QString &value : values)
                value = quoted(value + QLatin1String("::direction:(") +
                               QLatin1String(directionNames) + u')');
        }
        cases += QStringLiteral("    %1) _values -s , -S : %2 %3 ;;\n")
                     .arg(longNameOf(facts), QLatin1String(facts.value), values.join(u' '));
    }
    return QLatin1String("_quillet_cli_list()\n{\n    case $1 in\n") + cases +
           QLatin1String("    esac\n}\n\n");
}

QString commandsFunction()
{
    QString rows;
    for (const Command &command : commands()) {
        const QString hint = QLatin1String(command.summary);
        rows += QLatin1String("        ") +
                quoted(QLatin1String(command.name) + QLatin1String(":") + hint.chopped(1)) + u'\n';
    }
    return QLatin1String("_quillet_cli_commands()\n{\n    local -a commands=(\n") + rows +
           QLatin1String("        \"$@\"\n    )\n"
                         "    _describe -t commands command commands\n}\n\n");
}

} // namespace

QString zshCompletions()
{
    QString toolForms;
    for (const OptionFacts &facts : factsOf(toolOptions))
        toolForms += formOf(facts, true);
    QString cases;
    for (const Command &command : commands())
        cases += commandCase(command);
    return QLatin1String(beginning) + listFunction() + commandsFunction() +
           QLatin1String("_quillet-cli()\n{\n"
                         "    local context state state_descr line curcontext=$curcontext\n"
                         "    typeset -A opt_args\n"
                         "    if (( CURRENT == 2 )) || [[ $words[2] == -* ]]; then\n"
                         "        _arguments : \\\n") +
           toolForms +
           QLatin1String("            '1:command: _quillet_cli_commands \"help:Show help\"'\n"
                         "        return\n    fi\n"
                         "    shift words\n"
                         "    (( CURRENT-- ))\n"
                         "    curcontext=${curcontext%:*:*}:quillet-cli-$words[1]:\n"
                         "    case $words[1] in\n"
                         "    help) (( CURRENT == 2 )) && _quillet_cli_commands ;;\n") +
           cases + QLatin1String("    esac\n}\n") + QLatin1String(ending);
}

} // namespace quillet
