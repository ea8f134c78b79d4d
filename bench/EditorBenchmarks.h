#pragma once

class QByteArray;

namespace quillet::bench {

/// Searching and moving in one list of all the file's stations.
void registerEditorBenchmarks(const QByteArray &file);

} // namespace quillet::bench
