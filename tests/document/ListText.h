#pragma once

#include "document/TLLDocument.h"

#include <QStringList>

namespace quillet::testing {

/// Reads a file into the document as the program does.
inline bool read(TLLDocument &document, const QByteArray &bytes)
{
    Error error;
    return document.readFromData(bytes, TLLDocument::typeName(), error);
}

inline bool read(TLLDocument &document, const QString &text)
{
    return read(document, text.toUtf8());
}

/// What the document would write to its file.
[[nodiscard]] inline QByteArray written(TLLDocument &document)
{
    Error error;
    return document.dataOfType(TLLDocument::typeName(), error);
}

/// The stations of all eight lists in order: "TV0" or "Radio0" with the source's index, the raw
/// number and the name.
[[nodiscard]] inline QStringList listText(const TLLDocument &document)
{
    QStringList text;
    for (const char *mode : {"TV", "Radio"}) {
        for (int source = 0; source < 4; ++source) {
            for (const StationPtr &station : *document.lists().list(*mode == 'T', source))
                text += QStringLiteral("%1%2 %3 %4")
                            .arg(QLatin1String(mode), QString::number(source),
                                 QString::number(station->getRawProgNum()), station->stationName());
        }
    }
    return text;
}

} // namespace quillet::testing
