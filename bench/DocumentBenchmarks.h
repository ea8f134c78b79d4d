#pragma once

#include <QByteArray>

namespace quillet::bench {

/// The bytes of the files, which must outlive the run.
struct Files
{
    QByteArray stations10k;
    QByteArray stations100k;
    QByteArray channels10k; ///< the variant that keeps its list as JSON
};

/// The bare pass, loading and saving, for all files.
void registerDocumentBenchmarks(const Files &files);

} // namespace quillet::bench
