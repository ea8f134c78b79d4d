#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Finding the stations of a list in another one as long, and taking over all that differs.
void addCompareRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
