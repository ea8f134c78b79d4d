#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListEditing.h"
#include "cli/ListFile.h"
#include "cli/ListSaving.h"
#include "document/compare/StationPairing.h"
#include "document/compare/TakeOver.h"
#include "document/order/ReferenceOrder.h"
#include "document/read/ListReading.h"
#include "document/text/RowReading.h"
#include "model/CleanName.h"
#include "texts/ReferenceListReading.h"
#include "texts/ReferenceOrderTexts.h"

namespace quillet {

namespace {

/// Where the order comes from. What it is tells the text itself, for a pipe has no name.
struct OrderSource
{
    QByteArray bytes;
    ReferenceSource kind;
};

/// The stations of a reference list as records, which tell number, name and identifiers.
StationList recordsOf(const ReferenceList &entries)
{
    StationRows rows;
    TextFault::Kind unused;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        RowReading reading(i);
        // What is no number that a station can have is none.
        reading.take(RowField::Number, entries[i].num, unused);
        reading.take(RowField::Name, entries[i].name, unused);
        reading.take(RowField::Key, entries[i].serviceID, unused);
        reading.addTo(rows, 0);
    }
    return rows.stations;
}

/// Applies reference lists in one of the two ways.
class Ordering
{
public:
    Ordering(const OrderSource &source, const Invocation &invocation)
        : m_source(source), m_invocation(invocation)
    {
    }
    /// What the order came to.
    struct Result
    {
        std::size_t matched = 0;
        std::size_t remaining = 0;
        std::optional<qint64> last; ///< number of the last entry matched, where that counts
        QStringList unused;         ///< names of what the order has and the list has not
    };
    [[nodiscard]] const Result &result() const { return m_result; }

    QString operator()(const ListFile &file, const ChosenList &list, EditRecord &record)
    {
        return m_invocation.value(Option::Match) == QLatin1String("identity")
                   ? takeNumbers(file, list, record)
                   : applyEntries(list, record);
    }

private:
    QString applyEntries(const ChosenList &list, EditRecord &record);
    QString takeNumbers(const ListFile &file, const ChosenList &list, EditRecord &record);
    [[nodiscard]] StationList records(const ChosenList &list, QString &reason) const;

