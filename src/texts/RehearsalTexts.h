#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

struct Rehearsal;

/// What would be lost, one sentence for each thing; empty when nothing would be.
[[nodiscard]] QStringList textsOf(const Rehearsal &rehearsal);

} // namespace quillet
