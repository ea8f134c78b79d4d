#pragma once

#include <QByteArray>

namespace quillet::bench {

/// The bytes of the two files, which must outlive the run.
struct Files
{
    QByteArray stations10k;
    QByteArray stations100k;
};

/// The bare pass, loading and saving, for both files.
void registerDocumentBenchmarks(const Files &files);

} // namespace quillet::bench
