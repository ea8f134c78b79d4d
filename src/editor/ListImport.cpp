#include "editor/ListImport.h"

#include "document/TLLDocument.h"
#include "document/compare/UnkeptNames.h"
#include "document/rows/RowFitting.h"
#include "document/text/TableReading.h"
#include "files/FileNames.h"
#include "files/FileReading.h"
#include "texts/ColumnTitles.h"
#include "texts/FaultTexts.h"
#include "texts/ImportTexts.h"

#include <QFileInfo>
#include <QUrl>

#include <new>

namespace quillet {

std::optional<ComparedWith> importedTable(const QByteArray &bytes, const QString &name,
                                          const TLLDocument &document, QString &reason)
{
    TextFault fault;
    const auto rows = stationRowsFromBytes(bytes, document.lists(), titlesFor, fault);
    if (!rows) {
        reason = textOf(fault);
        return {};
    }
    const FittedRows fitted =
        fitRows(*rows, document.list(), {document.usesTV(), document.curSource()});
    ComparedWith compared = comparedWith(fitted, ComparedWith::Purpose::Import, name);
    compared.remark = remarksOn(fitted).join(u' ');
    return compared;
}

std::optional<ComparedWith> importedFile(const QString &path, const TLLDocument &document,
                                         QString &reason)
{
    try {
        QByteArray bytes;
        Error error;
        // Reference lists go by the names that somebody has seen.
        const UnkeptNames names(document.lists());
        if (readFile(QUrl::fromLocalFile(path), bytes, error))
            return importedTable(bytes, readable(QFileInfo(path).fileName()), document, reason);
        reason = error.text();
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
    }
    return {};
}

} // namespace quillet
