#include "document/text/NamedRows.h"

#include "document/compare/StationIdentity.h"
#include "document/text/RowReading.h"
#include "model/CleanName.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillet {

namespace {

/// The names of a list, in the form in which a text surely has them.
class Names
{
public:
    explicit Names(const StationList &list)
    {
        m_names.reserve(static_cast<qsizetype>(list.size()));
        for (const StationPtr &station : list) {
            const QString name = toldName(*station);
            if (const QString loose = looseName(name); !loose.isEmpty()) {
                Name &known = m_names[loose];
                known.whole = name;
                ++known.stations;
            }
        }
    }

    [[nodiscard]] bool contains(const QString &text) const
    {
        return m_names.contains(looseName(text));
    }
    /// The name that a cell means: with the blanks and codes that a text leaves out of it, where
    /// only one station may be meant.
    [[nodiscard]] QString meantBy(const QString &text) const
    {
        const QString plain = plainName(text);
        const auto known = m_names.constFind(looseName(text));
        const bool isOne = known != m_names.cend() && known->stations == 1;
        return isOne && plainName(known->whole) == plain ? known->whole : plain;
    }

private:
    struct Name
    {
        QString whole; ///< of the last station
        int stations = 0;
    };
    QHash<QString, Name> m_names;
};

struct Column
{
    std::size_t place = 0;
    std::size_t names = 0;
};

Column columnOfNames(const SeparatedTable &table, const Names &names)
{
    std::vector<std::size_t> found{0};
    for (const SeparatedRow &row : table.rows) {
        found.resize(std::max(found.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            found[i] += names.contains(row[i].text) ? 1 : 0;
    }
    const auto most = std::max_element(found.begin(), found.end());
    return {static_cast<std::size_t>(most - found.begin()), *most};
}

} // namespace

NamedRows namedRows(const SeparatedTable &table, const RowTitles &titles, const StationList &list)
{
    const Names names(list);
    const Column column = columnOfNames(table, names);
    NamedRows named{{}, column.names};
    if (column.names == 0)
        return named;
    StationRows &rows = named.rows;
    bool mayBeTitles = true;
    for (const SeparatedRow &row : table.rows) {
        if (column.place >= row.size())
            continue;
        const QString name = names.meantBy(row[column.place].text);
        const bool isTitle = std::exchange(mayBeTitles, false) &&
                             titles.contains(foldedTitle(name)) && !names.contains(name);
        if (isTitle || name.isEmpty())
            continue;
        RowReading reading(rows.stations.size());
        TextFault::Kind unused{}; // nothing is wrong with a name
        reading.take(RowField::Name, name, unused);
        if (reading.told().testFlag(StationDifference::Name))
            reading.addTo(rows, row.front().line);
    }
    return named;
}

} // namespace quillet
