#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Giving all the stations of a list the order of a reference list as long, as entries and as a
/// file.
void addOrderRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
