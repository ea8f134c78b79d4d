#include "xml/Value.h"

#include "xml/FormattedDescription.h"
#include "xml/JSON.h"

#include <cmath>
#include <cstring>

namespace quillet {

bool Value::isNumber() const
{
    return std::holds_alternative<qint64>(m_data) || std::holds_alternative<quint64>(m_data) ||
           std::holds_alternative<double>(m_data);
}

std::optional<qint64> Value::wholeNumber() const
{
    constexpr double beyond = 0x1p63;
    if (const auto *number = std::get_if<qint64>(&m_data))
        return *number;
    const auto *number = std::get_if<double>(&m_data);
    const bool isWhole =
        number && *number >= -beyond && *number < beyond && std::trunc(*number) == *number;
    return isWhole ? std::optional(static_cast<qint64>(*number)) : std::nullopt;
}

QString Value::description() const
{
    struct Describe
    {
        QString operator()(std::monostate) const { return QStringLiteral("null"); }
        QString operator()(const QString &text) const { return text; }
        QString operator()(bool boolean) const
        {
            return boolean ? QStringLiteral("true") : QStringLiteral("false");
        }
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(quint64 number) const { return QString::number(number); }
        QString operator()(double number) const
        {
            return QString::fromLatin1(toJSON(Value(number)).value_or(QByteArray()));
        }
        QString operator()(const Dictionary &dictionary) const
        {
            return formattedDescription(dictionary);
        }
        QString operator()(const Array &array) const { return formattedDescription(array); }
    };
    return std::visit(Describe{}, m_data);
}

bool Value::operator==(const Value &other) const
{
    const QString *text = string(); // nearly all values are texts
    if (!text)
        return m_data == other.m_data;
    const QString *others = other.string();
    return others && text->size() == others->size() &&
           std::memcmp(text->constData(), others->constData(),
                       static_cast<std::size_t>(text->size()) * sizeof(QChar)) == 0;
}

} // namespace quillet
