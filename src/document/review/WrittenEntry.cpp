#include "document/review/WrittenEntry.h"

#include "support/TextConversion.h"
#include "support/TextUnits.h"
#include "xml/NodeViews.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <optional>
#include <variant>

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
    explicit LooseField(const Value &held) : text(textOf(held)), value(&held)
    {
        if (text)
            text = text->trimmed();
    }
    LooseField(const Dictionary &entry, qsizetype position) : text(entry.text(position))
    {
        if (text)
            text = text->trimmed();
        else
            *this = LooseField(entry.at(position).value);
    }
    [[nodiscard]] bool isNone() const { return text && text->isEmpty(); }
    [[nodiscard]] bool operator==(const LooseField &other) const
    {
        return text || other.text ? text == other.text : *value == *other.value;
    }

    std::optional<QString> text;
    const Value *value = nullptr; ///< of what is no text
};

/// The value at a position of an entry of which nothing was noted, if it has no fields of its own;
/// null for any other.
const Value *plainValue(const Dictionary &entry, qsizetype position)
{
    if (entry.origin())
        return nullptr;
    const Value &value = entry.at(position).value;
    return value.dictionary() || value.array() ? nullptr : &value;
}

bool isNone(const Dictionary &entry, qsizetype position)
{
    if (const Value *value = plainValue(entry, position))
        return value->string() && QStringView(*value->string()).trimmed().isEmpty();
    // What was noted has no blanks around it and is not empty.
    return !entry.bytesRead(position) && LooseField(entry, position).isNone();
}

bool isSame(const Dictionary &a, qsizetype position, const Dictionary &b, qsizetype other)
{
    const std::optional<QByteArrayView> bytes = a.bytesRead(position);
    const std::optional<QByteArrayView> others = b.bytesRead(other);
    if (bytes && others)
        return *bytes == *others;
    const Value *value = plainValue(a, position);
    const Value *otherValue = plainValue(b, other);
    if (value && otherValue && *value == *otherValue)
        return true;
    return LooseField(a, position) == LooseField(b, other);
}

constexpr qsizetype unitsAtOnce = 4;

quint64 unitsAt(const QChar *at)
{
    quint64 units = 0;
    std::memcpy(&units, at, sizeof units);
    return units;
}

quint64 unitsAt(const char *at)
{
    quint32 bytes = 0;
    std::memcpy(&bytes, at, sizeof bytes);
    const quint64 halves = (quint64{bytes} << 16 | bytes) & 0x0000'FFFF'0000'FFFF;
    return (halves << 8 | halves) & 0x00FF'00FF'00FF'00FF;
}

quint64 mixed(quint64 hash)
{
    hash *= 0x9E3779B97F4A7C15;
    return hash ^ (hash >> 32);
}

/// The same of characters and of bytes that are some.
template<typename View>
std::size_t hashOfUnits(View text)
{
    quint64 hash = static_cast<quint64>(text.size());
    const auto *at = text.data();
    const auto *const end = at + text.size();
    for (; end - at >= unitsAtOnce; at += unitsAtOnce)
        hash = mixed(hash ^ unitsAt(at));
    quint64 rest = 0;
    for (; at != end; ++at)
        rest = rest << 16 | unitOf(*at);
    return static_cast<std::size_t>(mixed(hash ^ rest));
}

/// Equal for characters and the bytes of UTF-8 that they are in a file.
std::size_t hashOf(QStringView text)
{
    return hashOfUnits(text);
}
std::size_t hashOf(QByteArrayView utf8)
{
    const bool isAscii =
        std::all_of(utf8.begin(), utf8.end(), [](char c) { return unitOf(c) < 0x80; });
    return isAscii ? hashOfUnits(utf8) : hashOfUnits(QStringView(textFromUtf8(utf8)));
}

/// Without making a text of what is nested, which may be many times as long.
struct ValueHash
{
    std::size_t operator()(std::monostate) const { return 0; }
    std::size_t operator()(const QString &text) const { return hashOf(text); }
    std::size_t operator()(bool boolean) const { return boolean ? 1 : 2; }
    std::size_t operator()(qint64 number) const { return static_cast<std::size_t>(number); }
    std::size_t operator()(quint64 number) const { return static_cast<std::size_t>(number); }
    std::size_t operator()(double number) const { return qHash(number); }
    std::size_t operator()(const Dictionary &entry) const
    {
        std::size_t sum = 0;
        for (const auto &[key, value] : entry)
            sum += qHashMulti(0, key, value.visit(*this));
        return sum;
    }
    std::size_t operator()(const Array &array) const
    {
        std::size_t hash = 0;
        for (const Value &element : array)
            hash = qHashMulti(hash, element.visit(*this));
        return hash;
    }
};

