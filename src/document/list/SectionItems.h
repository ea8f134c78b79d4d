#pragma once

#include "xml/Value.h"

#include <QStringView>

#include <vector>

namespace quillet {

/// The ITEM elements of a section, "ATV" or "DTV", of a file's tree, in their order. None when
/// there is no such section. A single one stands in the tree without a list around it.
[[nodiscard]] Array sectionItems(const Dictionary &tree, QStringView section);

/// The entries among them, each that of a station: what holds nothing but text is left out.
[[nodiscard]] std::vector<Dictionary> stationEntries(const Dictionary &tree, QStringView section);

/// The names of the sections that the tree has, in the file's order.
[[nodiscard]] std::vector<QStringView> sectionsInOrder(const Dictionary &tree);

} // namespace quillet
