#include "editor/ListEditor.h"

#include "document/compare/ListComparison.h"
#include "document/edit/PuttingBack.h"
#include "document/order/ReferenceOrder.h"
#include "editor/EditStep.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

using Kind = EditSummary::Kind;

Kind kindOf(StationFlag flag, bool set)
{
    if (flag == StationFlag::Skipped)
        return set ? Kind::Skipped : Kind::Unskipped;
    return set ? Kind::Locked : Kind::Unlocked;
}

/// Whether a station stands in its list twice.
bool hasTwins(const ListComparison &comparison)
{
    QSet<const LGStation *> seen;
    for (const ComparedLists &lists : comparison.lists) {
        for (const ComparedStation &station : lists.stations) {
            const qsizetype before = seen.size();
            seen.insert(station.first.get());
            if (seen.size() == before)
                return true;
        }
    }
    return false;
}

/// The stations of lists that have the same ones, in the order of the second.
std::vector<StationState> statesOf(const ComparedLists &compared, const StationList &second)
{
    QHash<const LGStation *, StationPtr> own;
    for (const ComparedStation &station : compared.stations)
        own.insert(station.second.get(), station.first);
    std::vector<StationState> states;
    states.reserve(second.size());
    for (const StationPtr &state : second)
        states.push_back({own.value(state.get()), state});
    return states;
}

} // namespace

MovePlan ListEditor::planMove(const StationList &stations, qint64 target, bool fillGaps,
                              Removal removal) const
{
    if (!areIn(list(), stations))
        return {}; // stations are taken out by number, so others of this list would go
    return quillet::planMove(list(), stations, target, fillGaps, removal);
}

bool ListEditor::move(const MovePlan &plan, Beyond beyond)
{
    if (plan.moved.empty() || (beyond == Beyond::Refused && plan.beyond() > 0))
        return false;
    if (plan.changesNothingIn(list()))
        return true;
    EditRecord record;
    const std::size_t others = moveElemList(list(), plan, record);
    push({.kind = ListChange::Kind::Moved,
          .places = {plan.changed},
          .fields = StationField::Number,
          .summary = {.kind = Kind::Moved,
                      .stations = plan.moved.size(),
                      .first = plan.numbers[plan.place],
                      .last = plan.numbers[plan.place + plan.moved.size() - 1],
                      .others = others},
          .stations = plan.moved},
         std::move(record));
    return true;
}

void ListEditor::arrange(const ArrangePlan &plan, const StationList &stations, Kind kind,
                         Beyond beyond)
{
    if (plan.order.isEmpty() || (beyond == Beyond::Refused && plan.beyond() > 0))
        return;
    EditRecord record;
    quillet::arrange(list(), plan, record);
    const ListStretch places = record.places();
    push({.kind = ListChange::Kind::Moved,
          .places = {places},
          .fields = StationField::Number,
          .summary = {.kind = kind,
                      .stations = plan.moved,
                      .first = stations.front()->progNum(),
                      .last = stations.back()->progNum()},
          .stations = stations.size() < list().size() ? stations : StationList()},
         std::move(record));
}

std::size_t ListEditor::beyondAfterClosingGaps() const
{
    return quillet::beyondAfterClosingGaps(list());
}

std::size_t ListEditor::beyondAfterOrder(const ReferenceList &entries) const
{
    return m_document->stations() ? quillet::beyondAfterOrder(list(), entries) : 0;
}

void ListEditor::closeGaps(Beyond beyond)
{
    if (beyond == Beyond::Refused && beyondAfterClosingGaps() > 0)
        return;
    EditRecord record;
    const auto [changed, count] = quillet::closeGaps(list(), record);
    push({.places = {changed},
          .fields = StationField::Number,
          .summary = {.kind = Kind::ClosedGaps, .stations = count}},
         std::move(record));
}

void ListEditor::rename(const StationPtr &station, const QString &name)
{
    if (!areIn(list(), {station}))
        return;
    EditRecord record;
    quillet::rename(station, name, record);
    push({.places = placesOf({station}, list()),
          .fields = StationField::Name,
          .summary = {.kind = Kind::Renamed, .stations = 1, .name = name},
          .stations = {station}},
         std::move(record));
}

