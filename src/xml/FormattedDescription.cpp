#include "xml/FormattedDescription.h"

#include "xml/Value.h"

#include <QStringList>

#include <utility>

namespace quillet {

namespace {

QString indentation(int level)
{
    return QString((qsizetype{level} + 1) * 4, QLatin1Char(' '));
}

/// Adds the text of a value, or enough of it.
class Description
{
public:
    explicit Description(qsizetype enough) : m_enough(enough) {}

    void add(const Dictionary &dictionary, int level)
    {
        QStringList keys;
        for (const auto &[key, value] : dictionary)
            keys.append(key);
        keys.sort(Qt::CaseInsensitive);
        text += QLatin1String("<NSDictionary>:");
        for (const QString &key : std::as_const(keys)) {
            if (text.size() > m_enough)
                return;
            text += QLatin1Char('\n') + indentation(level) + QLatin1Char('<') + key +
                    QLatin1String("> = ");
            add(*dictionary.find(key), level + 1);
        }
    }

    void add(const Array &array, int level)
    {
        text += QLatin1String("<NSArray>");
        qsizetype index = 0;
        for (const Value &value : array) {
            if (text.size() > m_enough)
                return;
            text += QLatin1Char('\n') + indentation(level) + QLatin1Char('[') +
                    QString::number(index++) + QLatin1String("] = ");
            add(value, level + 1);
        }
    }

    QString text;

private:
    void add(const Value &value, int level)
    {
        if (const Dictionary *dictionary = value.dictionary())
            return add(*dictionary, level);
        if (const Array *array = value.array())
            return add(*array, level);
        if (value.isNumber())
            text += QLatin1String("<NSNumber> ");
        text += value.description();
    }

    qsizetype m_enough;
};

template<typename Container>
QString described(const Container &container, int level, qsizetype enough)
{
    Description description(enough);
    description.add(container, level);
    return std::move(description.text);
}

} // namespace

QString formattedDescription(const Dictionary &dictionary, int level, qsizetype enough)
{
    return described(dictionary, level, enough);
}

QString formattedDescription(const Array &array, int level, qsizetype enough)
{
    return described(array, level, enough);
}

} // namespace quillet
