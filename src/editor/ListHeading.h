#pragma once

#include <QString>

namespace quillet {

class TableController;

/// What the rows on show are, for a page of paper: the set, the mode, the source, and what they are
/// narrowed by. Rows that a filter kept are of the source they came from. Of the whole list that
/// those are of, nothing is said that narrows it.
[[nodiscard]] QString listHeading(const TableController &controller, bool isWhole = false);

} // namespace quillet
