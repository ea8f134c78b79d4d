#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Invocation.h"
#include "cli/ListEditing.h"
#include "cli/StationChoice.h"
#include "document/compare/TakeOver.h"
#include "document/edit/Arranging.h"
#include "document/edit/Renumbering.h"
#include "document/edit/StationEdits.h"
#include "document/edit/StationSorting.h"
#include "files/FileNames.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <numeric>

namespace quillet {

namespace {

struct SortName
{
    const char *name;
    ArrangeBy by;
};

constexpr std::array sortNames{
    SortName{"name", ArrangeBy::Name},
    SortName{"type", ArrangeBy::Type},
    SortName{"encryption", ArrangeBy::Encryption},
    SortName{"satellite", ArrangeBy::Satellite},
    SortName{"network", ArrangeBy::Network},
    SortName{"frequency", ArrangeBy::Frequency},
    SortName{"service", ArrangeBy::ServiceId},
    SortName{"number", ArrangeBy::Number},
};

ExitStatus misused(Console &console, const QString &problem)
{
    console.tell({}, problem);
    return ExitStatus::Usage;
}

bool choosesStations(const Invocation &invocation)
{
    return invocation.isSet(Option::Stations) || invocation.isSet(Option::Named) ||
           invocation.isSet(Option::Keys);
}

QString whichStations()
{
    return QStringLiteral("Which stations? Choose them by --stations, --named or --keys.");
}

/// None, with what is wrong, of keys that are none.
std::optional<ArrangeKeys> sortKeys(const Invocation &invocation, QString &problem)
{
    constexpr qsizetype most = 3;
    const QStringList parts = invocation.parts(Option::By);
    if (parts.isEmpty() || parts.size() > most) {
        problem = QStringLiteral("--by takes one to three things to sort by.");
        return {};
    }
    ArrangeKeys keys;
    for (const QString &part : parts) {
        const QString name = part.section(u':', 0, 0);
        const QString direction = part.section(u':', 1);
        if (!direction.isEmpty() && direction != QLatin1String("asc") &&
            direction != QLatin1String("desc")) {
            problem = QStringLiteral("A direction is asc or desc, not \"%1\".").arg(direction);
            return {};
        }
        const auto *const found =
            std::find_if(sortNames.begin(), sortNames.end(),
                         [&name](const SortName &row) { return QLatin1String(row.name) == name; });
        keys.push_back({found->by, direction == QLatin1String("desc")});
    }
    return keys;
}

std::vector<std::size_t> placesIn(const StationList &list, const StationList &chosen)
{
    std::vector<std::size_t> places;
    if (chosen.empty()) {
        places.resize(list.size());
        std::iota(places.begin(), places.end(), std::size_t{0});
        return places;
    }
    for (const ListStretch &stretch : placesOf(chosen, list)) {
        for (std::size_t place = stretch.first; place < stretch.end; ++place)
            places.push_back(place);
    }
    return places;
}

ExitStatus setFlags(const Invocation &invocation, Console &console, StationFlag flag)
{
    if (!choosesStations(invocation))
        return misused(console, whichStations());
    const bool isSet = !invocation.isSet(Option::Off);
    return editFiles(invocation, console, EditOf::Stations,
                     [&](const ChosenList &, const StationList &chosen, EditRecord &record) {
                         setFlag(chosen, flag, isSet, record);
                         return QString();
                     });
}

} // namespace

ExitStatus runMove(const Invocation &invocation, Console &console)
{
    if (!choosesStations(invocation))
        return misused(console, whichStations());
    bool isNumber = false;
    const int target = invocation.value(Option::To).toInt(&isNumber);
    if (!isNumber || target < 1 || target > highestTarget)
        return misused(console,
                       QStringLiteral("--to takes a number from 1 to %1.").arg(highestTarget));
    const bool fillGaps = invocation.isSet(Option::FillGaps);
    return editFiles(invocation, console, EditOf::Numbers,
                     [&](const ChosenList &list, const StationList &chosen, EditRecord &record) {
                         const MovePlan plan =
                             planMove(*list.stations, chosen, target, fillGaps, Removal::Itself);
                         QString reason = reasonAgainstBeyond(plan.beyond(), invocation);
                         if (reason.isEmpty() && !plan.changesNothingIn(*list.stations))
                             moveElemList(*list.stations, plan, record);
                         return reason;
                     });
}

ExitStatus runSort(const Invocation &invocation, Console &console)
{
    QString problem;
    const auto keys = sortKeys(invocation, problem);
    if (!keys)
        return misused(console, problem);
    const QLocale usual;
    if (invocation.isSet(Option::Language)) {
        const QLocale locale(invocation.value(Option::Language));
        if (locale.language() == QLocale::C)
            return misused(
                console,
                QStringLiteral("\"%1\" is no language.").arg(invocation.value(Option::Language)));
        QLocale::setDefault(locale); // by which texts are sorted
    }
    const bool fillGaps = invocation.isSet(Option::FillGaps);
    const ExitStatus status =
        editFiles(invocation, console, EditOf::Numbers,
                  [&](const ChosenList &list, const StationList &chosen, EditRecord &record) {
                      const auto places = placesIn(*list.stations, chosen);
                      const ArrangePlan plan = planArrangement(
                          *list.stations, places,
                          sortedPlaces(*list.stations, places, *keys, list.source), fillGaps);
                      QString reason = reasonAgainstBeyond(plan.beyond(), invocation);
                      if (reason.isEmpty())
                          arrange(*list.stations, plan, record);
                      return reason;
                  });
    QLocale::setDefault(usual);
    return status;
}

ExitStatus runRenumber(const Invocation &invocation, Console &console)
{
    return editFiles(invocation, console, EditOf::Numbers,
                     [&](const ChosenList &list, const StationList &, EditRecord &record) {
                         QString reason = reasonAgainstBeyond(
                             beyondAfterClosingGaps(*list.stations), invocation);
                         if (reason.isEmpty())
                             closeGaps(*list.stations, record);
                         return reason;
                     });
}

ExitStatus runSkip(const Invocation &invocation, Console &console)
{
    return setFlags(invocation, console, StationFlag::Skipped);
}

ExitStatus runLock(const Invocation &invocation, Console &console)
{
    return setFlags(invocation, console, StationFlag::Blocked);
}

ExitStatus runRename(const Invocation &invocation, Console &console)
{
    const QString name = invocation.value(Option::Name);
    if (!choosesStations(invocation))
        return misused(console, whichStations());
    if (name.isEmpty())
        return misused(console, QStringLiteral("--name needs a name."));
    if (name != readable(name))
        return misused(console,
                       QStringLiteral("\"%1\" has characters that no name has.").arg(name));
    return editFiles(invocation, console, EditOf::Stations,
                     [&](const ChosenList &list, const StationList &chosen, EditRecord &record) {
                         if (!mayRename(list.source))
                             return QStringLiteral("Only analogue stations can be renamed.");
                         if (chosen.size() > 1)
                             return QStringLiteral(
                                        "%1 stations are chosen; one is renamed at a time.")
                                 .arg(chosen.size());
                         rename(chosen.front(), name, record);
                         return QString();
                     });
}

} // namespace quillet
