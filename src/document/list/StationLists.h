#pragma once

#include "model/LGStation.h"
#include "model/StationSource.h"

#include <array>
#include <utility>
#include <vector>

namespace quillet {

/// Where a station stood in the file it was read from.
struct FilePlace
{
    enum class Section { None, ATV, DTV, JSON };
    Section section = Section::None;
    qint64 index = 0; ///< among the section's ITEM elements that hold something, or the channels
};

/// A station as it was filed.
struct FiledStation
{
    StationPtr station;
    FilePlace place;
};

/// The eight station lists of a channel list: one for each source and mode.
class StationLists
{
public:
    using Lists = std::array<StationListPtr, stationSourceCount>;

    StationLists() = default;
    /// As others were that had these.
    StationLists(Lists tvStations, Lists radioStations, std::vector<FiledStation> roll)
        : m_tvStations(std::move(tvStations)), m_radioStations(std::move(radioStations)),
          m_roll(std::move(roll))
    {
    }

    /// Replaces all lists with new, empty ones; whoever holds an old list keeps it.
    void setupLists();

    /// The list of a mode and source index; null before setupLists().
    [[nodiscard]] const StationListPtr &list(bool isTV, int source) const
    {
        return (isTV ? m_tvStations : m_radioStations).at(static_cast<std::size_t>(source));
    }
    [[nodiscard]] const Lists &tvStations() const { return m_tvStations; }
    [[nodiscard]] const Lists &radioStations() const { return m_radioStations; }

    /// So many more are about to be filed.
    void expect(std::size_t count) { m_roll.reserve(m_roll.size() + count); }
    /// Appends the station to the list of its source and mode; false when it names no source.
    bool fileStation(StationPtr station, FilePlace place = {});
    /// Every station ever filed, in that order: what the lists should hold, each once.
    [[nodiscard]] const std::vector<FiledStation> &roll() const { return m_roll; }

    /// Stations of a source, TV and radio together.
    [[nodiscard]] qsizetype stationCount(int source) const;
    /// The longest list of the mode, that of the lowest source among equals; null when all are
    /// empty.
    [[nodiscard]] StationListPtr listWithMostEntries(bool isTV) const;

    /// Sorts by program number, equal numbers keeping their order, and then raises every number
    /// that does not exceed the one before it to the next free one. All numbers are 1 or more
    /// afterwards; gaps stay. Returns how many were raised to a number that they cannot carry.
    static std::size_t sortAndValidateStations(StationList &stations);

private:
    Lists m_tvStations;
    Lists m_radioStations;
    std::vector<FiledStation> m_roll;
};

} // namespace quillet
