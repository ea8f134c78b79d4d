#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// Loading lists and writing them, and the bare passes that others are compared with.
void addDocumentRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
