#pragma once

#include <QStringList>

#include <vector>

namespace quillet {

/// Which columns of the station table are shown, in which order and how wide, as the settings
/// remember it for a variant of the file: the identifiers in the order of the columns, "-" before
/// those that are hidden, and behind those that the person resized "=" with their width.
class ColumnState
{
public:
    struct Column
    {
        int column = 0; ///< its place in stationColumns
        bool isShown = true;
        double width = 0; ///< in average characters; 0: usual
        [[nodiscard]] bool operator==(const Column &other) const = default;
    };

    /// As it is before the person changed something.
    [[nodiscard]] static ColumnState usual();
    /// Of any texts: what they do not name comes last, as it usually is.
    [[nodiscard]] static ColumnState of(const QStringList &texts);
    /// Empty when it is as usual.
    [[nodiscard]] QStringList texts() const;

    /// Each once, as they are read.
    [[nodiscard]] const std::vector<Column> &columns() const { return m_columns; }
    void append(const Column &column) { m_columns.push_back(column); }
    [[nodiscard]] bool isShown(int column) const;
    void setShown(int column, bool shown);

private:
    std::vector<Column> m_columns;
};

} // namespace quillet
