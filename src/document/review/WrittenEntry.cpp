#include "document/review/WrittenEntry.h"

#include "xml/NodeViews.h"

#include <QHash>

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

/// A field whose bytes do not tell it.
struct LooseField
{
    LooseField(const Dictionary &entry, qsizetype position) : text(entry.text(position))
    {
        if (!text) {
            value = &entry.at(position).value;
            text = textOf(*value);
        }
        if (text)
            text = text->trimmed();
    }
    [[nodiscard]] bool isNone() const { return text && text->isEmpty(); }
    [[nodiscard]] bool operator==(const LooseField &other) const
    {
        return text || other.text ? text == other.text : *value == *other.value;
    }

    std::optional<QString> text;
    const Value *value = nullptr; ///< of what is no text
};

/// What was noted has no blanks around it and is not empty.
bool isNone(const Dictionary &entry, qsizetype position)
{
    return !entry.bytesRead(position) && LooseField(entry, position).isNone();
}

bool isSame(const Dictionary &a, qsizetype position, const Dictionary &b, qsizetype other)
{
    const std::optional<QByteArrayView> bytes = a.bytesRead(position);
    const std::optional<QByteArrayView> others = b.bytesRead(other);
    if (bytes && others)
        return *bytes == *others;
    return LooseField(a, position) == LooseField(b, other);
}

std::size_t hashOf(const Value &value);

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

/// None of what is as good as none.
std::optional<std::size_t> hashAt(const Dictionary &entry, qsizetype position)
{
    if (const std::optional<QByteArrayView> bytes = entry.bytesRead(position))
        return qHash(*bytes);
    const LooseField field(entry, position);
    if (field.isNone())
        return {};
    return field.text ? qHash(QByteArrayView(field.text->toUtf8())) : hashOf(*field.value);
}

} // namespace

bool areWrittenSame(const Dictionary &a, const Dictionary &b, const QStringList &without)
{
    const Dictionary::Keys keysOfA = a.keys(), keysOfB = b.keys();
    qsizetype found = 0;
    for (qsizetype i = 0; i < a.count(); ++i) {
        const QString &key = keysOfA->at(i);
        if (without.contains(key))
            continue;
        const bool isInOrder = i < b.count() && (keysOfA == keysOfB || keysOfB->at(i) == key);
        const qsizetype other = isInOrder ? i : b.indexOf(key);
        if (other != KeyTable::none && isSame(a, i, b, other))
            found += !isNone(b, other);
        else if (!isNone(a, i))
            return false;
    }
    for (qsizetype i = 0; i < b.count(); ++i) {
        if (!without.contains(keysOfB->at(i)) && !isNone(b, i))
            --found;
    }
    return found == 0;
}

WrittenHasher::WrittenHasher(const QStringList &edited, const QString &number)
    : m_edited(edited), m_editedButNumber(edited)
{
    m_editedButNumber.removeOne(number);
    if (!number.isEmpty())
        m_number.append(number);
}

void WrittenHasher::readKeys(const Dictionary &entry)
{
    m_keys = entry.keys();
    m_fields.clear();
    for (qsizetype i = 0; i < entry.count(); ++i) {
        const QString &key = m_keys->at(i);
        m_fields.push_back({qHash(key), m_edited.contains(key), m_number.contains(key)});
    }
}

WrittenHashes WrittenHasher::hashesOf(const Dictionary &entry)
{
    if (entry.keys() != m_keys)
        readKeys(entry);
    WrittenHashes hashes;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const auto [key, isEdited, isNumber] = m_fields[i];
        const std::optional<std::size_t> content = hashAt(entry, static_cast<qsizetype>(i));
        if (!content)
            continue;
        const std::size_t hash = qHashMulti(0, key, *content);
        hashes.all += hash;
        hashes.unedited += isEdited ? 0 : hash;
        hashes.uneditedAndNumber += isEdited && !isNumber ? 0 : hash;
        hashes.butNumber += isNumber ? 0 : hash;
    }
    return hashes;
}

} // namespace quillet
