#pragma once

#include "document/text/StationRows.h"

#include <optional>
#include <vector>

namespace quillet {

/// Says of each row of a table which station of a list it is of: that of its key, or else that
/// which has its identifiers alone. Its name tells stations apart that differ in the occurrence
/// alone, and shows that cells of one row are no longer of one station, or that the table is of
/// another list. Made for one answer; rows and list must outlive it.
class RowMatching
{
public:
    /// `mayRename`: whether the stations of the list can get names by the rows.
    RowMatching(const StationRows &rows, const StationList &list, bool mayRename);
    [[nodiscard]] RowMatches match();
    /// Once they are matched: the station by which a row is completed; none for a row that tells
    /// none.
    [[nodiscard]] std::optional<std::size_t> place(std::size_t row) const
    {
        return m_rows[row].place;
    }

    /// Whether plain names are the same but for letters that a table could not hold: there it has
    /// question marks.
    [[nodiscard]] static bool areSameNames(const QString &inTable, const QString &name);

private:
    enum class Verdict { None, Pending, Renamed, Unclear };
    struct Row
    {
        std::optional<std::size_t> own = {}; ///< the station of its key
        /// Another one that has the name of the row, if it is one alone.
        std::optional<std::size_t> named = {};
        bool isNamedAlike = false; ///< that one has the same key but for the occurrence
        bool isNameKnown = false;  ///< there are such at all
        bool isNameOther = false;  ///< than that of its own station
        bool isOwnSure = false;    ///< nevertheless, if that was renamed
        Verdict verdict = Verdict::None;
        std::optional<std::size_t> place = {}; ///< in the end
    };

    void findOwn();
    [[nodiscard]] QString tellingPart(const LGStation &station) const;
    void findTelling();
    void findNamed();
    void judge(std::size_t first);
    void claim(std::size_t row, std::size_t place, Likeness likeness);
    void claimAll(Verdict verdict);

    const StationRows &m_told;
    const StationList &m_list;
    bool m_mayRename;
    std::vector<Row> m_rows;
    std::vector<QString> m_names;                        ///< of the stations
    std::vector<std::optional<std::size_t>> m_ownRows;   ///< of the stations, by the key
    std::vector<std::optional<std::size_t>> m_claimedBy; ///< of the stations: a row
    RowMatches m_matches;
};

} // namespace quillet
