#pragma once

class QByteArray;

namespace quillet::bench {

/// Finding the stations of a file in another list as long, and taking over all that differs.
void registerCompareBenchmarks(const QByteArray &stations, const QByteArray &channels);

} // namespace quillet::bench
