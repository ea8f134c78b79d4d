#pragma once

#include <QStringList>

namespace quillet {

struct Mending;

/// What was mended in a text, one sentence for each thing.
[[nodiscard]] QStringList textsOf(const Mending &mending);

} // namespace quillet
