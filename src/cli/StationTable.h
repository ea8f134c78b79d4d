#pragma once

#include "cli/ColumnChoice.h"
#include "texts/CellTexts.h"
#include "xml/Dictionary.h"

#include <QHash>
#include <QStringList>

namespace quillet {

class Console;
struct ChannelList;
struct ChosenList;

/// The stations of one list as rows of the chosen columns. Made for one answer; what it is made of
/// must outlive it.
class StationTable
{
public:
    StationTable(const ChannelList &file, const ChosenList &list, const TableColumns &columns);

    /// In columns below one another, without what could mean something to a terminal.
    void writeAligned(Console &console) const;
    /// As they are stored; marks are 1 and 0, and empty where the file does not tell.
    [[nodiscard]] QStringList separatedCells(std::size_t row) const;
    /// Numbers and marks as such; null where the file does not tell.
    [[nodiscard]] Dictionary jsonObject(std::size_t row) const;

private:
    [[nodiscard]] QString text(const ToolColumn &column, std::size_t row) const;
    [[nodiscard]] Value json(const ToolColumn &column, std::size_t row) const;

    const ChosenList &m_list;
    const TableColumns &m_columns;
    CellTexts m_cells;
    QStringList m_keys; ///< of the stations, where a column wants them
};

} // namespace quillet
