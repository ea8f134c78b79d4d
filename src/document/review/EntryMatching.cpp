#include "document/review/EntryMatching.h"

#include "document/review/WrittenEntry.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace quillet {

namespace {

/// Compares entries of which most have their keys from one table.
class Comparison
{
public:
    [[nodiscard]] bool areSame(const Dictionary &a, const Dictionary &b)
    {
        const Dictionary::Keys keysOfA = a.keys(), keysOfB = b.keys();
        if (keysOfA == m_keysOfA && keysOfB == m_keysOfB && a.hasEqualValues(b))
            return true;
        if (a == b) {
            const bool areInOrder =
                keysOfA && keysOfB && a.hasEqualValues(b) && keysOfA->hasSameOrder(*keysOfB);
            m_keysOfA = areInOrder ? keysOfA : Dictionary::Keys();
            m_keysOfB = areInOrder ? keysOfB : Dictionary::Keys();
            return true;
        }
        return areWrittenSame(a, b);
    }

private:
    Dictionary::Keys m_keysOfA; ///< two tables with the same keys in the same order
    Dictionary::Keys m_keysOfB;
};

/// Entries with the hashes of what identifies them.
struct IdentifiedEntries
{
    const std::vector<Dictionary> &entries;
    std::vector<std::size_t> identities;
};

/// What entries that are taken for each other have in common.
struct Likeness
{
    QStringList without;              ///< fields that may differ
    std::size_t WrittenHashes::*hash; ///< is equal then
};

/// Entries to be taken one by one, found by what they have in common.
class EntryPool
{
public:
    EntryPool(const std::vector<Dictionary> &entries, WrittenHasher &hasher, Likeness likeness)
        : m_entries(entries), m_hasher(hasher), m_likeness(std::move(likeness))
    {
    }

    void reserve(std::size_t count) { m_places.reserve(count); }
    void add(std::size_t identity, std::size_t index) { m_places.push_back({identity, index}); }
    /// Must follow the last add().
    void sort()
    {
        std::sort(m_places.begin(), m_places.end());
        if (tellApart())
            std::sort(m_places.begin(), m_places.end());
    }

    /// Takes out the first one that is equal and not gone; none when there is none.
    std::optional<std::size_t> take(std::size_t identity, const Dictionary &entry,
                                    const std::vector<bool> &areGone)
    {
        const std::size_t hash =
            m_shared.contains(identity) ? m_hasher.hashesOf(entry).*m_likeness.hash : identity;
        const auto first = std::lower_bound(m_places.begin(), m_places.end(), Place{hash, 0});
        if (first == m_places.end() || first->hash != hash)
            return {};
        // Those that are gone for good are passed over once, however many are equal.
        for (auto i = first + static_cast<qsizetype>(first->passed);
             i != m_places.end() && i->hash == hash; ++i) {
            const bool isGone = areGone[i->index];
            if (isGone && i == first + static_cast<qsizetype>(first->passed))
                ++first->passed;
            if (!isGone && areSame(m_entries[i->index], entry))
                return i->index;
        }
        return {};
    }

private:
    static constexpr std::size_t mostAlike = 4; ///< that are compared to find one

    struct Place
    {
        std::size_t hash;
        std::size_t index;
        std::size_t passed = 0; ///< of the first one with a hash: how many with it are gone

        bool operator<(const Place &other) const
        {
            return hash != other.hash ? hash < other.hash : index < other.index;
        }
    };

    /// Where more have one identity than can be compared, takes the hash of all that they have in
    /// common instead. Returns whether any have.
    bool tellApart()
    {
        for (std::size_t i = mostAlike; i < m_places.size(); ++i) {
            if (m_places[i - mostAlike].hash == m_places[i].hash)
                m_shared.insert(m_places[i].hash);
        }
        if (m_shared.empty())
            return false;
        for (Place &place : m_places) {
            if (m_shared.contains(place.hash))
                place.hash = m_hasher.hashesOf(m_entries[place.index]).*m_likeness.hash;
        }
        return true;
    }

    [[nodiscard]] bool areSame(const Dictionary &a, const Dictionary &b)
    {
        return m_likeness.without.isEmpty() ? m_comparison.areSame(a, b)
                                            : areWrittenSame(a, b, m_likeness.without);
    }

    const std::vector<Dictionary> &m_entries;
    WrittenHasher &m_hasher;
    Likeness m_likeness;
    Comparison m_comparison;
    std::vector<Place> m_places;
    std::unordered_set<std::size_t> m_shared; ///< identities that too many have
};

/// The same for entries whose texts broke off, by their numbers.
class NumberPool
{
public:
    explicit NumberPool(QString key) : m_key(std::move(key)) {}

    void add(const Dictionary &entry) { ++m_counts[number(entry)]; }
    bool take(const Dictionary &entry)
    {
        const QString wanted = number(entry);
        const auto found = m_counts.find(wanted);
        if (wanted.isEmpty() || found == m_counts.end() || *found == 0)
            return false;
        --*found;
        return true;
    }
    /// Whether one that was added is still there, or none could ever take it.
    bool isLeft(const Dictionary &entry) { return number(entry).isEmpty() || take(entry); }

private:
    [[nodiscard]] QString number(const Dictionary &entry) const
    {
        const qsizetype position = m_key.isEmpty() ? KeyTable::none : entry.indexOf(m_key);
        if (position == KeyTable::none)
            return {};
        const std::optional<QString> text = entry.text(position);
        return text ? *text : entry.at(position).value.description();
    }

