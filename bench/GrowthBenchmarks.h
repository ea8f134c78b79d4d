#pragma once

#include <array>

namespace quillet::bench {

class Rows;

/// A kind of text that a program may get slow with, each measured at two lengths.
struct Growth
{
    const char *title;
    const char *half;  ///< the figure of a text
    const char *whole; ///< of one twice as long
};

inline constexpr std::array growths{
    Growth{"hyphens in a comment", "growth/hyphens/1", "growth/hyphens/2"},
    Growth{"attributes", "growth/attributes/1", "growth/attributes/2"},
    Growth{"different fields", "growth/fields/1", "growth/fields/2"},
    Growth{"texts and elements in turn", "growth/runs/1", "growth/runs/2"},
    Growth{"comments in a field", "growth/comments/1", "growth/comments/2"},
    Growth{"members of a channel", "growth/members/1", "growth/members/2"},
    Growth{"escapes in a JSON text", "growth/escapes/1", "growth/escapes/2"},
};

void addGrowthRows(Rows &rows);

} // namespace quillet::bench
