#pragma once

#include <QString>

namespace quillet {

struct MergeConflict;

/// What both sides of a merge want, and which station it is about, in a line.
[[nodiscard]] QString textOf(const MergeConflict &conflict);
/// The kind of the conflict, as JSON has it.
[[nodiscard]] QString nameOf(const MergeConflict &conflict);

} // namespace quillet