    QString m_key;
    QHash<QString, int> m_counts;
};

/// The expected entries, found before and not, by what another one may have in common with them.
class EntryPools
{
public:
    /// `wanted` are the identities that will be asked for.
    EntryPools(const IdentifiedEntries &expected, const std::vector<bool> &areFound,
               const std::unordered_set<std::size_t> &wanted, WrittenHasher &hasher)
        : m_foundSame(expected.entries, hasher, {{}, &WrittenHashes::all}),
          m_foundAlike(expected.entries, hasher, {hasher.edited(), &WrittenHashes::unedited}),
          m_missingOfNumber(expected.entries, hasher,
                            {hasher.editedButNumber(), &WrittenHashes::uneditedAndNumber}),
          m_missingButNumber(expected.entries, hasher,
                             {hasher.number(), &WrittenHashes::butNumber}),
          m_missingAlike(expected.entries, hasher, {hasher.edited(), &WrittenHashes::unedited})
    {
        const std::vector<EntryPool *> found{&m_foundSame, &m_foundAlike};
        const std::vector<EntryPool *> missing{&m_missingOfNumber, &m_missingButNumber,
                                               &m_missingAlike};
        for (std::size_t i = 0; i < expected.identities.size(); ++i) {
            const std::size_t identity = expected.identities[i];
            if (!wanted.contains(identity))
                continue;
            for (EntryPool *pool : areFound[i] ? found : missing)
                pool->add(identity, i);
        }
        for (EntryPool *pool : {&m_foundSame, &m_foundAlike, &m_missingOfNumber,
                                &m_missingButNumber, &m_missingAlike})
            pool->sort();
    }

    struct Taken
    {
        std::size_t index;
        bool isSecond; ///< it was found already
    };
    /// Takes out the one that an entry is of. One that has all but its number is there; that it
    /// then looks like another is no second one.
    std::optional<Taken> take(std::size_t identity, const Dictionary &entry,
                              const std::vector<bool> &areFound,
                              const std::vector<bool> &areDoubled)
    {
        if (const auto i = m_missingOfNumber.take(identity, entry, areFound))
            return Taken{*i, false};
        if (const auto i = m_missingButNumber.take(identity, entry, areFound))
            return Taken{*i, false};
        if (const auto i = m_foundSame.take(identity, entry, areDoubled))
            return Taken{*i, true};
        if (const auto i = m_missingAlike.take(identity, entry, areFound))
            return Taken{*i, false};
        if (const auto i = m_foundAlike.take(identity, entry, areDoubled))
            return Taken{*i, true};
        return {};
    }

private:
    EntryPool m_foundSame, m_foundAlike, m_missingOfNumber, m_missingButNumber, m_missingAlike;
};

/// Notes what is there as expected, and where. Returns the indexes of the others.
std::vector<std::size_t> findSame(const IdentifiedEntries &expected,
                                  const IdentifiedEntries &actual, WrittenHasher &hasher,
                                  std::vector<bool> &areFound, std::vector<std::size_t> &places)
{
    const std::size_t count = expected.identities.size();
    EntryPool wanted(expected.entries, hasher, {{}, &WrittenHashes::all});
    wanted.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        wanted.add(expected.identities[i], i);
    wanted.sort();
    std::vector<std::size_t> others;
    places.resize(count);
    for (std::size_t i = 0; i < actual.identities.size(); ++i) {
        if (const auto index = wanted.take(actual.identities[i], actual.entries[i], areFound)) {
            areFound[*index] = true;
            places[*index] = i;
        } else {
            others.push_back(i);
        }
    }
    return others;
}

} // namespace

EntryMatches matchEntries(const std::vector<Dictionary> &expected,
                          const std::vector<Dictionary> &actual, const EntryKeys &keys)
{
    Comparison comparison;
    const auto areSame = [&comparison](const Dictionary &a, const Dictionary &b) {
        return comparison.areSame(a, b);
    };
    if (std::equal(expected.begin(), expected.end(), actual.begin(), actual.end(), areSame))
        return {};

    // First what is as expected, then what is alike, then what only has the number.
    WrittenHasher hasher(keys);
    const IdentifiedEntries wanted{expected, hasher.identitiesOf(expected)};
    const IdentifiedEntries there{actual, hasher.identitiesOf(actual)};
    std::vector<bool> isFound(expected.size(), false);
    EntryMatches matches;
    const std::vector<std::size_t> others =
        findSame(wanted, there, hasher, isFound, matches.places);
    if (others.empty() && actual.size() == expected.size())
        return matches;
    std::unordered_set<std::size_t> unsettled;
    for (const std::size_t index : others)
        unsettled.insert(there.identities[index]);
    EntryPools pools(wanted, isFound, unsettled, hasher);
    NumberPool mutilated(keys.number);
    std::vector<const Dictionary *> unlike;
    std::vector<bool> isDoubled(expected.size(), false);
    for (const std::size_t index : others) {
        const Dictionary &entry = actual[index];
        const auto taken = pools.take(there.identities[index], entry, isFound, isDoubled);
        if (!taken) {
            mutilated.add(entry);
            unlike.push_back(&entry);
            continue;
        }
        (taken->isSecond ? isDoubled : isFound)[taken->index] = true;
        (taken->isSecond ? matches.doubled : matches.changed).push_back(taken->index);
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!isFound[i])
            (mutilated.take(expected[i]) ? matches.changed : matches.missing).push_back(i);
    }
    for (const Dictionary *entry : unlike) {
        if (mutilated.isLeft(*entry))
            matches.surplus.push_back(*entry);
    }
    return matches;
}

} // namespace quillet
