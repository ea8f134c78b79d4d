#pragma once

#include "model/LGStation.h"

#include <optional>

namespace quillet {

/// What is typed into the table to get to a station: the beginning of a name as it is drawn, or a
/// number. Knows no table and no clock; whoever owns it says when the next letter begins anew.
class TypeAhead
{
public:
    /// The row to go to after these letters and those before; none when no name begins with them.
    /// One letter alone, or again, leads to the next such row behind the current one (-1: none),
    /// several to the current or the next. The search goes on from the top.
    std::optional<qsizetype> type(const QString &letters, const StationList &rows,
                                  qsizetype current);
    /// What was typed since it began anew.
    [[nodiscard]] const QString &text() const { return m_text; }
    /// Whether that is a number.
    [[nodiscard]] bool isNumber() const;
    /// The first row of the station with that number; none when there is none or it is no number.
    [[nodiscard]] std::optional<qsizetype> rowOfNumber(const StationList &rows) const;
    void forget() { m_text.clear(); }

private:
    QString m_text;
};

} // namespace quillet
