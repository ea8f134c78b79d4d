#pragma once

#include "xml/TextCache.h"
#include "xml/Value.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace quillet {

/// Makes a value from the events of a JSON parse. Objects with the same members in the same order,
/// one after another at the same depth, share their table of keys. Lives for one parse.
class JSONBuilder
{
public:
    explicit JSONBuilder(int deepest) : m_deepest(static_cast<std::size_t>(deepest)) {}

    [[nodiscard]] Value takeValue() { return std::move(m_root); }
    /// In bytes from 1.
    [[nodiscard]] std::size_t errorPosition() const { return m_errorPosition; }
    [[nodiscard]] const QString &errorMessage() const { return m_errorMessage; }

    /// Integers that did not fit into 64 bits.
    [[nodiscard]] qsizetype inexactIntegers() const { return m_inexactIntegers; }

    // What the parser calls; false ends the parse.
    bool null() { return add(Value()); }
    bool boolean(bool value) { return add(Value(value)); }
    bool number_integer(std::int64_t value) { return add(Value(qint64(value))); }
    bool number_unsigned(std::uint64_t value);
    bool number_float(double value, const std::string &digits);
    bool string(std::string &value) { return add(m_texts.text(value)); }
    bool binary(nlohmann::ordered_json::binary_t &) { return false; }
    bool start_object(std::size_t) { return open(); }
    bool key(std::string &value);
    bool end_object();
    bool start_array(std::size_t) { return open(); }
    bool end_array();
    bool parse_error(std::size_t position, const std::string &lastToken,
                     const nlohmann::detail::exception &exception);

private:
    struct Container
    {
        std::vector<QString> keys; ///< of an object
        std::vector<Value> values;
        Dictionary::Keys lastKeys; ///< of the last object closed at this depth
    };

    bool open();
    bool add(Value value);
    static Dictionary makeDictionary(Container &object);

    std::size_t m_deepest;
    std::vector<Container> m_stack; ///< grows only, so that containers keep their memory
    std::size_t m_depth = 0;
    Value m_root;
    TextCache m_texts;
    qsizetype m_inexactIntegers = 0;
    std::size_t m_errorPosition = 0;
    QString m_errorMessage;
};

} // namespace quillet
