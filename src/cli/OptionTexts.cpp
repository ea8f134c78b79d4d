#include "cli/OptionTexts.h"

namespace quillet {

QStringList namesOf(const OptionFacts &facts)
{
    return QString::fromLatin1(facts.names).split(u',');
}

QStringList switchesOf(const OptionFacts &facts)
{
    QStringList switches = namesOf(facts);
    for (QString &name : switches)
        name.prepend(name.size() == 1 ? QLatin1String("-") : QLatin1String("--"));
    return switches;
}

QString longNameOf(const OptionFacts &facts)
{
    return namesOf(facts).constLast();
}

QStringList choicesOf(const OptionFacts &facts)
{
    return QString::fromLatin1(facts.choices).split(u' ', Qt::SkipEmptyParts);
}

} // namespace quillet
