#pragma once

#include "document/text/TextFault.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillet {

/// Writes rows of cells as separated text (RFC 4180): quoted where that is needed, each row ended
/// by CR LF.
class SeparatedText
{
public:
    explicit SeparatedText(QChar separator) : m_separator(separator) {}

    /// A row has at least one cell.
    void addRow(const QStringList &cells);
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    void addCell(const QString &cell, bool isQuoted);
    [[nodiscard]] bool needsQuotes(const QString &cell) const;

    QChar m_separator;
    QString m_text;
};

struct SeparatedCell
{
    QString text;
    qsizetype line = 1;   ///< where it begins, of the text, from 1
    qsizetype column = 1; ///< in UTF-16 code units of that line, from 1; with its quote

    [[nodiscard]] bool isBlank() const;
};
using SeparatedRow = std::vector<SeparatedCell>;
[[nodiscard]] bool isBlank(const SeparatedRow &row);

/// The rows of a text; one without any character is none.
struct SeparatedTable
{
    QChar separator;
    std::vector<SeparatedRow> rows;

    /// The first one that is not blank; the end when there is none.
    [[nodiscard]] std::vector<SeparatedRow>::const_iterator firstRow() const;
};

/// How much a text may have: more than any list needs, and what is read and compared in a time
/// that can be waited for.
inline constexpr std::size_t mostSeparatedRows = 150'000;
inline constexpr std::size_t mostCellsOfRow = 1'000;
inline constexpr std::size_t mostSeparatedCells = 4'000'000;

/// Reads what spreadsheets write: CR, LF or CR LF ends a row; a quote within a cell that does not
/// begin with one stands for itself. Without a separator given, it is the one that a first line
/// "sep=;" names, which is no row, or else that of comma, semicolon and tabulator that gives the
/// first rows the same number of cells, and the most. None, with where and why, of a text that is
/// none. Takes linear time.
[[nodiscard]] std::optional<SeparatedTable> readSeparatedText(QStringView text, TextFault &fault,
                                                              std::optional<QChar> separator = {});

} // namespace quillet
