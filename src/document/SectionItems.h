#pragma once

#include "xml/Value.h"

namespace quillet {

/// The ITEM elements of a section, "ATV" or "DTV", of a file's tree, in their order. None when
/// there is no such section. A single one stands in the tree without a list around it.
[[nodiscard]] Array sectionItems(const Dictionary &tree, QStringView section);

} // namespace quillet
