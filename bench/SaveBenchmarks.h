#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Whole saves, from the command to the file that was read back, and to the question before one.
void addSaveRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
