#include "xml/Value.h"

#include "xml/FormattedDescription.h"

#include <QLocale>

namespace quillet {

bool Value::isNumber() const
{
    return std::holds_alternative<qint64>(m_data) || std::holds_alternative<quint64>(m_data) ||
           std::holds_alternative<double>(m_data);
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
            return QString::number(number, 'g', QLocale::FloatingPointShortest);
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
    return m_data == other.m_data;
}

} // namespace quillet
