#pragma once

#include "document/edit/OrderChange.h"

#include <optional>
#include <utility>
#include <vector>

namespace quillet {

/// What one edit did to one list and its stations: enough to take it back, to the last field, and
/// to make it again. The edits of a list fill it as they are made. It goes by places, so it means
/// something only for the list as it stands after the edit, or after it was taken back.
class EditRecord
{
public:
    // While the edit is made

    /// Notes the order, which is made already. Numbers go by the places in it.
    void reorder(OrderChange order) { m_order = std::move(order); }
    /// Gives the stations of the order's stretch the numbers that its places had before. Those must
    /// strictly increase; one number a place.
    void giveNumbersOfPlaces(const StationList &list, const std::vector<qint64> &numbers);
    /// Gives the station at that place of the list a number, even the one that it has.
    void setNumber(const StationList &list, std::size_t place, qint64 number);
    /// Notes what a change of the station does to its field with that key.
    template<typename Change>
    void changeField(const StationPtr &station, const QString &key, Change change)
    {
        const std::optional<Value> before = station->field(key);
        change(*station);
        if (station->field(key) != before)
            m_fields.push_back({station, key, before});
    }

    /// Gives the station the content of another one, which must be this edit's alone from then on.
    void replaceContent(const StationPtr &station, const StationPtr &other);

    // Afterwards

    /// Whether there is nothing to take back.
    [[nodiscard]] bool isEmpty() const;
    void undo(StationList &list);
    void redo(StationList &list);

    /// Whether stations stand elsewhere.
    [[nodiscard]] bool movesStations() const { return !m_order.isEmpty(); }
    /// Outside of these places stations and their numbers are the same before and after.
    [[nodiscard]] ListStretch places() const;
    /// Of the memory that it holds besides itself.
    [[nodiscard]] std::size_t byteCount() const;

private:
    /// Stations at neighbouring places whose numbers count up, before and after.
    struct Numbers
    {
        std::size_t place;
        std::size_t count;
        qint64 before;
        qint64 after;
    };
    struct Field
    {
        StationPtr station;
        QString key;
        std::optional<Value> content; ///< none: there is no such field
    };

    void keepNumberFields(const StationPtr &station);
    void giveToPlaces(const StationList &list, const std::vector<qint64> &numbers);
    [[nodiscard]] std::vector<qint64> numbersOfPlaces(const StationList &list) const;
    void swapFields();
    void swapContents();

    OrderChange m_order;
    bool m_numbersStay = false; ///< with their places, in the stretch of the order
    std::vector<Numbers> m_numbers;
    /// What the fields of numbers were before the edit, where giving the old number again would not
    /// bring that back.
    std::vector<Field> m_numberFields;
    std::vector<Field> m_fields; ///< before, or after once the edit was taken back
    /// Stations of the list, and others with what they were before, or after.
    std::vector<std::pair<StationPtr, StationPtr>> m_contents;
};

} // namespace quillet
