#include "cli/CompletionFacts.h"

namespace quillet {

namespace {

constexpr char beginning[] =
    R"sh(# Has bash complete the commands, options and files of quillet-cli.
# Written by: quillet-cli --completion bash

)sh";

/// Behind the tables: each function answers in variables of _quillet_cli.
constexpr char ending[] = R"sh(
# Sets text to what a word means that may end within quotes.
_quillet_cli_unquote()
{
    local rest=$1 quote= character
    text=
    if [[ $rest == '~/'* ]]; then
        text=$HOME rest=${rest:1}
    fi
    while [[ -n $rest ]]; do
        character=${rest:0:1} rest=${rest:1}
        case $quote$character in
        \\ | \"\\)
            [[ -z $quote || $rest == [\"\\\$\`]* ]] && character=${rest:0:1} rest=${rest:1}
            text+=$character
            ;;
        \' | \") quote=$character ;;
        \'\' | \"\") quote= ;;
        *) text+=$character ;;
        esac
    done
}

# Offers those of the other arguments that continue the word, behind what comes before them.
_quillet_cli_offer()
{
    local before=$1 each
    shift
    for each; do
        each=$before$each
        [[ $each == "$word"* ]] && COMPREPLY+=("${each#"$parted"}")
    done
}

# Offers files of the usual kinds and folders; without such files bash offers all.
_quillet_cli_files()
{
    local kinds=${1// /|} before=$2 text restored each files found=
    _quillet_cli_unquote "${word#"$before"}"
    restored=$(shopt -p nullglob failglob)
    shopt -s nullglob
    shopt -u failglob
    files=("$text"*)
    eval "$restored"
    for each in "${files[@]}"; do
        if [[ -d $each ]]; then
            COMPREPLY+=("$each")
        elif [[ ${each,,} == *.@($kinds) ]]; then
            COMPREPLY+=("$each")
            found=yes
        fi
    done
    if [[ -z $found ]]; then
        COMPREPLY=()
        return
    fi
    # As they were written: in the home folder, behind what the line editor takes for a word before.
    _quillet_cli_unquote "$parted"
    for each in "${!COMPREPLY[@]}"; do
        [[ ${word#"$before"} == '~/'* ]] && COMPREPLY[each]=\~${COMPREPLY[each]#"$HOME"}
        COMPREPLY[each]=$before${COMPREPLY[each]}
        COMPREPLY[each]=${COMPREPLY[each]#"$text"}
    done
    compopt -o filenames 2>/dev/null
}

# Offers values of the option whose facts are set.
_quillet_cli_values()
{
    local before=$1 value=${word#"$1"} each given
    local part=${value##*,}
    case $kind in
    file) _quillet_cli_files tll "$before" ;;
    choice) _quillet_cli_offer "$before" $choices ;;
    list)
        compopt -o nospace 2>/dev/null
        given=${value%"$part"}
        if [[ -n $directions && $part == *:* ]]; then
            _quillet_cli_offer "$before$given${part%%:*}:" $directions
            return
        fi
        for each in $choices; do
            [[ ,$given == *,"$each"[,:]* ]] || _quillet_cli_offer "$before$given" "$each"
        done
        ;;
    esac
    [[ $kind == file ]] || compopt +o default +o bashdefault 2>/dev/null
}

# Notes the options of a word; sets pending to one that still wants its value.
_quillet_cli_note()
{
    local letters=${1#-}
    if [[ $1 == --* ]]; then
        _quillet_cli_option "${1%%=*}" || return
        [[ -n $repeated ]] || used+=" $names "
        [[ $kind == none || $1 == *=* ]] || pending=$1
        return
    fi
    while [[ -n $letters ]]; do
        _quillet_cli_option "-${letters:0:1}" || return
        [[ -n $repeated ]] || used+=" $names "
        letters=${letters:1}
        if [[ $kind != none ]]; then
            [[ -n $letters ]] || pending=${names%% *}
            return
        fi
    done
}

_quillet_cli_options()
{
    local each
    for each in $options; do
        [[ $used == *" $each "* ]] || _quillet_cli_offer '' "$each"
    done
}

_quillet_cli()
{
    local IFS=$' \t\n' words=() word= last=-1 each previous= parted
    local names kind choices directions repeated options operands most commands
    local used= pending= count=0 only=
    COMPREPLY=()
    # An equals sign or a colon parts words for the line editor only.
    for each in "${COMP_WORDS[@]:0:COMP_CWORD+1}"; do
        if ((last > 0)) && [[ $each == [=:]* || $previous == *[=:] ]]; then
            words[last]+=$each
        else
            words[++last]=$each
        fi
        previous=$each
    done
    # What stands behind the cursor does not count.
    word=${words[last]}
    [[ -n ${2-} && $previous == "$2"* ]] && word=${word%"$previous"}$2
    parted=
    [[ $word == *[=:]* && $word != "$previous" ]] && parted=${word%"${2-}"}

    _quillet_cli_command ''
    if ((last < 2)); then
        [[ $word == -* ]] && _quillet_cli_options || _quillet_cli_offer '' $commands
        compopt +o default +o bashdefault 2>/dev/null
        return
    fi
    if ((last == 2)) && [[ ${words[1]} == help ]]; then
        _quillet_cli_offer '' ${commands% help}
    elif ((last == 2)) && [[ ${words[1]} == --completion ]] && _quillet_cli_option --completion; then
        _quillet_cli_values ''
    fi
    if [[ -z ${words[1]} || ${words[1]} == -* ]] || ! _quillet_cli_command "${words[1]}"; then
        compopt +o default +o bashdefault 2>/dev/null
        return
    fi

    for each in "${words[@]:2:last-2}"; do
        if [[ -n $pending ]]; then
            pending=
        elif [[ -z $only && $each == -- ]]; then
            only=operands
        elif [[ -z $only && $each == -?* ]]; then
            _quillet_cli_note "$each"
        else
            ((++count))
        fi
    done
    if [[ -n $pending ]]; then
        _quillet_cli_option "$pending" && _quillet_cli_values ''
    elif [[ -z $only && $word == --*=* ]]; then
        _quillet_cli_option "${word%%=*}" && _quillet_cli_values "${word%%=*}="
    elif [[ -z $only && $word == -* ]] || ((most > 0 && count >= most)); then
        [[ -z $only ]] && _quillet_cli_options
        compopt +o default +o bashdefault 2>/dev/null
    else
        ((count < ${#operands[@]})) || count=${#operands[@]}-1
        _quillet_cli_files "${operands[count]}" ''
    fi
}

complete -o bashdefault -o default -F _quillet_cli quillet-cli
)sh";

QString quoted(const QString &text)
{
    return u'\'' + text + u'\'';
}

QString optionCase(const OptionFacts &facts)
{
    const QStringList switches = switchesOf(facts);
    QString text = QStringLiteral("    %1) names=%2 kind=%3")
                       .arg(switches.join(QLatin1String(" | ")), quoted(switches.join(u' ')),
                            nameOf(valueKind(facts)));
    if (facts.choices)
        text += QLatin1String(" choices=") + quoted(choicesOf(facts).join(u' '));
    if (facts.option == Option::By)
        text += QLatin1String(" directions=") + quoted(QLatin1String(directionNames));
    if (repeatedOptions.has(facts.option))
        text += QLatin1String(" repeated=yes");
    return text + QLatin1String(" ;;\n");
}

QString commandCase(const QString &name, OptionSet options, const QStringList &operands, int most)
{
    QStringList switches;
    for (const OptionFacts &facts : factsOf(options))
        switches += switchesOf(facts);
    QStringList kinds;
    for (const QString &operand : operands)
        kinds.append(quoted(operand));
    return QStringLiteral("    %1) options=%2 operands=(%3) most=%4 ;;\n")
        .arg(name.isEmpty() ? quoted(name) : name, quoted(switches.join(u' ')), kinds.join(u' '))
        .arg(most);
}

} // namespace

QString bashCompletions()
{
    QString optionCases;
    for (const OptionFacts &facts : optionFacts)
        optionCases += optionCase(facts);
    QString commandCases = commandCase({}, toolOptions, {}, 0);
    QStringList names;
    for (const Command &command : commands()) {
        const QString name = QLatin1String(command.name);
        commandCases += commandCase(name, command.options, suffixesOf(command), command.most);
        names.append(name);
    }
    constexpr char cases[] = "# Sets what is known of the %1; fails for one that there is not.\n"
                             "_quillet_cli_%1()\n{\n%3    case $1 in\n%2"
                             "    *) return 1 ;;\n    esac\n}\n\n";
    const QString table = QLatin1String(cases);
    return QLatin1String(beginning) +
           table.arg(QStringLiteral("option"), optionCases,
                     QStringLiteral("    choices= directions= repeated=\n")) +
           table.arg(QStringLiteral("command"), commandCases,
                     QStringLiteral("    commands=%1\n")
                         .arg(quoted(names.join(u' ') + QLatin1String(" help")))) +
           QLatin1String(ending).mid(1);
}

} // namespace quillet
