#include "xml/JSONBuilder.h"

#include "support/TextConversion.h"

#include <limits>
#include <utility>

namespace quillet {

namespace {

bool hasKeys(const KeyTable &table, const std::vector<QString> &keys)
{
    if (table.count() != static_cast<qsizetype>(keys.size()))
        return false;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (table.at(static_cast<qsizetype>(i)) != keys[i])
            return false;
    }
    return true;
}

} // namespace

bool JSONBuilder::number_unsigned(std::uint64_t value)
{
    return add(value <= std::uint64_t(std::numeric_limits<qint64>::max()) ? Value(qint64(value))
                                                                          : Value(quint64(value)));
}

bool JSONBuilder::number_float(double value, const std::string &digits)
{
    if (digits.find_first_of(".eE") == std::string::npos)
        ++m_inexactIntegers;
    return add(Value(value));
}

bool JSONBuilder::key(std::string &value)
{
    m_stack[m_depth - 1].keys.push_back(m_texts.text(value));
    return true;
}

bool JSONBuilder::open()
{
    if (m_depth == m_deepest) {
        m_errorMessage = QStringLiteral("Nested more than %1 deep").arg(m_deepest);
        return false;
    }
    if (m_depth == m_stack.size())
        m_stack.emplace_back();
    ++m_depth;
    return true;
}

bool JSONBuilder::add(Value value)
{
    if (m_depth == 0)
        m_root = std::move(value);
    else
        m_stack[m_depth - 1].values.push_back(std::move(value));
    return true;
}

Dictionary JSONBuilder::makeDictionary(Container &object)
{
    std::vector<Value> values = std::exchange(object.values, {});
    values.shrink_to_fit();
    std::vector<QString> &keys = object.keys;
    if (!object.lastKeys || !hasKeys(*object.lastKeys, keys)) {
        Dictionary::Keys table(new KeyTable);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const qsizetype earlier = table->indexOf(keys[i]);
            if (earlier == KeyTable::none) {
                // The values move up by as many places as members were named again so far.
                values[static_cast<std::size_t>(table->count())] = values[i];
                table->append(keys[i]);
            } else {
                values[static_cast<std::size_t>(earlier)] = values[i];
            }
        }
        values.resize(static_cast<std::size_t>(table->count()));
        object.lastKeys = table;
    }
    keys.clear();
    return {object.lastKeys, std::move(values)};
}

bool JSONBuilder::end_object()
{
    Dictionary dictionary = makeDictionary(m_stack[m_depth - 1]);
    --m_depth;
    return add(std::move(dictionary));
}

bool JSONBuilder::end_array()
{
    Array array(std::exchange(m_stack[m_depth - 1].values, {}));
    --m_depth;
    return add(std::move(array));
}

bool JSONBuilder::parse_error(std::size_t position, const std::string &,
                              const nlohmann::detail::exception &exception)
{
    m_errorPosition = position;
    // The text behind the library's own code and position.
    const QString message = textFromUtf8(exception.what());
    m_errorMessage = message.sliced(message.lastIndexOf(QLatin1String(": ")) + 2);
    return false;
}

} // namespace quillet
