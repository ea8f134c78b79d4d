#pragma once

#include "document/TLLDocument.h"

namespace quillet::bench {

/// Whether the bytes were read to their end.
[[nodiscard]] inline bool load(TLLDocument &document, const QByteArray &bytes)
{
    Error error;
    return document.readFromData(bytes, TLLDocument::typeName(), error) &&
           !document.list().parseError && document.list().stationCount() > 0;
}

/// Makes the source with the most television stations the current one, as a window does.
inline void showLongestList(TLLDocument &document)
{
    const StationListPtr longest = document.listWithMostEntries(true);
    document.switchToMode(true);
    for (const StationSource source : stationSources) {
        if (document.lists().list(true, static_cast<int>(source)) == longest)
            document.switchToSource(static_cast<int>(source));
    }
}

} // namespace quillet::bench
