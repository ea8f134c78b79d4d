#pragma once

#include <QByteArray>

#include <random>

namespace quillet::fuzzing {

/// The text with one to four changes such as files meet: bytes changed, stretches lost, doubled or
/// moved, and pieces of XML put in. The same sequence of random numbers gives the same changes.
[[nodiscard]] QByteArray mutated(QByteArray text, std::mt19937 &random);

} // namespace quillet::fuzzing
