#include "editor/SavedSelection.h"

#include <QSet>

namespace quillet {

void SavedSelection::save(const QList<qsizetype> &rows, const StationList &list)
{
    m_numbers.reset();
    if (rows.isEmpty())
        return;
    m_numbers.emplace();
    for (const qsizetype row : rows)
        m_numbers->append(list[static_cast<std::size_t>(row)]->progNumString());
}

void SavedSelection::follow(const StationList &stations)
{
    QStringList numbers;
    for (const StationPtr &station : stations)
        numbers.append(station->progNumString());
    m_numbers = std::move(numbers);
}

QList<qsizetype> SavedSelection::rowsIn(const StationList &list) const
{
    QList<qsizetype> rows;
    if (isEmpty())
        return rows;
    // The numbers of a station's text are canonical decimals, so they compare as numbers.
    QSet<qint64> numbers;
    for (const QString &number : *m_numbers)
        numbers.insert(number.toLongLong());
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (numbers.contains(list[i]->progNum()))
            rows.append(static_cast<qsizetype>(i));
    }
    return rows;
}

StationList SavedSelection::stationsIn(const StationList &list) const
{
    StationList stations;
    for (const qsizetype row : rowsIn(list))
        stations.push_back(list[static_cast<std::size_t>(row)]);
    return stations;
}

} // namespace quillet
