#include "editor/ListEditor.h"

#include "document/edit/Renumbering.h"

namespace quillet {

QStringList ListEditor::move(const StationList &stations, qint64 target, bool fillGaps)
{
    if (!areIn(list(), stations))
        return {}; // stations are taken out by number, so others of this list would go
    Renumbered renumbered = moveElemList(list(), stations, target, fillGaps);
    tell(ListChange::Kind::Moved, {renumbered.changed}, StationField::Number);
    return std::move(renumbered.selection);
}

void ListEditor::closeGaps()
{
    const ListStretch changed = quillet::closeGaps(list());
    if (!changed.isEmpty())
        tell(ListChange::Kind::Fields, {changed}, StationField::Number);
}

void ListEditor::rename(const StationPtr &station, const QString &name)
{
    if (!areIn(list(), {station}))
        return;
    station->setStationName(name);
    tell(ListChange::Kind::Fields, placesOf({station}, list()), StationField::Name);
}

void ListEditor::setFlag(const StationList &stations, StationFlag flag, bool set)
{
    if (!areIn(list(), stations))
        return;
    quillet::setFlag(stations, flag, set);
    tell(ListChange::Kind::Fields, placesOf(stations, list()),
         flag == StationFlag::Skipped ? StationField::Skipped : StationField::Blocked);
}

void ListEditor::applyOrder(const ReferenceList &entries, const QString &fileName)
{
    if (!m_document->stations())
        return;
    m_document->applyOrderFromRefList(entries, fileName);
    tell(ListChange::Kind::Reordered, {{0, list().size()}}, StationField::Number);
}

void ListEditor::tell(ListChange::Kind kind, std::vector<ListStretch> places, StationFields fields)
{
    m_document->setDirtyFlag(true);
    emit changed({kind, m_document->stations(), std::move(places), fields});
}

} // namespace quillet
