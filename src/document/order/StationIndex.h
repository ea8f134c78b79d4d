#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <functional>
#include <limits>
#include <memory_resource>
#include <vector>

namespace quillet {

/// Finds the stations of a list by one text of theirs, in list order, without walking the list. A
/// station that the list no longer holds (null) is passed over.
class StationIndex
{
public:
    /// Gives the text, for which there may be room already; false when the station has none.
    using Key = std::function<bool(const LGStation &, QString &)>;
    enum class Found { None, One, Several };
    struct Match
    {
        Found found = Found::None;
        std::size_t index = 0; ///< of the first one
    };

    /// Stations without a key are never found.
    StationIndex(const StationList &stations, const Key &key);

    [[nodiscard]] Match find(QStringView key, const StationList &stations);

private:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    struct Chain
    {
        std::size_t first = none;
        std::size_t last = none;
    };

    [[nodiscard]] std::size_t firstHeld(std::size_t index, const StationList &stations) const;

    [[nodiscard]] QStringView kept(QStringView key);

    std::pmr::monotonic_buffer_resource m_texts; ///< of the keys
    QHash<QStringView, Chain> m_chains;
    std::vector<std::size_t> m_next; ///< the next station with the same key
};

} // namespace quillet
