#pragma once

namespace quillet::bench {

class Instructions;
class Medians;
class RatioTable;

/// Adds what is made of the rows alone: how they compare with each other, how they grow with the
/// lists, and what must not take longer than a moment.
void addRatios(const Medians &medians, const Instructions &instructions, RatioTable &table);

} // namespace quillet::bench
