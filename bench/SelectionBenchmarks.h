#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Commands on a selection of every second row of a table, in a window as in the program, until
/// that is painted.
void addSelectionRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
