#pragma once

#include "document/rows/ComparisonRows.h"

#include <QString>

namespace quillet {

[[nodiscard]] QString titleOf(ComparedList list);
/// The same for a narrow column: TV goes without saying.
[[nodiscard]] QString shortTitleOf(ComparedList list);
[[nodiscard]] QString titleOf(ComparisonKind kind, ComparedWith::Purpose purpose);
/// What distinguishes the two sides of a row; empty when nothing does.
[[nodiscard]] QString textOf(const ComparisonRow &row, ComparedWith::Purpose purpose);

} // namespace quillet