/// None of what is as good as none.
std::optional<std::size_t> hashOf(const LooseField &field)
{
    if (field.isNone())
        return {};
    return field.text ? hashOf(*field.text) : field.value->visit(ValueHash());
}

/// The same of a field of an entry that was noted.
std::optional<std::size_t> notedHashAt(const Dictionary &entry, qsizetype position)
{
    if (const std::optional<QByteArrayView> bytes = entry.bytesRead(position))
        return hashOf(*bytes);
    return hashOf(LooseField(entry, position));
}

/// The same of a value in any other.
struct FieldHash
{
    using Hash = std::optional<std::size_t>;
    const Value &value;

    Hash operator()(const QString &string) const
    {
        QStringView text(string);
        if (!text.isEmpty() && (text.front().isSpace() || text.back().isSpace()))
            text = text.trimmed();
        return text.isEmpty() ? Hash() : hashOf(text);
    }
    Hash operator()(const Dictionary & /*node*/) const { return hashOf(LooseField(value)); }
    Hash operator()(const Array & /*array*/) const { return hashOf(LooseField(value)); }
    template<typename Plain>
    Hash operator()(Plain plain) const
    {
        return ValueHash()(plain);
    }
};

std::optional<std::size_t> hashOf(const Value &value)
{
    return value.visit(FieldHash{value});
}

/// What fields of an entry hash to, each from the hash of its key, which is well mixed, and
/// that of what it holds; 0 for one that is as good as none.
class FieldHasher
{
public:
    explicit FieldHasher(const Dictionary &entry)
        : m_entry(entry), m_isNoted(entry.origin() != nullptr)
    {
    }

    [[nodiscard]] std::size_t operator()(qsizetype position, std::size_t key) const
    {
        const std::optional<std::size_t> content =
            m_isNoted ? notedHashAt(m_entry, position) : hashOf(m_entry.at(position).value);
        return content ? static_cast<std::size_t>(mixed(quint64{key} ^ *content)) : 0;
    }

private:
    const Dictionary &m_entry;
    bool m_isNoted;
};

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

WrittenHasher::WrittenHasher(const EntryKeys &keys) : m_keys(keys), m_editedButNumber(keys.edited)
{
    m_editedButNumber.removeOne(keys.number);
    if (!keys.number.isEmpty())
        m_number.append(keys.number);
}

void WrittenHasher::readKeys(const Dictionary &entry)
{
    if (entry.keys() == m_keysRead)
        return;
    m_keysRead = entry.keys();
    m_fields.clear();
    m_identity.clear();
    for (qsizetype i = 0; i < entry.count(); ++i) {
        const QString &key = m_keysRead->at(i);
        m_fields.push_back({i, qHash(key), m_keys.edited.contains(key), m_number.contains(key)});
        if (m_keys.identity.contains(key))
            m_identity.push_back(m_fields.back());
    }
}

WrittenHashes WrittenHasher::hashesOf(const Dictionary &entry)
{
    readKeys(entry);
    const FieldHasher hashOfField(entry);
    WrittenHashes hashes;
    for (const Field &field : m_fields) {
        const std::size_t hash = hashOfField(field.position, field.key);
        hashes.all += hash;
        hashes.unedited += field.isEdited ? 0 : hash;
        hashes.uneditedAndNumber += field.isEdited && !field.isNumber ? 0 : hash;
        hashes.butNumber += field.isNumber ? 0 : hash;
    }
    return hashes;
}

std::vector<std::size_t> WrittenHasher::identitiesOf(const std::vector<Dictionary> &entries)
{
    std::vector<std::size_t> identities;
    identities.reserve(entries.size());
    for (const Dictionary &entry : entries) {
        readKeys(entry);
        const FieldHasher hashOfField(entry);
        std::size_t sum = 0;
        for (const Field &field : m_identity)
            sum += hashOfField(field.position, field.key);
        identities.push_back(sum);
    }
    return identities;
}

} // namespace quillet
