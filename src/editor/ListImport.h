#pragma once

#include "document/rows/ComparedWith.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

class TLLDocument;

/// The bytes of an exported table that was edited elsewhere, to be compared with the lists of a
/// document. None when they are none; then the reason is a sentence to show. Changes nothing.
[[nodiscard]] std::optional<ComparedWith> importedTable(const QByteArray &bytes,
                                                        const QString &name,
                                                        const TLLDocument &document,
                                                        QString &reason);
/// The same of a file.
[[nodiscard]] std::optional<ComparedWith>
importedFile(const QString &path, const TLLDocument &document, QString &reason);

} // namespace quillet
