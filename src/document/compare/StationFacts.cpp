#include "document/compare/StationFacts.h"

#include <algorithm>

namespace quillet {

/// None of an empty text.
StationFacts::Number StationFacts::number(TextNumbers &texts, QStringView text)
{
    if (text.isEmpty())
        return none;
    if (texts.count() == 0)
        texts.reserve(m_stations.capacity());
    const Number number = texts.number(text);
    m_end = std::max(m_end, texts.count());
    return number;
}

template<typename Fact>
StationFacts::Number StationFacts::number(QHash<Fact, Number> &numbers, const Fact &fact)
{
    if (numbers.isEmpty()) // texts are hashed again whenever a table grows
        numbers.reserve(static_cast<qsizetype>(m_stations.capacity()));
    Number &next = numbers[fact]; // one more than the number; 0 when it is new
    if (next == 0) {
        next = static_cast<Number>(numbers.size());
        m_end = std::max(m_end, static_cast<std::size_t>(next));
    }
    return next - 1;
}

std::size_t StationFacts::add(const LGStation &station)
{
    const std::optional<StationIdentity> identity = m_reader.read(station);
    m_stations.push_back({&station, identity ? number(m_identities, *identity) : none});
    return m_stations.size() - 1;
}

StationFacts::Number StationFacts::frequency(std::size_t place)
{
    Facts &facts = m_stations[place];
    if (facts.frequency == unread) {
        const std::optional<qint64> frequency = facts.station->frequency();
        facts.frequency = frequency ? number(m_frequencies, *frequency) : none;
    }
    return facts.frequency;
}

StationFacts::Number StationFacts::name(std::size_t place)
{
    Facts &facts = m_stations[place];
    if (facts.name == unread)
        facts.name = number(m_names, toldName(*facts.station));
    return facts.name;
}

StationFacts::Number StationFacts::looseName(std::size_t place)
{
    const Number ofName = name(place);
    if (ofName == none)
        return none;
    m_looseOf.resize(std::max(m_looseOf.size(), m_names.count()), unread);
    Number &loose = m_looseOf[static_cast<std::size_t>(ofName)];
    if (loose == unread)
        loose = number(m_looseNames, quillet::looseName(m_names.text(ofName)));
    return loose;
}

void StationFacts::readContent(Facts &facts)
{
    const auto [all, unedited] = m_hasher.hashesOf(*facts.station);
    facts.content = number(m_contents, WholeContent{all, facts.station});
    // A record that tells nothing else is like any other such one.
    facts.unedited =
        unedited == 0 ? none : number(m_unedited, UneditedContent{unedited, facts.station});
}

StationFacts::Number StationFacts::content(std::size_t place)
{
    if (m_stations[place].content == unread)
        readContent(m_stations[place]);
    return m_stations[place].content;
}

StationFacts::Number StationFacts::unedited(std::size_t place)
{
    if (m_stations[place].unedited == unread)
        readContent(m_stations[place]);
    return m_stations[place].unedited;
}

StationFacts::Number StationFacts::both(Number fact, Number other)
{
    return fact == none || other == none ? none : number(m_pairs, {fact, other});
}

} // namespace quillet
