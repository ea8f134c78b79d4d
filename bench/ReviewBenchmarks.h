#pragma once

namespace quillet::bench {

class Lists;
class Rows;

/// What a save does with the bytes before it writes them: rehearsing them, and making others that
/// lose less.
void addReviewRows(Rows &rows, const Lists &lists);

} // namespace quillet::bench
