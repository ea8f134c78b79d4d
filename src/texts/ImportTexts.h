#pragma once

#include <QStringList>

namespace quillet {

struct FittedRows;

/// What is to be said of rows of another program before they are taken over: which list they are
/// of, what tells their order, which of them are in doubt and what was not read. One sentence each;
/// empty when all goes without saying.
[[nodiscard]] QStringList remarksOn(const FittedRows &fitted);

} // namespace quillet
