#pragma once

#include "xml/KeyTable.h"
#include "xml/ReadTexts.h"

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QString>

#include <initializer_list>
#include <optional>
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

/// The text of an element in a file.
struct ElementText
{
    QExplicitlySharedDataPointer<const ReadTexts> texts; ///< of the whole file
    ReadElement element;

    [[nodiscard]] QByteArrayView bytes() const
    {
        return QByteArrayView(texts->utf8()).sliced(element.start, element.size);
    }
};

/// The texts in an element, noted where they stand in it: as many as there are keys.
struct NotedTexts
{
    ElementText whole;
    quint32 first; ///< of them among all of the file
};

/// An implicitly shared, string-keyed dictionary that keeps the order in which keys were first
/// inserted. A copy is free; changing one of two copies leaves the other as it was. Equality does
/// not look at the order.
/// Of an element that was noted the values are made, all of them, when the first is asked for;
/// text(), bytesRead() and comparing do without. Several threads may read one at the same time.
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
    Dictionary(Keys keys, NotedTexts noted);
    Dictionary(const Dictionary &other);
    Dictionary(Dictionary &&other) noexcept;
    Dictionary &operator=(const Dictionary &other);
    Dictionary &operator=(Dictionary &&other) noexcept;
    ~Dictionary();

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] qsizetype count() const;
    [[nodiscard]] bool contains(QStringView key) const { return indexOf(key) != KeyTable::none; }
    /// The position of a key; KeyTable::none when there is none.
    [[nodiscard]] qsizetype indexOf(QStringView key) const;

    /// The value under the key; null when there is none. Valid until the dictionary is changed.
    [[nodiscard]] const Value *find(QStringView key) const;
    /// The same for changing the value in place.
    [[nodiscard]] Value *find(QStringView key);
    /// The string or dictionary under the key; null when the key is absent or holds something else.
    [[nodiscard]] const QString *string(QStringView key) const;
    [[nodiscard]] const Dictionary *dictionary(QStringView key) const;

    /// The text under the key, or at a position; none when there is something else.
    [[nodiscard]] std::optional<QString> text(QStringView key) const;
    [[nodiscard]] std::optional<QString> text(qsizetype position) const;
    /// The same in UTF-8.
    [[nodiscard]] std::optional<QByteArray> utf8(qsizetype position) const;

    /// The text at a position as it stands in the file, if it was noted there, nobody has changed
    /// it, and reading it replaces nothing. Valid until the dictionary is changed.
    [[nodiscard]] std::optional<QByteArrayView> bytesRead(qsizetype position) const;
    /// The element that was noted, which all values are of that bytesRead() gives; null when none
    /// was. Valid until the dictionary is changed.
    [[nodiscard]] const ElementText *origin() const;
    /// Whether its values are still those that were noted.
    [[nodiscard]] bool isAsNoted() const;

    /// Replaces the value of a present key, which keeps its place, or adds the key at the end.
    void insert(const QString &key, Value value);
    void remove(QStringView key);

    /// The key at a position from 0 to count() - 1, in order.
    [[nodiscard]] const QString &keyAt(qsizetype position) const;
    /// The entry at a position from 0 to count() - 1, in order.
    [[nodiscard]] DictionaryEntry at(qsizetype position) const;
    [[nodiscard]] Iterator begin() const { return {this, 0}; }
    [[nodiscard]] Iterator end() const { return {this, count()}; }

    /// Tells which element all is of, so that comparing it, until it is changed, with what the same
    /// bytes elsewhere were read as need not look at the values. Elements within others tell them,
    /// read under the same settings. Does nothing for one that was noted, or changed since.
    void rememberText(ElementText text);

    [[nodiscard]] bool operator==(const Dictionary &other) const;
    /// Whether neither was changed since one was a copy of the other; false tells nothing.
    [[nodiscard]] bool isSharedWith(const Dictionary &other) const { return d == other.d; }

    /// The table of the keys, which may be shared with other dictionaries; null when there are
    /// none.
    [[nodiscard]] Keys keys() const;
    /// Whether the values are equal one by one, in order, whatever their keys.
    [[nodiscard]] bool hasEqualValues(const Dictionary &other) const;
    /// The same of one value of each.
    [[nodiscard]] bool hasEqualValue(qsizetype position, const Dictionary &other,
                                     qsizetype otherPosition) const;

private:
    struct Data;
    [[nodiscard]] const Data *notedAt(qsizetype position) const;
    Data &detached();
    [[nodiscard]] bool areOneText(const Dictionary &other) const;
    enum class Content { Kept, Replaced };
    Value &detachedValue(qsizetype position, Content content);

    QExplicitlySharedDataPointer<Data> d;
};

} // namespace quillet
