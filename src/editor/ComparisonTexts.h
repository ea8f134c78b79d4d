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
/// The same for a narrow column: TV goes without saying.
[[nodiscard]] QString shortTitleOf(StationComparison::List list);
[[nodiscard]] QString titleOf(ComparisonKind kind, ComparedWith::Purpose purpose);
/// What distinguishes the two sides of a row; empty when nothing does.
[[nodiscard]] QString textOf(const ComparisonRow &row, ComparedWith::Purpose purpose);
/// What taking over would do, in sentences.
[[nodiscard]] QString textOf(const StationComparison::Parts &parts);
/// What going on with all that is checked would do, in sentences.
[[nodiscard]] QString previewOf(const StationComparison &comparison);

} // namespace quillet
