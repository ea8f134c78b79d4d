#include "cli/Completions.h"

#include "cli/CompletionFacts.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quillet {

namespace {

struct Shell
{
    QLatin1String name;
    QString (*completions)();
};

constexpr std::array shells{
    Shell{QLatin1String("bash"), bashCompletions},
    Shell{QLatin1String("zsh"), zshCompletions},
    Shell{QLatin1String("fish"), fishCompletions},
};

constexpr std::array kindNames{"none", "text", "file", "choice", "list"};

} // namespace

QString completions(const QString &shell)
{
    const auto *const found = std::find_if(
        shells.begin(), shells.end(), [&shell](const Shell &each) { return each.name == shell; });
    return found == shells.end() ? QString() : found->completions();
}

ValueKind valueKind(const OptionFacts &facts)
{
    if (!facts.value)
        return ValueKind::None;
    if (facts.choices)
        return listOptions.has(facts.option) ? ValueKind::List : ValueKind::Choice;
    return QLatin1String(facts.value) == QLatin1String("file") ? ValueKind::File : ValueKind::Text;
}

QString nameOf(ValueKind kind)
{
    return QLatin1String(kindNames.at(static_cast<std::size_t>(kind)));
}

QString hintOf(const OptionFacts &facts)
{
    QString hint = QString::fromLatin1(facts.description);
    for (const char *const end : {". ", "; ", ": "})
        hint = hint.section(QLatin1String(end), 0, 0);
    if (hint.endsWith(u'.'))
        hint.chop(1);
    return hint;
}

std::vector<OptionFacts> factsOf(OptionSet options)
{
    std::vector<OptionFacts> facts;
    std::copy_if(optionFacts.begin(), optionFacts.end(), std::back_inserter(facts),
                 [options](const OptionFacts &each) { return options.has(each.option); });
    return facts;
}

QStringList suffixesOf(const Command &command)
{
    QStringList suffixes;
    for (const QString &operand : QString::fromLatin1(command.operands).split(u' ')) {
        suffixes.append(operand == QLatin1String("ORDER") ? QStringLiteral("txt tll")
                        : operand == QLatin1String("CSV") ? QStringLiteral("csv tsv")
                                                          : QStringLiteral("tll"));
    }
    return suffixes;
}

} // namespace quillet
