#pragma once

#include "editor/ComparedWith.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

class TLLDocument;
struct StationRows;
struct TextFault;

/// Why a text is no table, or no table of stations, in a sentence that says where.
[[nodiscard]] QString textOf(const TextFault &fault);

/// The rows as what the lists of a document are compared with: as stations of that of its lists
/// which most of them tell by keys or identifiers, or else by names, the current one before others
/// which do as well. In which order stations are to stand say
/// the numbers of the rows; where those are as they were, the rows themselves, which were sorted
/// then.
[[nodiscard]] ComparedWith comparedWith(const StationRows &rows, const TLLDocument &document,
                                        ComparedWith::Purpose purpose, const QString &name);

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
