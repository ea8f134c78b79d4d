#include "editor/SavedSelection.h"

#include <QSet>

namespace quillet {

std::optional<QStringList> SavedSelection::selectedStations() const
{
    if (!m_numbers)
        return {};
    QStringList texts;
    for (const qint64 number : *m_numbers)
        texts.append(QString::number(number));
    return texts;
}

void SavedSelection::set(const QStringList &numbers)
{
    m_numbers.emplace();
    for (const QString &number : numbers)
        m_numbers->append(number.toLongLong());
}

void SavedSelection::save(const QList<qsizetype> &rows, const StationList &list)
{
    m_numbers.reset();
    if (rows.isEmpty())
        return;
    m_numbers.emplace().reserve(rows.size());
    for (const qsizetype row : rows)
        m_numbers->append(list[static_cast<std::size_t>(row)]->progNum());
}

void SavedSelection::follow(const StationList &stations)
{
    m_numbers.emplace().reserve(static_cast<qsizetype>(stations.size()));
    for (const StationPtr &station : stations)
        m_numbers->append(station->progNum());
}

QList<qsizetype> SavedSelection::rowsIn(const StationList &list) const
{
    QList<qsizetype> rows;
    if (isEmpty())
        return rows;
    const QSet<qint64> numbers(m_numbers->cbegin(), m_numbers->cend());
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
