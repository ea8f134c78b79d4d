#pragma once

#include "document/compare/ListComparison.h"
#include "editor/StationComparison.h"

#include <QString>

namespace quillet {

/// What distinguishes the second list of a comparison, the earlier one, from the first, the list as
/// it is now, in a sentence without a full stop.
[[nodiscard]] QString textOf(const ListComparison &comparison);

/// What the window that shows a comparison is called.
[[nodiscard]] QString titleOf(const ComparedWith &other);
[[nodiscard]] QString titleOf(StationComparison::List list);
[[nodiscard]] QString titleOf(ComparisonKind kind, ComparedWith::Purpose purpose);
/// What distinguishes the two sides of a row; empty when nothing does.
[[nodiscard]] QString textOf(const ComparisonRow &row, ComparedWith::Purpose purpose);
/// What taking over would do, in sentences.
[[nodiscard]] QString textOf(const StationComparison::Parts &parts);
/// What pressing the button of the window would do, in sentences: in full, and of the rows alone
/// that are selected; empty where that says nothing of its own.
[[nodiscard]] QString previewOf(const StationComparison &comparison);
[[nodiscard]] QString previewOf(const StationComparison &comparison,
                                const std::vector<std::size_t> &selected);

} // namespace quillet
