#pragma once

#include "model/LGStation.h"

#include <optional>

namespace quillet {

/// Looks for a text in the names of stations, without regard to case, as they are stored or as they
/// are drawn; a renamed station's old name counts as well.
class StationSearch
{
public:
    /// The text is not empty.
    explicit StationSearch(const QString &text);

    [[nodiscard]] bool finds(const LGStation &station);
    /// The next place behind (or before) that one, -1 for none, with a station that it finds, on
    /// around the end of the list; none when there is none.
    [[nodiscard]] std::optional<qsizetype> next(const StationList &stations, qsizetype place,
                                                bool isForward);

private:
    [[nodiscard]] bool isIn(const QString &name);
    [[nodiscard]] bool fits(const QString &name);

    QString m_wanted;
    QString m_lowered; ///< one text after another, in the same memory
};

} // namespace quillet
