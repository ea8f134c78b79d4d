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

    [[nodiscard]] const StationPtr &station() const { return m_station; }
    [[nodiscard]] StationDifferences told() const { return m_told; }
    [[nodiscard]] const std::optional<StationKey> &key() const { return m_key; }

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
