#pragma once

#include "model/LGStation.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace quillet {

/// Which stations are selected, remembered by program number: so it survives renumbering, sorting
/// and filtering, and afterwards means whatever stations carry those numbers.
class SavedSelection
{
public:
    /// The numbers as text; none when nothing is selected.
    [[nodiscard]] std::optional<QStringList> selectedStations() const;
    [[nodiscard]] bool isEmpty() const { return !m_numbers || m_numbers->isEmpty(); }

    void clear() { m_numbers.reset(); }
    /// Remembers those numbers, canonical decimals.
    void set(const QStringList &numbers);
    /// Remembers those stations by the numbers they carry now.
    void follow(const StationList &stations);
    /// Remembers the stations at those ascending rows; no rows mean no selection.
    void save(const QList<qsizetype> &rows, const StationList &list);
    /// The rows of the list, ascending, whose stations carry one of the numbers.
    [[nodiscard]] QList<qsizetype> rowsIn(const StationList &list) const;

    /// The stations of the list that carry one of the numbers.
    [[nodiscard]] StationList stationsIn(const StationList &list) const;
    bool operator==(const SavedSelection &) const = default;

private:
    std::optional<QList<qint64>> m_numbers; ///< as numbers they compare as their texts do
};

} // namespace quillet
