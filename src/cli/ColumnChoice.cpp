#include "cli/ColumnChoice.h"

#include "cli/Invocation.h"
#include "texts/ColumnTitles.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Kind = ToolColumn::Kind;

// clang-format off
constexpr std::array columns{
    ToolColumn{QLatin1String("source"), Kind::Source, ColumnContent::Number, 9},
    ToolColumn{QLatin1String("mode"), Kind::Mode, ColumnContent::Number, 5},
    ToolColumn{QLatin1String("number"), Kind::Cell, ColumnContent::Number, 5},
    ToolColumn{QLatin1String("type"), Kind::Cell, ColumnContent::Type, 10},
    ToolColumn{QLatin1String("skipped"), Kind::Cell, ColumnContent::Skipped, 1},
    ToolColumn{QLatin1String("locked"), Kind::Cell, ColumnContent::Blocked, 1},
    ToolColumn{QLatin1String("network"), Kind::Cell, ColumnContent::NetworkId, 5},
    ToolColumn{QLatin1String("transport"), Kind::Cell, ColumnContent::TransportStreamId, 5},
    ToolColumn{QLatin1String("service"), Kind::Cell, ColumnContent::ServiceId, 5},
    ToolColumn{QLatin1String("frequency"), Kind::Cell, ColumnContent::Frequency, 10},
    ToolColumn{QLatin1String("satellite"), Kind::Cell, ColumnContent::Satellite, 12},
    ToolColumn{QLatin1String("encrypted"), Kind::Cell, ColumnContent::Encrypted, 1},
    ToolColumn{QLatin1String("hidden"), Kind::Cell, ColumnContent::Hidden, 1},
    ToolColumn{QLatin1String("key"), Kind::Key, ColumnContent::Number, 28},
    ToolColumn{QLatin1String("name"), Kind::Cell, ColumnContent::Name, 20},
};
// clang-format on

TableColumns columnsNamed(const QStringList &names)
{
    TableColumns chosen;
    for (const QString &name : names) {
        const auto *const found =
            std::find_if(columns.begin(), columns.end(),
                         [&name](const ToolColumn &column) { return column.name == name; });
        if (found != columns.end())
            chosen.push_back(*found);
    }
    return chosen;
}

} // namespace

TableColumns columnsOf(const Invocation &invocation, const TableColumns &usual)
{
    TableColumns chosen = columnsNamed(invocation.parts(Option::Columns));
    return chosen.empty() ? usual : chosen;
}

TableColumns usualTableColumns()
{
    return columnsNamed({QStringLiteral("number"), QStringLiteral("type"),
                         QStringLiteral("skipped"), QStringLiteral("locked"),
                         QStringLiteral("name")});
}

TableColumns usualSeparatedColumns()
{
    return columnsNamed({QStringLiteral("source"), QStringLiteral("mode"), QStringLiteral("number"),
                         QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("skipped"),
                         QStringLiteral("locked"), QStringLiteral("key")});
}

TableColumns allColumns()
{
    return {columns.begin(), columns.end()};
}

QStringList titlesOf(const TableColumns &chosen)
{
    QStringList titles;
    for (const ToolColumn &column : chosen)
        titles.append(column.kind == Kind::Cell  ? qtTrId(columnWith(column.content).title)
                      : column.kind == Kind::Key ? QString(stationKeyTitle)
                                                 : QString(column.name));
    return titles;
}

} // namespace quillet
