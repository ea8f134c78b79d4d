#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Searching and moving in one list of all the stations, and undoing that.
void addEditorRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
