#include "document/text/SeparatedText.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

namespace quillet {

namespace {

constexpr std::array<char16_t, 3> separators{u';', u'\t', u','};
constexpr QStringView separatorMark = u"sep=";
constexpr QChar quote = u'"';

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

/// Goes through a text once.
class Reader
{
public:
    Reader(QStringView text, QChar separator) : m_text(text), m_separator(separator) {}

    /// Passes over the first line.
    void skipLine()
    {
        while (!isAtEnd() && !isLineEnd(m_text[m_at]))
            ++m_at;
        passLineEnd();
    }

    /// False with the fault set; the rows before it stay.
    bool read(std::vector<SeparatedRow> &rows, std::size_t mostRows, TextFault &fault)
    {
        while (!isAtEnd() && rows.size() < mostRows) {
            if (isLineEnd(m_text[m_at])) {
                passLineEnd();
                continue;
            }
            if (rows.size() == mostSeparatedRows)
                return failed(TextFault::Kind::TooLarge, fault);
            SeparatedRow &row = rows.emplace_back();
            do {
                if (!readCell(row, fault))
                    return false;
            } while (pass(m_separator));
            passLineEnd();
        }
        return true;
    }

private:
    [[nodiscard]] bool isAtEnd() const { return m_at == m_text.size(); }
    [[nodiscard]] qsizetype column() const { return m_at - m_lineStart + 1; }
    [[nodiscard]] bool isCellEnd() const
    {
        return isAtEnd() || m_text[m_at] == m_separator || isLineEnd(m_text[m_at]);
    }

    bool pass(QChar wanted)
    {
        if (isAtEnd() || m_text[m_at] != wanted)
            return false;
        ++m_at;
        return true;
    }

    void passLineEnd()
    {
        if (isAtEnd())
            return;
        if (!pass(u'\r') || (!isAtEnd() && m_text[m_at] == u'\n'))
            ++m_at;
        ++m_line;
        m_lineStart = m_at;
    }

    bool readCell(SeparatedRow &row, TextFault &fault)
    {
        if (++m_cells > mostSeparatedCells || row.size() == mostCellsOfRow)
            return failed(TextFault::Kind::TooLarge, fault);
        SeparatedCell &cell = row.emplace_back();
        cell.line = m_line;
        cell.column = column();
        if (pass(quote))
            return readQuoted(cell, fault);
        const qsizetype begin = m_at;
        while (!isCellEnd()) {
            if (m_text[m_at].isNull())
                return failed(TextFault::Kind::ZeroCharacter, fault);
            ++m_at;
        }
        cell.text = m_text.sliced(begin, m_at - begin).toString();
        return true;
    }

    bool readQuoted(SeparatedCell &cell, TextFault &fault)
    {
        for (;;) {
            const qsizetype begin = m_at;
            while (!isAtEnd() && m_text[m_at] != quote) {
                if (m_text[m_at].isNull())
                    return failed(TextFault::Kind::ZeroCharacter, fault);
                if (isLineEnd(m_text[m_at]))
                    passLineEnd();
                else
                    ++m_at;
            }
            cell.text += m_text.sliced(begin, m_at - begin);
            if (!pass(quote)) {
                fault = {TextFault::Kind::UnclosedQuote, cell.line, cell.column, {}};
                return false;
            }
            if (!pass(quote))
                break;
            cell.text += quote; // of two, one stands for itself
        }
        while (!isCellEnd() && m_text[m_at].isSpace())
            ++m_at;
        return isCellEnd() || failed(TextFault::Kind::TextBehindQuote, fault);
    }

    bool failed(TextFault::Kind kind, TextFault &fault) const
    {
        fault = {kind, m_line, column(), {}};
        return false;
    }

    QStringView m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    qsizetype m_line = 1;
    qsizetype m_lineStart = 0;
    std::size_t m_cells = 0;
};

/// What a first line of a spreadsheet says.
std::optional<QChar> namedSeparator(QStringView text)
{
    const qsizetype at = separatorMark.size();
    const bool isNamed = text.size() > at && text.startsWith(separatorMark, Qt::CaseInsensitive) &&
                         (text.size() == at + 1 || isLineEnd(text[at + 1]));
    return isNamed && !isLineEnd(text[at]) && text[at] != quote ? std::optional(text[at])
                                                                : std::nullopt;
}

/// How well a separator explains the first rows: how many of them have the cells of the first one,
/// and then how many those are.
std::pair<std::size_t, std::size_t> fitOf(QChar separator, QStringView text)
{
    constexpr std::size_t looked = 30;
    std::vector<SeparatedRow> rows;
    TextFault fault;
    if (!Reader(text, separator).read(rows, looked, fault) && !rows.empty())
        rows.pop_back(); // it may be the separator that made it one
    if (rows.empty() || rows.front().size() < 2)
        return {};
    const auto alike = std::count_if(rows.begin(), rows.end(), [&rows](const SeparatedRow &row) {
        return row.size() == rows.front().size();
    });
    return {static_cast<std::size_t>(alike), rows.front().size()};
}

QChar likeliestSeparator(QStringView text)
{
    return *std::max_element(
        separators.rbegin(), separators.rend(),
        [text](char16_t a, char16_t b) { return fitOf(a, text) < fitOf(b, text); });
}

} // namespace

bool SeparatedText::needsQuotes(const QString &cell) const
{
    return !cell.isEmpty() && (cell.front().isSpace() || cell.back().isSpace() ||
                               std::any_of(cell.begin(), cell.end(), [this](QChar c) {
                                   return c == m_separator || c == quote || isLineEnd(c);
                               }));
}

void SeparatedText::addCell(const QString &cell, bool isQuoted)
{
    if (!isQuoted) {
        m_text += cell;
        return;
    }
    QString doubled = cell;
    m_text += quote + doubled.replace(quote, QStringLiteral("\"\"")) + quote;
}

void SeparatedText::addRow(const QStringList &cells)
{
    // A row of one empty cell would be none, and what the first line begins with could name a
    // separator.
    const bool isQuoted =
        (cells.size() == 1 && cells.front().isEmpty()) ||
        (m_text.isEmpty() && cells.front().startsWith(separatorMark, Qt::CaseInsensitive));
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0)
            m_text += m_separator;
        addCell(cells[i], (i == 0 && isQuoted) || needsQuotes(cells[i]));
    }
    m_text += QStringLiteral("\r\n");
}

std::optional<SeparatedTable> readSeparatedText(QStringView text, TextFault &fault,
                                                std::optional<QChar> separator)
{
    const std::optional<QChar> named = namedSeparator(text);
    SeparatedTable table;
    table.separator = separator ? *separator : named ? *named : likeliestSeparator(text);
    Reader reader(text, table.separator);
    if (named)
        reader.skipLine();
    if (!reader.read(table.rows, std::numeric_limits<std::size_t>::max(), fault))
        return {};
    return table;
}

bool SeparatedCell::isBlank() const
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

bool isBlank(const SeparatedRow &row)
{
    return std::all_of(row.begin(), row.end(), std::mem_fn(&SeparatedCell::isBlank));
}

std::vector<SeparatedRow>::const_iterator SeparatedTable::firstRow() const
{
    return std::find_if_not(rows.begin(), rows.end(), isBlank);
}

} // namespace quillet
