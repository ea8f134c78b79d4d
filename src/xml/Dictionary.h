#pragma once

#include "xml/KeyTable.h"

#include <QExplicitlySharedDataPointer>
#include <QString>

#include <initializer_list>
#include <utility>
#include <vector>

namespace quillet {

class Value;

/// One key of a dictionary with its value.
struct DictionaryEntry
{
    const QString &key;
    const Value &value;
};

/// An implicitly shared, string-keyed dictionary that keeps the order in which keys were first
/// inserted. A copy is free; changing one of two copies leaves the other as it was. Equality does
/// not look at the order.
class Dictionary
{
public:
    using Keys = QExplicitlySharedDataPointer<KeyTable>;

    class Iterator
    {
    public:
        Iterator(const Dictionary *dictionary, qsizetype position)
            : m_dictionary(dictionary), m_position(position)
        {
        }
        [[nodiscard]] DictionaryEntry operator*() const { return m_dictionary->at(m_position); }
        Iterator &operator++()
        {
            ++m_position;
            return *this;
        }
        [[nodiscard]] bool operator!=(const Iterator &other) const
        {
            return m_position != other.m_position;
        }

    private:
        const Dictionary *m_dictionary;
        qsizetype m_position;
    };

    Dictionary();
    Dictionary(std::initializer_list<std::pair<QString, Value>> entries);
    /// Takes as many values as there are keys; the keys may be shared with other dictionaries.
    Dictionary(Keys keys, std::vector<Value> values);
    Dictionary(const Dictionary &other);
    Dictionary(Dictionary &&other) noexcept;
    Dictionary &operator=(const Dictionary &other);
    Dictionary &operator=(Dictionary &&other) noexcept;
    ~Dictionary();

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] qsizetype count() const;
    [[nodiscard]] bool contains(QStringView key) const { return find(key) != nullptr; }

    /// The value under the key; null when there is none. Valid until the dictionary is changed.
    [[nodiscard]] const Value *find(QStringView key) const;
    /// The same for changing the value in place.
    [[nodiscard]] Value *find(QStringView key);
    /// The string or dictionary under the key; null when the key is absent or holds something else.
    [[nodiscard]] const QString *string(QStringView key) const;
    [[nodiscard]] const Dictionary *dictionary(QStringView key) const;

    /// Replaces the value of a present key, which keeps its place, or adds the key at the end.
    void insert(const QString &key, Value value);
    void remove(QStringView key);

    /// The entry at a position from 0 to count() - 1, in order.
    [[nodiscard]] DictionaryEntry at(qsizetype position) const;
    [[nodiscard]] Iterator begin() const { return {this, 0}; }
    [[nodiscard]] Iterator end() const { return {this, count()}; }

    [[nodiscard]] bool operator==(const Dictionary &other) const;
    /// Whether neither was changed since one was a copy of the other; false tells nothing.
    [[nodiscard]] bool isSharedWith(const Dictionary &other) const { return d == other.d; }

    /// The table of the keys, which may be shared with other dictionaries; null when there are
    /// none.
    [[nodiscard]] Keys keys() const;
    /// Whether the values are equal one by one, in order, whatever their keys.
    [[nodiscard]] bool hasEqualValues(const Dictionary &other) const;

private:
    struct Data;
    Data &detached();
    Value &detachedValue(qsizetype position);

    QExplicitlySharedDataPointer<Data> d;
};

} // namespace quillet
