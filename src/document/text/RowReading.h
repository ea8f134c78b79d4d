#pragma once

#include "document/compare/ListComparison.h"
#include "document/text/StationKey.h"
#include "document/text/StationRows.h"

namespace quillet {

/// Makes a record of one row, cell by cell. What a key tells goes before what other cells tell of
/// the same.
class RowReading
{
public:
    /// `place` is that of the row among the others.
    explicit RowReading(std::size_t place);

    /// Takes what a cell that is not empty tells in a column. False, with the kind of the fault,
    /// when it is nothing for that column.
    bool take(RowField field, const QString &text, TextFault::Kind &kind);
    void takeKey(const StationKey &key);

    [[nodiscard]] StationDifferences told() const { return m_told; }
    /// Makes it the last of those rows. `line` is where it begins.
    void addTo(StationRows &rows, qsizetype line) const;

private:
    bool takeNumber(const QString &text);
    bool takeMark(RowField field, const QString &text);
    void takeName(const QString &text);
    void takeIdentifier(const QString &field, const QString &text);
    void setText(const QString &field, const QString &text);

    StationPtr m_station;
    StationDifferences m_told;
    std::optional<StationKey> m_key;
};

} // namespace quillet
