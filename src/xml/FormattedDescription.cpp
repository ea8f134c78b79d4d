#include "xml/FormattedDescription.h"

#include "xml/Value.h"

#include <QStringList>

#include <utility>

namespace quillet {

namespace {

QString indentation(int level)
{
    return QString((level + 1) * 4, QLatin1Char(' '));
}

QString describe(const Value &value, int level)
{
    if (const Dictionary *dictionary = value.dictionary())
        return formattedDescription(*dictionary, level);
    if (const Array *array = value.array())
        return formattedDescription(*array, level);
    if (value.isNumber())
        return QStringLiteral("<NSNumber> ") + value.description();
    return value.description();
}

} // namespace

QString formattedDescription(const Dictionary &dictionary, int level)
{
    QStringList keys;
    for (const auto &[key, value] : dictionary)
        keys.append(key);
    keys.sort(Qt::CaseInsensitive);

    QString text = QStringLiteral("<NSDictionary>:");
    for (const QString &key : std::as_const(keys)) {
        text += QLatin1Char('\n') + indentation(level) + QLatin1Char('<') + key +
                QStringLiteral("> = ") + describe(*dictionary.find(key), level + 1);
    }
    return text;
}

QString formattedDescription(const Array &array, int level)
{
    QString text = QStringLiteral("<NSArray>");
    qsizetype index = 0;
    for (const Value &value : array) {
        text += QLatin1Char('\n') + indentation(level) + QLatin1Char('[') +
                QString::number(index++) + QStringLiteral("] = ") + describe(value, level + 1);
    }
    return text;
}

} // namespace quillet
