#pragma once

#include <QByteArray>

#include <benchmark/benchmark.h>

namespace quillet::bench {

class Lists;
class Rows;

/// Loading lists and writing them, and the bare passes that others are compared with.
void addDocumentRows(Rows &rows, const Lists &lists);

/// From bytes in memory to sorted lists in a new document. Reading the file is not in it, nor is
/// destroying the document.
void loading(benchmark::State &state, const QByteArray &bytes);

} // namespace quillet::bench
