#include "xml/Value.h"

#include "xml/FormattedDescription.h"

#include <QLocale>

#include <cstring>

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
    const QString *text = string(); // nearly all values are texts
    if (!text)
        return m_data == other.m_data;
    const QString *others = other.string();
    return others && text->size() == others->size() &&
           std::memcmp(text->constData(), others->constData(),
                       static_cast<std::size_t>(text->size()) * sizeof(QChar)) == 0;
}

} // namespace quillet
