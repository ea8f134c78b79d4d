#pragma once

#include "document/text/TextBytes.h"
#include "framework/Prompts.h"
#include "model/LGStation.h"
#include "texts/CellTexts.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace quillet {

class TableController;

/// What a list is exported as.
struct ExportOptions
{
    enum class Format {
        Table, ///< of cells, for spreadsheets
        Order, ///< a reference list
        Page,  ///< of HTML, to print
    };

    Format format = Format::Table;
    QChar separator = u',';               ///< of a table
    TextForm form = TextForm::MarkedUtf8; ///< of a table; the others are UTF-8
    bool hasKeys = true;    ///< a table: has a column by which its rows are found again
    bool onlyShown = false; ///< rather than the whole list that the rows on show are of
};

/// Makes other texts of the list on show than its file: with the columns that are shown, in their
/// order, as the table shows them. Asks nobody and writes nothing; what has been made may be
/// written at any time. Made when it is needed, for as long as the controller lives.
class ListExport
{
public:
    /// The controller must have a document.
    ListExport(const TableController &table, std::vector<ColumnContent> columns);

    struct Made
    {
        QByteArray bytes;
        QStringList remarks; ///< sentences about what the text cannot hold
    };
    [[nodiscard]] Made make(const ExportOptions &options) const;
    /// How many stations that would be.
    [[nodiscard]] std::size_t stationCount(bool onlyShown) const;
    /// Where it is to be suggested to write that.
    [[nodiscard]] SavePanel panel(const ExportOptions &options) const;

private:
    [[nodiscard]] const StationList &stations(bool onlyShown) const;
    [[nodiscard]] Made makeTable(const ExportOptions &options) const;
    [[nodiscard]] Made makeReferenceList(const ExportOptions &options) const;
    [[nodiscard]] Made makePage(const ExportOptions &options) const;

    const TableController &m_table;
    std::vector<ColumnContent> m_columns;
    CellTexts m_cells;
};

} // namespace quillet