void ListEditor::setFlag(const StationList &stations, StationFlag flag, bool set)
{
    if (!areIn(list(), stations))
        return;
    EditRecord record;
    quillet::setFlag(stations, flag, set, record);
    push({.places = placesOf(stations, list()),
          .fields = flag == StationFlag::Skipped ? StationField::Skipped : StationField::Blocked,
          .summary = {.kind = kindOf(flag, set), .stations = stations.size()},
          .stations = stations},
         std::move(record));
}

void ListEditor::applyOrder(const ReferenceList &entries, const QString &fileName, Beyond beyond)
{
    if (!m_document->stations() || (beyond == Beyond::Refused && beyondAfterOrder(entries) > 0))
        return;
    EditRecord record;
    m_document->applyOrderFromRefList(entries, fileName, &record);
    push({.kind = ListChange::Kind::Reordered,
          .places = {{0, list().size()}},
          .fields = StationField::Number,
          .summary = {.kind = Kind::Ordered, .stations = list().size(), .name = fileName}},
         std::move(record));
}

bool ListEditor::putBack(const ChannelList &version, const QString &name)
{
    const ChannelList &now = m_document->list();
    const ListComparison comparison = compare(now.lists, version.lists);
    if (now.isLegacyFormat != version.isLegacyFormat || !comparison.isOneToOne() ||
        hasTwins(comparison))
        return false;
    std::vector<ListChange> changes;
    std::vector<EditRecord> records;
    for (const ComparedLists &compared : comparison.lists) {
        const StationListPtr &list = now.lists.list(compared.isTV, compared.source);
        EditRecord record;
        const StationList changed = quillet::putBack(
            *list, statesOf(compared, *version.lists.list(compared.isTV, compared.source)), record);
        if (record.isEmpty())
            continue;
        changes.push_back({.kind = ListChange::Kind::Moved,
                           .list = list,
                           .places = {{0, list->size()}},
                           .fields = StationField::All,
                           .summary = {.kind = Kind::PutBack, .name = name},
                           .stations = changed});
        records.push_back(std::move(record));
    }
    push(std::move(changes), std::move(records));
    return true;
}

bool ListEditor::takeOver(const TakeOverParts &parts, const EditSummary &summary, Beyond beyond)
{
    const auto isRefused = [this, beyond](const TakeOverPart &part) {
        return !isListOfDocument(part.list) ||
               (beyond == Beyond::Refused && part.plan.beyond() > 0);
    };
    if (std::any_of(parts.begin(), parts.end(), isRefused))
        return false;
    std::vector<ListChange> changes;
    std::vector<EditRecord> records;
    for (const auto &[list, plan] : parts) {
        EditRecord record;
        if (!plan.isEmpty())
            quillet::takeOver(*list, plan, record);
        if (record.isEmpty())
            continue;
        changes.push_back({.kind = ListChange::Kind::Moved,
                           .list = list,
                           .places = {{0, list->size()}},
                           .fields = StationField::All,
                           .summary = summary,
                           .stations = plan.changed});
        records.push_back(std::move(record));
    }
    push(std::move(changes), std::move(records));
    return true;
}

bool ListEditor::isListOfDocument(const StationListPtr &list) const
{
    const StationLists &lists = m_document->lists();
    const auto holds = [&list](const StationLists::Lists &those) {
        return std::find(those.begin(), those.end(), list) != those.end();
    };
    return list && (holds(lists.tvStations()) || holds(lists.radioStations()));
}

void ListEditor::tell(std::vector<ListChange> changes)
{
    const auto isOnShow = [this](const ListChange &change) {
        return m_document && change.list == m_document->stations();
    };
    const auto shown = std::find_if(changes.begin(), changes.end(), isOnShow);
    if (shown != changes.end())
        std::iter_swap(shown, changes.end() - 1);
    for (ListChange &change : changes) {
        change.isLast = &change == &changes.back();
        emit changed(change);
    }
}

void ListEditor::push(ListChange change, EditRecord record)
{
    if (record.isEmpty())
        return;
    change.list = m_document->stations();
    m_document->history().push(
        std::make_unique<EditStep>(*this, EditStep::Content{{change, {std::move(record)}}}));
    emit changed(change);
}

void ListEditor::push(std::vector<ListChange> changes, std::vector<EditRecord> records)
{
    if (changes.empty())
        return;
    EditStep::Content parts;
    for (std::size_t i = 0; i < changes.size(); ++i)
        parts.push_back({changes[i], {std::move(records[i])}});
    m_document->history().push(std::make_unique<EditStep>(*this, std::move(parts)));
    tell(std::move(changes));
}

} // namespace quillet
