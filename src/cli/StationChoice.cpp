#include "cli/StationChoice.h"

#include "cli/Invocation.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"

namespace quillet {

namespace {

QString foldedName(const QString &name)
{
    return plainName(name).toCaseFolded();
}

/// Without what tells services of one identity apart.
QString identifiersOf(StationKey key)
{
    key.frequency.clear();
    key.occurrence = 1;
    return key.text();
}

} // namespace

StationChoice::StationChoice(const Invocation &invocation)
{
    // An empty variable of a script must not mean all stations.
    for (const Option option : {Option::Stations, Option::Keys}) {
        if (invocation.isSet(option) && invocation.parts(option).isEmpty())
            m_problem = QStringLiteral("No station is chosen.");
    }
    for (const QString &part : invocation.parts(Option::Stations))
        readNumbers(part);
    for (const QString &name : invocation.values(Option::Named)) {
        const QString folded = foldedName(name);
        if (!m_names.contains(folded))
            m_names.insert(folded, wish(u'"' + name + u'"'));
    }
    for (const QString &part : invocation.parts(Option::Keys))
        readKey(part);
}

std::size_t StationChoice::wish(const QString &text)
{
    m_wishes.push_back({text});
    return m_wishes.size() - 1;
}

void StationChoice::readNumbers(const QString &part)
{
    bool isFirst = false, isLast = false;
    const qint64 first = part.section(u'-', 0, 0).toUShort(&isFirst);
    const qint64 last = part.contains(u'-') ? part.section(u'-', 1).toUShort(&isLast) : first;
    if (!isFirst || (part.contains(u'-') && !isLast) || last < first ||
        last > LGStation::progNumMask) {
        m_problem = QStringLiteral("\"%1\" is neither a number nor a range of them.").arg(part);
        return;
    }
    const std::size_t place = wish(part);
    for (qint64 number = first; number <= last; ++number) {
        if (!m_numbers.contains(number))
            m_numbers.insert(number, place);
    }
}

void StationChoice::readKey(const QString &part)
{
    const std::optional<StationKey> key = StationKey::fromText(part);
    if (!key) {
        m_problem = QStringLiteral("\"%1\" is no key of a station.").arg(part);
        return;
    }
    // Identifiers alone, as reference lists have them, stand for whatever has them.
    const bool isWhole = !key->frequency.isEmpty() || key->occurrence > 1;
    QHash<QString, std::size_t> &keys = isWhole ? m_keys : m_identifiers;
    const QString text = isWhole ? key->text() : identifiersOf(*key);
    if (!keys.contains(text))
        keys.insert(text, wish(part));
}

StationList StationChoice::of(const StationList &list)
{
    StationList chosen;
    const QStringList keys = m_keys.isEmpty() ? QStringList() : stationKeys(list);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const LGStation &station = *list[i];
        bool isChosen = false;
        const auto meet = [this, &isChosen](const auto &wishes, const auto &fact) {
            const auto found = wishes.constFind(fact);
            if (found == wishes.constEnd())
                return;
            m_wishes[*found].isMet = true;
            isChosen = true;
        };
        meet(m_numbers, station.progNum());
        if (!m_names.isEmpty())
            meet(m_names, foldedName(station.shownName()));
        if (!m_keys.isEmpty())
            meet(m_keys, keys.at(static_cast<qsizetype>(i)));
        if (!m_identifiers.isEmpty())
            meet(m_identifiers, identifiersOf(StationKey::of(station)));
        if (isChosen)
            chosen.push_back(list[i]);
    }
    return chosen;
}

QStringList StationChoice::unmet() const
{
    QStringList texts;
    for (const Wish &each : m_wishes) {
        if (!each.isMet)
            texts.append(each.text);
    }
    return texts;
}

} // namespace quillet
