#pragma once

#include "xml/Array.h"
#include "xml/Dictionary.h"

#include <QString>

#include <optional>
#include <variant>

namespace quillet {

/// One value of a parsed tree: null, text, a boolean, a number, a dictionary or an array. Trees
/// made from XML hold text, dictionaries and arrays only. Value semantics, implicitly shared.
class Value
{
public:
    Value() = default; ///< null
    Value(QString text) : m_data(std::move(text)) {}
    Value(Dictionary dictionary) : m_data(std::move(dictionary)) {}
    Value(Array array) : m_data(std::move(array)) {}
    explicit Value(bool boolean) : m_data(boolean) {}
    explicit Value(qint64 number) : m_data(number) {}
    explicit Value(quint64 number) : m_data(number) {}
    explicit Value(double number) : m_data(number) {}
    template<typename T>
    Value(const T *) = delete; // a pointer must not become a boolean

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }
    [[nodiscard]] bool isNumber() const;

    /// The content when the value is of that kind, else null.
    [[nodiscard]] const QString *string() const { return std::get_if<QString>(&m_data); }
    [[nodiscard]] const bool *boolean() const { return std::get_if<bool>(&m_data); }
    [[nodiscard]] const Dictionary *dictionary() const { return std::get_if<Dictionary>(&m_data); }
    [[nodiscard]] const Array *array() const { return std::get_if<Array>(&m_data); }
    [[nodiscard]] Array *array() { return std::get_if<Array>(&m_data); }

    /// The number, if it is one without a fraction and of 64 bits with a sign, however it is held.
    [[nodiscard]] std::optional<qint64> wholeNumber() const;

    /// The value as text: a string is its own text, numbers are as JSON has them, dictionaries and
    /// arrays are printed in their indented form.
    [[nodiscard]] QString description() const;

    /// Calls the function object for what the value holds.
    template<typename Visitor>
    decltype(auto) visit(Visitor &&visitor) const
    {
        return std::visit(std::forward<Visitor>(visitor), m_data);
    }

    [[nodiscard]] bool operator==(const Value &other) const;

private:
    std::variant<std::monostate, QString, bool, qint64, quint64, double, Dictionary, Array> m_data;
};

} // namespace quillet
