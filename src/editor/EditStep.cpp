#include "editor/EditStep.h"

#include "document/edit/StationEdits.h"
#include "editor/ListEditor.h"

#include <algorithm>
#include <utility>

namespace quillet {

EditStep::EditStep(ListEditor &editor, Content parts)
    : m_editor(&editor), m_content(std::make_shared<Content>(std::move(parts)))
{
    setText(stepName(m_content->front().change.summary));
    for (Part &part : *m_content)
        part.change.places.clear(); // which the records tell as well
}

EditStep::EditStep(const EditStep &other)
    : UndoStep(), m_editor(other.m_editor), m_content(other.m_content), m_isCopy(true)
{
    setText(other.text());
}

void EditStep::undo()
{
    m_isDone = false;
    for (auto &[change, records] : *m_content) {
        for (auto record = records.rbegin(); record != records.rend(); ++record)
            record->undo(*change.list);
    }
    tell(ListChange::Cause::Undo);
}

void EditStep::redo()
{
    if (std::exchange(m_isDone, true))
        return;
    for (auto &[change, records] : *m_content) {
        for (EditRecord &record : records)
            record.redo(*change.list);
    }
    tell(ListChange::Cause::Redo);
}

void EditStep::tell(ListChange::Cause cause) const
{
    if (!m_editor)
        return;
    std::vector<ListChange> changes;
    for (const Part &part : *m_content)
        changes.push_back(changeOf(part, cause));
    m_editor->tell(std::move(changes));
}

ListChange EditStep::changeOf(const Part &part, ListChange::Cause cause)
{
    ListChange change = part.change;
    change.cause = cause;
    if (change.fields.testFlag(StationField::All)) {
        change.places = {{0, change.list->size()}};
        return change;
    }
    ListStretch places;
    bool hasMoved = false;
    for (const EditRecord &record : part.records) {
        places.include(record.places());
        hasMoved = hasMoved || record.movesStations();
    }
    places.end = std::min(places.end, change.list->size()); // an order may make a list shorter
    change.kind = hasMoved ? ListChange::Kind::Moved : ListChange::Kind::Fields;
    if (!places.isEmpty())
        change.places = {places};
    else
        change.places = placesOf(change.stations, *change.list);
    if (change.stations.empty()) {
        const auto first = change.list->begin();
        change.stations.assign(first + static_cast<std::ptrdiff_t>(places.first),
                               first + static_cast<std::ptrdiff_t>(places.end));
    }
    return change;
}

int EditStep::id() const
{
    using Kind = EditSummary::Kind;
    const Kind kind = m_content->front().change.summary.kind;
    return kind == Kind::MovedUp || kind == Kind::MovedDown ? static_cast<int>(kind) : -1;
}

/// Both have one part.
bool EditStep::mergeWith(const QUndoCommand *other)
{
    const auto &next = static_cast<const EditStep &>(*other);
    const Part &added = next.m_content->front();
    Part &part = m_content->front();
    if (next.m_isCopy || added.change.list != part.change.list ||
        added.change.stations != part.change.stations)
        return false;
    part.records.insert(part.records.end(), added.records.begin(), added.records.end());
    return true;
}

std::size_t EditStep::byteCount() const
{
    std::size_t bytes = sizeof(*this) + sizeof(Content) +
                        static_cast<std::size_t>(text().capacity()) * sizeof(QChar);
    for (const auto &[change, records] : *m_content) {
        bytes += sizeof(Part) + records.capacity() * sizeof(EditRecord) +
                 change.stations.capacity() * sizeof(StationPtr) +
                 static_cast<std::size_t>(change.summary.name.capacity()) * sizeof(QChar);
        for (const EditRecord &record : records)
            bytes += record.byteCount();
    }
    return bytes;
}

std::unique_ptr<UndoStep> EditStep::copy() const
{
    return std::unique_ptr<UndoStep>(new EditStep(*this));
}

} // namespace quillet
