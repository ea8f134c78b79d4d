#include "document/text/RowMatching.h"

#include "document/text/StationKey.h"
#include "model/CleanName.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

/// Stations with something in common: how many, and which is the only one.
struct Group
{
    std::size_t count = 0;
    std::size_t place = 0; ///< of the first

    void add(std::size_t at) { place = count++ == 0 ? at : place; }
    [[nodiscard]] std::optional<std::size_t> only() const
    {
        return count == 1 ? std::optional(place) : std::nullopt;
    }
};

/// Finds stations by those identifiers that a row tells in columns of their own, the service among
/// them.
class IdentifierIndex
{
public:
    explicit IdentifierIndex(const StationList &list) : m_list(list) {}

    [[nodiscard]] std::optional<std::size_t> find(const LGStation &row)
    {
        const Texts texts = textsOf(row);
        if (texts.front().isEmpty())
            return {};
        std::size_t told = 0; // a bit for each
        for (std::size_t i = 0; i < texts.size(); ++i)
            told |= texts[i].isEmpty() ? 0U : 1U << i;
        QHash<QString, Group> &groups = m_groups[told];
        if (groups.isEmpty()) {
            for (std::size_t place = 0; place < m_list.size(); ++place)
                groups[joined(textsOf(*m_list[place]), told)].add(place);
        }
        return groups.value(joined(texts, told)).only();
    }

private:
    static constexpr std::size_t partCount = 3;
    using Texts = std::array<QString, partCount>;

    static QString plain(const std::optional<QString> &text)
    {
        const QString told = text.value_or(QString()).trimmed();
        const QString digits = digitsOf(told);
        return digits.isEmpty() ? told : digits;
    }
    static Texts textsOf(const LGStation &station)
    {
        return {plain(station.serviceIdText()), plain(station.transportStreamIdText()),
                plain(station.networkIdText())};
    }
    static QString joined(const Texts &texts, std::size_t told)
    {
        QString joined;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (told & (1U << i))
                joined += texts[i] + u'\n';
        }
        return joined;
    }

    const StationList &m_list;
    std::array<QHash<QString, Group>, 1U << partCount> m_groups;
};

} // namespace

bool RowMatching::areSameNames(const QString &inTable, const QString &name)
{
    if (inTable == name || !inTable.contains(u'?'))
        return inTable == name;
    const QList<uint> told = inTable.toUcs4(), own = name.toUcs4();
    return std::equal(told.begin(), told.end(), own.begin(), own.end(),
                      [](uint a, uint b) { return a == b || (a == u'?' && b > 0x7F); });
}

RowMatching::RowMatching(const StationRows &rows, const StationList &list, bool mayRename)
    : m_told(rows), m_list(list), m_mayRename(mayRename), m_rows(rows.stations.size()),
      m_ownRows(list.size()), m_claimedBy(list.size())
{
    m_names.reserve(list.size());
    for (const StationPtr &station : list)
        m_names.push_back(plainName(station->shownName()));
}

void RowMatching::findOwn()
{
    QHash<QString, std::size_t> places;
    const QStringList keys = stationKeys(m_list);
    for (qsizetype i = 0; i < keys.size(); ++i)
        places.insert(keys[i], static_cast<std::size_t>(i));
    IdentifierIndex identifiers(m_list);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        if (!m_told.keys[i])
            row.own = identifiers.find(*m_told.stations[i]);
        else if (const auto found = places.constFind(*m_told.keys[i]); found != places.cend())
            row.own = *found;
        if (!row.own)
            continue;
        row.isNameOther =
            m_told.told[i].testFlag(StationDifference::Name) &&
            !areSameNames(plainName(m_told.stations[i]->shownName()), m_names[*row.own]);
        if (!m_ownRows[*row.own])
            m_ownRows[*row.own] = i;
    }
}

/// What of a key tells a station even where its name is another one: the identifiers of a service;
/// or the frequency where stations can be renamed, which are analogue and have theirs alone. Empty
/// when nothing does. No service and no frequency is 0.
QString RowMatching::tellingPart(const LGStation &station) const
{
    StationKey key = StationKey::of(station);
    const auto isTold = [](const QString &part) { return !part.isEmpty() && part != u"0"; };
    if (isTold(key.service) && !key.transport.isEmpty()) {
        key.frequency.clear();
        return key.text();
    }
    return m_mayRename && isTold(key.frequency) ? key.frequency : QString();
}

