#pragma once

#include "cli/Options.h"

#include <QString>
#include <QStringList>

/// What the table of options holds, as texts.
namespace quillet {

/// "o" and "output".
[[nodiscard]] QStringList namesOf(const OptionFacts &facts);
/// "-o" and "--output".
[[nodiscard]] QStringList switchesOf(const OptionFacts &facts);
/// "output".
[[nodiscard]] QString longNameOf(const OptionFacts &facts);
/// The values there are; empty where any may be given.
[[nodiscard]] QStringList choicesOf(const OptionFacts &facts);

} // namespace quillet
