#include "document/review/EntryMatching.h"

#include "xml/NodeViews.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace quillet {

namespace {

/// Of a plain element; one that the text broke off in is a dictionary. None for anything else, and
/// for one that broke off before any text.
std::optional<QString> textOf(const Value &value)
{
    const Dictionary *node = value.dictionary();
    const bool isPlain = !node || (!hasAttributes(*node) && !hasChildNodes(*node));
    return isPlain ? textOfElement(value) : std::nullopt;
}

/// The entry as it is after being written and read, without the fields of those names.
Dictionary normalized(const Dictionary &entry, const QStringList &without = {})
{
    Dictionary result;
    for (const auto &[key, value] : entry) {
        if (without.contains(key))
            continue;
        const std::optional<QString> text = textOf(value);
        if (!text)
            result.insert(key, value);
        else if (const QString trimmed = text->trimmed(); !trimmed.isEmpty())
            result.insert(key, trimmed);
    }
    return result;
}

std::size_t hashOf(const Value &value);

/// Equal for equal entries, in whatever order their fields stand.
std::size_t hashOf(const Dictionary &entry)
{
    std::size_t sum = 0;
    for (const auto &[key, value] : entry)
        sum += qHashMulti(0, key, hashOf(value));
    return sum;
}

/// Without making a text of what is nested, which may be many times as long.
std::size_t hashOf(const Value &value)
{
    if (const QString *text = value.string())
        return qHash(*text);
    if (const Dictionary *dictionary = value.dictionary())
        return hashOf(*dictionary);
    const Array *array = value.array();
    if (!array)
        return qHash(value.description());
    std::size_t hash = 0;
    for (const Value &element : *array)
        hash = qHashMulti(hash, hashOf(element));
    return hash;
}

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
        return normalized(a) == normalized(b);
    }

private:
    Dictionary::Keys m_keysOfA; ///< two tables with the same keys in the same order
    Dictionary::Keys m_keysOfB;
};

/// Entries to be taken one by one, found by what they hold.
class EntryPool
{
public:
    void add(std::size_t index, Dictionary entry)
    {
        const std::size_t hash = hashOf(entry);
        m_entries.insert(hash, {index, std::move(entry)});
    }

    /// Takes out one that is equal, passing over for good those that are gone; none when there is
    /// none.
    std::optional<std::size_t> take(const Dictionary &entry, const std::vector<bool> &areGone)
    {
        const std::size_t hash = hashOf(entry);
        for (auto i = m_entries.find(hash); i != m_entries.end() && i.key() == hash;) {
            if (!(i->second == entry)) {
                ++i;
                continue;
            }
            const std::size_t index = i->first;
            i = m_entries.erase(i);
            if (!areGone[index])
                return index;
        }
        return {};
    }

private:
    QMultiHash<std::size_t, std::pair<std::size_t, Dictionary>> m_entries;
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
        const Value *value = m_key.isEmpty() ? nullptr : entry.find(m_key);
        return value ? value->description() : QString();
    }

    QString m_key;
    QHash<QString, int> m_counts;
};

/// The expected entries, found before and not, by what another one may have in common with them.
class EntryPools
{
public:
    EntryPools(const std::vector<Dictionary> &expected, const std::vector<bool> &areFound,
               const EntryKeys &keys)
        : m_edited(keys.edited), m_editedButNumber(keys.edited)
    {
        m_editedButNumber.removeOne(keys.number);
        if (!keys.number.isEmpty())
            m_number.append(keys.number);
        for (std::size_t i = expected.size(); i-- > 0;) { // the last one added is found first
            const Dictionary alike = normalized(expected[i], m_edited);
            if (areFound[i]) {
                m_foundSame.add(i, normalized(expected[i]));
                m_foundAlike.add(i, alike);
            } else {
                m_missingOfNumber.add(i, normalized(expected[i], m_editedButNumber));
                m_missingButNumber.add(i, normalized(expected[i], m_number));
                m_missingAlike.add(i, alike);
            }
        }
    }

    struct Taken
    {
        std::size_t index;
        bool isSecond; ///< it was found already
    };
    /// Takes out the one that an entry is of. One that has all but its number is there; that it
    /// then looks like another is no second one.
    std::optional<Taken> take(const Dictionary &entry, const std::vector<bool> &areFound,
                              const std::vector<bool> &areDoubled)
    {
        const Dictionary alike = normalized(entry, m_edited);
        if (const auto i = m_missingOfNumber.take(normalized(entry, m_editedButNumber), areFound))
            return Taken{*i, false};
        if (const auto i = m_missingButNumber.take(normalized(entry, m_number), areFound))
            return Taken{*i, false};
        if (const auto i = m_foundSame.take(normalized(entry), areDoubled))
            return Taken{*i, true};
        if (const auto i = m_missingAlike.take(alike, areFound))
            return Taken{*i, false};
        if (const auto i = m_foundAlike.take(alike, areDoubled))
            return Taken{*i, true};
        return {};
    }

private:
    QStringList m_edited;
    QStringList m_editedButNumber;
    QStringList m_number; ///< its key, if there is one
    EntryPool m_foundSame, m_foundAlike, m_missingOfNumber, m_missingButNumber, m_missingAlike;
};

/// Notes what is there as expected, and where. Returns the others.
std::vector<const Dictionary *> findSame(const std::vector<Dictionary> &expected,
                                         const std::vector<Dictionary> &actual,
                                         std::vector<bool> &areFound,
                                         std::vector<std::size_t> &places)
{
    EntryPool wanted;
    for (std::size_t i = expected.size(); i-- > 0;) // the last one added is found first
        wanted.add(i, normalized(expected[i]));
    std::vector<const Dictionary *> others;
    places.resize(expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (const auto index = wanted.take(normalized(actual[i]), areFound)) {
            areFound[*index] = true;
            places[*index] = i;
        } else {
            others.push_back(&actual[i]);
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
    std::vector<bool> isFound(expected.size(), false);
    EntryMatches matches;
    const std::vector<const Dictionary *> others =
        findSame(expected, actual, isFound, matches.places);
    EntryPools pools(expected, isFound, keys);
    NumberPool mutilated(keys.number);
    std::vector<const Dictionary *> unlike;
    std::vector<bool> isDoubled(expected.size(), false);
    for (const Dictionary *entry : others) {
        const auto taken = pools.take(*entry, isFound, isDoubled);
        if (!taken) {
            mutilated.add(*entry);
            unlike.push_back(entry);
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
