#include "cli/Invocation.h"

#include "cli/OptionTexts.h"

#include <QCommandLineParser>

namespace quillet {

std::optional<Invocation> Invocation::parse(const Command &command, const QStringList &arguments,
                                            QString &problem)
{
    QCommandLineParser parser;
    for (const OptionFacts &facts : optionFacts) {
        if (command.options.has(facts.option))
            parser.addOption({namesOf(facts), {}, QString::fromLatin1(facts.value)});
    }
    const QStringList all = QStringList(QLatin1String(command.name)) + arguments;
    if (!parser.parse(all)) {
        problem = parser.errorText();
        return {};
    }
    Invocation invocation(command);
    invocation.m_operands = parser.positionalArguments();
    for (const OptionFacts &facts : optionFacts) {
        const QString name = namesOf(facts).constFirst();
        if (command.options.has(facts.option) && parser.isSet(name))
            invocation.m_values.insert(facts.option, parser.values(name));
    }
    problem = invocation.wrongChoice();
    if (problem.isEmpty() && !invocation.isSet(Option::Help))
        problem = invocation.wrongOperands();
    if (!problem.isEmpty())
        return {};
    return invocation;
}

QString Invocation::value(Option option) const
{
    const auto found = m_values.constFind(option);
    return found == m_values.constEnd() || found->isEmpty() ? QString() : found->constLast();
}

QStringList Invocation::parts(Option option) const
{
    QStringList parts;
    for (const QString &value : values(option))
        parts += value.split(u',', Qt::SkipEmptyParts);
    for (QString &part : parts)
        part = part.trimmed();
    return parts;
}

QString Invocation::wrongChoice() const
{
    for (const OptionFacts &facts : optionFacts) {
        if (!facts.choices)
            continue;
        const QStringList choices = choicesOf(facts);
        const QStringList chosenParts =
            listOptions.has(facts.option) ? parts(facts.option) : values(facts.option);
        if (isSet(facts.option) && chosenParts.isEmpty())
            return QStringLiteral("%1 takes %2, and has nothing.")
                .arg(switchesOf(facts).constLast(), choices.join(QLatin1String(", ")));
        for (const QString &part : chosenParts) {
            // What to sort by may have a direction behind it.
            const QString chosen = facts.option == Option::By ? part.section(u':', 0, 0) : part;
            if (!choices.contains(chosen))
                return QStringLiteral("%1 takes %2, not \"%3\".")
                    .arg(switchesOf(facts).constLast(), choices.join(QLatin1String(", ")), part);
        }
    }
    return {};
}

QString Invocation::wrongOperands() const
{
    const auto count = m_operands.size();
    const bool mayHaveNone = m_command->options.has(Option::Files0From);
    if (count == 0 && mayHaveNone && !isSet(Option::Files0From))
        return QStringLiteral("A file is missing.");
    if (count < m_command->fewest || (m_command->most > 0 && count > m_command->most))
        return QStringLiteral("This takes %1.").arg(QLatin1String(m_command->operands));
    if (m_operands.contains(QString()))
        return QStringLiteral("A file needs a name.");
    if (m_operands.count(QLatin1String("-")) + (value(Option::Files0From) == QLatin1String("-")) >
        1)
        return QStringLiteral("The standard input can be read only once.");
    return {};
}

} // namespace quillet
