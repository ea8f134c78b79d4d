#include "cli/DifferenceReport.h"

#include "cli/Console.h"
#include "cli/Invocation.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"
#include "xml/Dictionary.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct DifferenceName
{
    StationDifference difference;
    const char *name; ///< in JSON
};

constexpr std::array differenceNames{
    DifferenceName{StationDifference::Number, "number"},
    DifferenceName{StationDifference::Name, "name"},
    DifferenceName{StationDifference::Skipped, "skipped"},
    DifferenceName{StationDifference::Locked, "locked"},
    DifferenceName{StationDifference::Fields, "fields"},
};

constexpr std::array likenessNames{"sure", "by-name", "loose"};

bool isSame(const ComparedStation &station)
{
    return station.first && station.second && !station.differences && !station.isElsewhere &&
           station.likeness != Likeness::Loose;
}

QString number(const StationPtr &station)
{
    constexpr int width = 5;
    return (station ? station->progNumString() : QString()).rightJustified(width);
}

/// What besides the number differs, from the first record's point of view to the second's.
QStringList changesOf(const ComparedStation &station)
{
    QStringList changes;
    const LGStation &second = *station.second;
    if (station.differences.testFlag(StationDifference::Name))
        changes.append(QStringLiteral("now \"%1\"").arg(cleanName(second.shownName())));
    if (station.differences.testFlag(StationDifference::Skipped))
        changes.append(second.isSkipped() ? QStringLiteral("skipped")
                                          : QStringLiteral("no longer skipped"));
    if (station.differences.testFlag(StationDifference::Locked))
        changes.append(second.isBlocked() ? QStringLiteral("locked")
                                          : QStringLiteral("no longer locked"));
    if (station.differences.testFlag(StationDifference::Fields))
        changes.append(QStringLiteral("other fields differ"));
    if (station.isElsewhere)
        changes.append(QStringLiteral("in the list of another source"));
    if (station.likeness == Likeness::Loose)
        changes.append(QStringLiteral("perhaps another station"));
    return changes;
}

/// "-" is the first alone, "+" the second alone, "~" both with a difference.
QString lineOf(const ComparedStation &station)
{
    const QString name = cleanName((station.first ? station.first : station.second)->shownName());
    if (!station.second)
        return QStringLiteral("- %1          %2").arg(number(station.first), name);
    if (!station.first)
        return QStringLiteral("+          %1 %2").arg(number(station.second), name);
    const bool isMoved = station.differences.testFlag(StationDifference::Number);
    QString line =
        QStringLiteral("%1 %2 %3 %4 %5")
            .arg(QLatin1Char(isSame(station) ? ' ' : '~'))
            .arg(number(station.first), isMoved ? QStringLiteral("->") : QStringLiteral("  "),
                 isMoved ? number(station.second) : QString(5, u' '), name);
    const QStringList changes = changesOf(station);
    if (!changes.isEmpty())
        line += QLatin1String(": ") + changes.join(QLatin1String(", "));
    return line;
}

Value jsonStation(const StationPtr &station)
{
    if (!station)
        return {};
    return Dictionary{{QStringLiteral("number"), Value(station->progNum())},
                      {QStringLiteral("name"), station->shownName()},
                      {QStringLiteral("skipped"), Value(station->isSkipped())},
                      {QStringLiteral("locked"), Value(station->isBlocked())},
                      {QStringLiteral("key"), StationKey::of(*station).text()}};
}

Dictionary jsonOf(const ComparedStation &station)
{
    Array differences;
    for (const auto &[difference, name] : differenceNames) {
        if (station.differences.testFlag(difference))
            differences.append(QString(QLatin1String(name)));
    }
    return {{QStringLiteral("a"), jsonStation(station.first)},
            {QStringLiteral("b"), jsonStation(station.second)},
            {QStringLiteral("differences"), differences},
            {QStringLiteral("elsewhere"), Value(station.isElsewhere)},
            {QStringLiteral("likeness"),
             QString(QLatin1String(likenessNames.at(static_cast<std::size_t>(station.likeness))))}};
}

} // namespace

DifferenceReport::DifferenceReport(const ListComparison &comparison, bool hasSame)
    : m_comparison(comparison), m_hasSame(hasSame)
{
}

void DifferenceReport::narrow(const Invocation &invocation)
{
    std::erase_if(m_comparison.lists, [&invocation](const ComparedLists &lists) {
        return !isChosen(invocation, lists.isTV, lists.source);
    });
}

bool DifferenceReport::isEmpty() const
{
    return std::all_of(m_comparison.lists.begin(), m_comparison.lists.end(),
                       [](const ComparedLists &lists) {
                           return std::all_of(lists.stations.begin(), lists.stations.end(), isSame);
                       });
}

void DifferenceReport::writeText(Console &console) const
{
    for (const ComparedLists &lists : m_comparison.lists) {
        QString text;
        for (const ComparedStation &station : lists.stations) {
            if (m_hasSame || !isSame(station))
                text += lineOf(station) + u'\n';
        }
        if (!text.isEmpty())
            console.print(titleOf({lists.isTV, lists.source}) + u'\n' + text);
    }
}

Array DifferenceReport::jsonLists() const
{
    Array all;
    for (const ComparedLists &lists : m_comparison.lists) {
        Array stations;
        for (const ComparedStation &station : lists.stations) {
            if (m_hasSame || !isSame(station))
                stations.append(jsonOf(station));
        }
        all.append(Dictionary{{QStringLiteral("source"), sourceName(lists.source)},
                              {QStringLiteral("mode"), modeName(lists.isTV)},
                              {QStringLiteral("stations"), stations}});
    }
    return all;
}

ListsBefore::ListsBefore(const StationLists &lists) : m_before(copyOf(lists))
{
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationList &now = *lists.list(isTV, source);
            const StationList &before = *m_before.list(isTV, source);
            for (std::size_t i = 0; i < now.size(); ++i)
                m_known.insert(now[i].get(), {before[i], Likeness::Sure});
        }
    }
}

ListComparison ListsBefore::compareWith(const StationLists &lists) const
{
    return compare(m_before, lists, m_known);
}

} // namespace quillet
