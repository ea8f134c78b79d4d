#include "xml/JSONBuilder.h"

#include "xml/JSON.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace quillet {

namespace {

/// Without the two calls that comparing takes in Qt.
bool isEqual(QByteArrayView one, QByteArrayView other)
{
    return one.size() == other.size() &&
           std::memcmp(one.data(), other.data(), std::size_t(one.size())) == 0;
}

} // namespace

bool JSONBuilder::open()
{
    if (m_depth == deepestJSON)
        return false;
    if (m_depth == m_stack.size())
        m_stack.emplace_back();
    ++m_depth;
    return true;
}

void JSONBuilder::key(QByteArrayView utf8)
{
    Container &object = innermost();
    const bool areSame = object.names.empty() && object.sameNames < object.lastNames.size();
    if (areSame && isEqual(object.lastNames[object.sameNames], utf8))
        ++object.sameNames;
    else
        object.names.push_back(utf8.toByteArray());
    if (object.values.capacity() == 0)
        object.values.reserve(object.lastNames.size());
}

bool JSONBuilder::takeSameKey(const char *text, const char *end)
{
    Container &object = innermost();
    if (!object.areLastPlain || !object.names.empty() ||
        object.sameNames == object.lastNames.size() || object.values.capacity() == 0)
        return false;
    const QByteArray &name = object.lastNames[object.sameNames];
    if (end - text <= name.size() || text[name.size()] != '"' ||
        !isEqual(name, {text, name.size()}))
        return false;
    ++object.sameNames;
    return true;
}

void JSONBuilder::add(Value value)
{
    if (m_depth == 0)
        m_root = std::move(value);
    else
        innermost().values.push_back(std::move(value));
}

void JSONBuilder::addUnsigned(quint64 number)
{
    if (number <= quint64(std::numeric_limits<qint64>::max()))
        addScalar(qint64(number));
    else
        addScalar(number);
}

void JSONBuilder::addDouble(double number, QByteArrayView text)
{
    const Value value(number);
    if (toJSON(value) != text)
        ++m_rewritten;
    add(value);
}

void JSONBuilder::addNegativeZero()
{
    ++m_rewritten;
    add(Value(qint64(0)));
}

/// The table of the keys of the innermost object. Of two values of one key the later takes the
/// place of the earlier.
Dictionary::Keys JSONBuilder::keysOf(Container &object)
{
    const bool areSame = object.names.empty() && object.sameNames == object.lastNames.size();
    if (areSame && object.lastKeys)
        return object.lastKeys;
    const auto firstOther = object.lastNames.begin() + qsizetype(object.sameNames);
    std::vector<QByteArray> names(object.lastNames.begin(), firstOther);
    names.insert(names.end(), object.names.begin(), object.names.end());
    Dictionary::Keys keys(new KeyTable);
    std::vector<Value> &values = object.values;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString name = m_texts.text(names[i]);
        const qsizetype earlier = keys->indexOf(name);
        if (earlier == KeyTable::none) {
            // The values move up by as many places as members were named again so far.
            values[static_cast<std::size_t>(keys->count())] = values[i];
            keys->append(name);
        } else {
            values[static_cast<std::size_t>(earlier)] = values[i];
        }
    }
    const auto count = static_cast<std::size_t>(keys->count());
    m_rewritten += qsizetype(names.size() - count);
    const bool isEachOnce = count == names.size();
    object.lastNames = isEachOnce ? std::move(names) : std::vector<QByteArray>();
    object.lastKeys = isEachOnce ? keys : Dictionary::Keys();
    object.areLastPlain =
        std::all_of(object.lastNames.begin(), object.lastNames.end(), [](const QByteArray &name) {
            return !name.contains('"') && !name.contains('\\');
        });
    values.resize(count);
    return keys;
}

void JSONBuilder::closeObject()
{
    Container &object = innermost();
    Dictionary::Keys keys = keysOf(object);
    object.names.clear();
    object.sameNames = 0;
    object.values.shrink_to_fit();
    Dictionary dictionary(std::move(keys), std::exchange(object.values, {}));
    --m_depth;
    add(std::move(dictionary));
}

void JSONBuilder::closeArray()
{
    Array array(std::exchange(innermost().values, {}));
    --m_depth;
    add(std::move(array));
}

} // namespace quillet
