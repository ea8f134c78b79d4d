#include "editor/ListEditor.h"

#include "document/order/ReferenceOrder.h"

namespace quillet {

namespace {

EditSummary::Kind kindOf(StationFlag flag, bool set)
{
    using Kind = EditSummary::Kind;
    if (flag == StationFlag::Skipped)
        return set ? Kind::Skipped : Kind::Unskipped;
    return set ? Kind::Locked : Kind::Unlocked;
}

} // namespace

MovePlan ListEditor::planMove(const StationList &stations, qint64 target, bool fillGaps) const
{
    if (!areIn(list(), stations))
        return {}; // stations are taken out by number, so others of this list would go
    return quillet::planMove(list(), stations, target, fillGaps);
}

bool ListEditor::move(const MovePlan &plan, Beyond beyond)
{
    if (plan.moved.empty() || (beyond == Beyond::Refused && plan.beyond() > 0))
        return false;
    const std::size_t others = moveElemList(list(), plan);
    tell(ListChange::Kind::Moved, {plan.changed}, StationField::Number,
         {.kind = EditSummary::Kind::Moved,
          .stations = plan.moved.size(),
          .first = plan.numbers[plan.place],
          .last = plan.numbers[plan.place + plan.moved.size() - 1],
          .others = others});
    return true;
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
    const auto [changed, count] = quillet::closeGaps(list());
    if (count > 0)
        tell(ListChange::Kind::Fields, {changed}, StationField::Number,
             {.kind = EditSummary::Kind::ClosedGaps, .stations = count});
}

void ListEditor::rename(const StationPtr &station, const QString &name)
{
    if (!areIn(list(), {station}))
        return;
    station->setStationName(name);
    tell(ListChange::Kind::Fields, placesOf({station}, list()), StationField::Name,
         {.kind = EditSummary::Kind::Renamed, .stations = 1, .name = name});
}

void ListEditor::setFlag(const StationList &stations, StationFlag flag, bool set)
{
    if (!areIn(list(), stations))
        return;
    quillet::setFlag(stations, flag, set);
    tell(ListChange::Kind::Fields, placesOf(stations, list()),
         flag == StationFlag::Skipped ? StationField::Skipped : StationField::Blocked,
         {.kind = kindOf(flag, set), .stations = stations.size()});
}

void ListEditor::applyOrder(const ReferenceList &entries, const QString &fileName, Beyond beyond)
{
    if (!m_document->stations() || (beyond == Beyond::Refused && beyondAfterOrder(entries) > 0))
        return;
    m_document->applyOrderFromRefList(entries, fileName);
    tell(ListChange::Kind::Reordered, {{0, list().size()}}, StationField::Number,
         {.kind = EditSummary::Kind::Ordered, .stations = list().size(), .name = fileName});
}

void ListEditor::tell(ListChange::Kind kind, std::vector<ListStretch> places, StationFields fields,
                      const EditSummary &summary)
{
    m_document->setDirtyFlag(true);
    emit changed({kind, m_document->stations(), std::move(places), fields, summary});
}

} // namespace quillet
