#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

namespace quillet {

/// Finds the stations of a list by one text of theirs, in list order, without walking the list. A
/// station that the list no longer holds (null) is passed over.
class StationIndex
{
public:
    using Key = std::function<std::optional<QString>(const LGStation &)>;
    enum class Found { None, One, Several };
    struct Match
    {
        Found found = Found::None;
        std::size_t index = 0; ///< of the first one
    };

    /// Stations without a key are never found.
    StationIndex(const StationList &stations, const Key &key);

    [[nodiscard]] Match find(const QString &key, const StationList &stations);

private:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    struct Chain
    {
        std::size_t first = none;
        std::size_t last = none;
    };

    [[nodiscard]] std::size_t firstHeld(std::size_t index, const StationList &stations) const;

    QHash<QString, Chain> m_chains;
    std::vector<std::size_t> m_next; ///< the next station with the same key
};

} // namespace quillet