    const OrderSource &m_source;
    const Invocation &m_invocation;
    Result m_result;
};

QString Ordering::applyEntries(const ChosenList &list, EditRecord &record)
{
    QString reason;
    const ReferenceList entries =
        referenceListFromBytes(m_source.bytes, m_source.kind, list.isTV, reason);
    if (entries.empty() && m_source.kind == ReferenceSource::ChannelList)
        reason += QLatin1String(" --match identity may find them.");
    if (entries.empty())
        return reason;
    // Names count as they were read, as in a window that has shown every row.
    for (const StationPtr &station : *list.stations)
        static_cast<void>(station->stationName());
    const ReferenceOrderPlan plan = planReferenceOrder(*list.stations, entries);
    m_result = {plan.matched.size(), plan.remaining.size(), plan.last, {}};
    for (const std::size_t unused : plan.unused)
        m_result.unused.append(entries[unused].name);
    if (plan.matched.empty() && !m_invocation.isSet(Option::Force))
        return QStringLiteral("None of the %1 stations of the order is in it.").arg(entries.size());
    reason = reasonAgainstBeyond(beyondAfterOrder(*list.stations, entries), m_invocation);
    if (reason.isEmpty())
        applyReferenceOrder(*list.stations, entries, &record);
    return reason;
}

/// Of another channel list the same list counts, if it has stations.
StationList Ordering::records(const ChosenList &list, QString &reason) const
{
    if (m_source.kind == ReferenceSource::Text)
        return recordsOf(referenceListFromBytes(m_source.bytes, m_source.kind, list.isTV, reason));
    const auto other = channelListFromBytes(m_source.bytes);
    if (!other) {
        reason = qtTrId("Bad file format");
        return {};
    }
    const StationListPtr &same = other->lists.list(list.isTV, list.source);
    const StationListPtr longest = other->lists.listWithMostEntries(list.isTV);
    if (same && !same->empty())
        return *same;
    if (longest)
        return *longest;
    reason = qtTrId(list.isTV ? "kOrderNoTVStations" : "kOrderNoRadioStations");
    return {};
}

QString Ordering::takeNumbers(const ListFile &file, const ChosenList &list, EditRecord &record)
{
    QString reason;
    const StationList others = records(list, reason);
    if (others.empty())
        return reason;
    const auto pairs = pairStations(*list.stations, others);
    std::vector<TakenStation> taken;
    std::vector<bool> isUsed(others.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (!pairs[i] || pairs[i]->likeness == Likeness::Loose)
            continue;
        taken.push_back({(*list.stations)[i], others[pairs[i]->index], StationDifference::Number});
        isUsed[pairs[i]->index] = true;
    }
    m_result = {taken.size(), list.stations->size() - taken.size(), {}, {}};
    for (std::size_t i = 0; i < others.size(); ++i) {
        if (!isUsed[i])
            m_result.unused.append(others[i]->shownName());
    }
    if (taken.empty())
        return QStringLiteral("None of the %1 stations of the order is in it.").arg(others.size());
    const TakeOverPlan plan = planTakeOver(*list.stations, taken, numberRuleFor(file.list), false);
    reason = reasonAgainstBeyond(plan.beyond(), m_invocation);
    if (reason.isEmpty() && !plan.isEmpty())
        takeOver(*list.stations, plan, record);
    return reason;
}

/// For people, as a window would report it.
QString reportOf(const ChosenList &list, const Ordering::Result &result)
{
    QString text = titleOf(list) + QLatin1String(": ");
    if (result.last)
        text += textOf({result.matched, result.remaining, *result.last});
    else
        text += QStringLiteral("%1 stations were matched; the %2 others keep their numbers where "
                               "they can.")
                    .arg(result.matched)
                    .arg(result.remaining);
    for (const QString &name : result.unused)
        text += QStringLiteral("\nNot in the list: ") + cleanName(name);
    return text;
}

Dictionary jsonOf(const ChosenList &list, const Ordering::Result &result)
{
    return {{QStringLiteral("source"), sourceName(list.source)},
            {QStringLiteral("mode"), modeName(list.isTV)},
            {QStringLiteral("matched"), jsonNumber(result.matched)},
            {QStringLiteral("remaining"), jsonNumber(result.remaining)},
            {QStringLiteral("unused"), jsonTexts(result.unused)}};
}

} // namespace

ExitStatus runOrder(const Invocation &invocation, Console &console)
{
    const QString order = invocation.operands().at(1);
    const auto bytes = openBytes(order, invocation, console);
    if (!bytes)
        return ExitStatus::FileError;
    const OrderSource source{*bytes, referenceSourceOf(*bytes)};
    const auto file = openList(invocation.operands().at(0), invocation, console);
    if (!file)
        return ExitStatus::FileError;
    const auto lists = listsToEdit(invocation, file->list.lists);
    EditedList edited(*file, invocation, console);
    if (lists.empty()) {
        const QString text = QStringLiteral("There are no such stations in the file.");
        console.tell(file->path, text);
        return reportFailure(file->path, text, ExitStatus::Findings, invocation, console);
    }
    StationListPtr changed;
    Array reports;
    for (const ChosenList &list : lists) {
        Ordering ordering(source, invocation);
        EditRecord record;
        const QString reason = ordering(*file, list, record);
        if (!reason.isEmpty()) {
            const QString text = titleOf(list) + QLatin1String(": ") + reason;
            console.tell(order, text);
            return reportFailure(file->path, text, ExitStatus::Findings, invocation, console);
        }
        if (!changed && !record.isEmpty())
            changed = list.stations;
        edited.tellMore(reportOf(list, ordering.result()));
        reports.append(jsonOf(list, ordering.result()));
    }
    if (!changed && isRenumberedByReading(*file))
        changed = lists.front().stations;
    edited.tellMore(QStringLiteral("orders"), reports);
    ListSaving saving(invocation, console);
    return edited.finish(saving, changed);
}

} // namespace quillet