/// Which rows with another name are surely of the stations of their keys, and not of those that
/// stand in their places in another list, or stood there when the table was made: no other station
/// is told by that, or, where stations can be renamed, most of the other rows have the names of
/// their stations.
void RowMatching::findTelling()
{
    QHash<QString, std::size_t> counts;
    for (const StationPtr &station : m_list)
        ++counts[tellingPart(*station)];
    std::size_t named = 0, agreeing = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const bool isNamed = m_rows[i].own && m_told.told[i].testFlag(StationDifference::Name);
        named += isNamed ? 1 : 0;
        agreeing += isNamed && !m_rows[i].isNameOther ? 1 : 0;
    }
    const bool isOfList = m_mayRename && agreeing * 2 >= named;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        if (!row.isNameOther)
            continue;
        const QString part = tellingPart(*m_told.stations[i]);
        row.isOwnSure = isOfList || (!part.isEmpty() && counts.value(part) == 1);
    }
}

/// For rows with another name than their stations. Those with the same name are settled then.
void RowMatching::findNamed()
{
    QHash<QString, Group> byName;
    QHash<std::pair<QString, QString>, Group> alike;
    const auto keyOf = [this](std::size_t place) { return StationKey::of(*m_list[place]).text(); };
    for (std::size_t place = 0; place < m_list.size(); ++place) {
        byName[m_names[place]].add(place);
        if (!m_claimedBy[place])
            alike[std::pair(keyOf(place), m_names[place])].add(place);
    }
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        Row &row = m_rows[i];
        if (!row.isNameOther)
            continue;
        const QString name = plainName(m_told.stations[i]->shownName());
        const Group near = alike.value(std::pair(keyOf(*row.own), name));
        const Group all = byName.value(name);
        row.isNamedAlike = near.count == 1;
        row.named = row.isNamedAlike ? near.only() : all.only();
        row.isNameKnown = all.count > 0;
    }
}

/// Follows names that are those of other stations: a chain of stations that were given names ends
/// with a new one. In a ring the rows may as well have been mixed up, and where no station is given
/// a name they have been.
void RowMatching::judge(std::size_t first)
{
    std::vector<std::size_t> chain;
    Verdict verdict = Verdict::Unclear;
    for (std::optional<std::size_t> next = first; next;) {
        Row &row = m_rows[*next];
        if (row.verdict != Verdict::None || !row.isNameOther) {
            verdict = row.verdict == Verdict::Renamed ? Verdict::Renamed : Verdict::Unclear;
            break;
        }
        row.verdict = Verdict::Pending;
        chain.push_back(*next);
        if (!row.isNameKnown)
            verdict = Verdict::Renamed;
        next = m_mayRename && row.named ? m_ownRows[*row.named] : std::nullopt;
    }
    for (const std::size_t row : chain)
        m_rows[row].verdict = verdict;
}

/// A station that two rows claim is doubtful for both.
void RowMatching::claim(std::size_t row, std::size_t place, Likeness likeness)
{
    m_rows[row].place = place;
    const LGStation *record = m_told.stations[row].get();
    if (std::optional<std::size_t> &by = m_claimedBy[place]; !by) {
        by = row;
        m_matches.pairs.insert(record, {m_list[place], likeness});
    } else {
        m_matches.pairs[m_told.stations[*by].get()].likeness = Likeness::Loose;
        m_matches.pairs.insert(record, {nullptr, Likeness::Loose});
    }
}

void RowMatching::claimAll(Verdict verdict)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows[i];
        if (row.verdict != verdict)
            continue;
        const bool isByName = row.isNamedAlike && (!m_mayRename || verdict == Verdict::Unclear);
        const bool isSure = isByName ? !m_mayRename : verdict == Verdict::Renamed && row.isOwnSure;
        claim(i, isByName ? *row.named : *row.own, isSure ? Likeness::Sure : Likeness::Loose);
    }
}

RowMatches RowMatching::match()
{
    findOwn();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].own && !m_rows[i].isNameOther)
            claim(i, *m_rows[i].own, Likeness::Sure);
    }
    findTelling();
    findNamed();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].isNameOther && m_rows[i].verdict == Verdict::None)
            judge(i);
    }
    for (const Verdict verdict : {Verdict::Renamed, Verdict::Unclear})
        claimAll(verdict);
    for (const KnownPair &pair : std::as_const(m_matches.pairs))
        ++(pair.likeness == Likeness::Sure ? m_matches.certain : m_matches.unclear);
    return std::move(m_matches);
}

} // namespace quillet
