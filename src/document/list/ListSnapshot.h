#pragma once

#include "document/list/ChannelList.h"

#include <array>
#include <optional>
#include <vector>

namespace quillet {

/// A list as it was at one moment, for another thread than the one that it is edited on. Taken
/// quickly, since it shares what the list holds; but stations read their fields when they are first
/// asked, so there are copies of those, and the other thread makes them.
class ListSnapshot
{
public:
    /// Called where the list is edited. What is on show may be none of its lists, or none.
    ListSnapshot(const ChannelList &list, const StationListPtr &shown);

    struct Copy
    {
        ChannelList list;
        StationListPtr shown; ///< among its lists if it was
    };
    /// The list, of which nothing is known to anybody else. Takes everything out of the snapshot.
    [[nodiscard]] Copy takeCopy();

private:
    struct Station
    {
        const LGStation *id; ///< which is never looked at
        Dictionary entry;
        qint64 origPos;
        bool isRadio;
    };
    using Stations = std::optional<std::vector<Station>>; ///< none of a list that there is not

    [[nodiscard]] static Station taken(const LGStation &station);
    [[nodiscard]] static Stations taken(const StationListPtr &list);

    ChannelList m_rest;                                                ///< without its stations
    std::array<Stations, std::size_t{2} * stationSourceCount> m_lists; ///< TV and radio by turns
    Stations m_shown;
    std::optional<std::size_t> m_shownIndex; ///< among the lists
    std::vector<Station> m_roll;
    std::vector<FilePlace> m_places; ///< of those on the roll
};

} // namespace quillet
