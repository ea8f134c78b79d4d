#pragma once

class QByteArray;

namespace quillet::bench {

/// Giving all the file's stations the order of a reference list as long as theirs.
void registerOrderBenchmarks(const QByteArray &file);

} // namespace quillet::bench
