#include "editor/EditStep.h"

#include "document/edit/StationEdits.h"
#include "editor/ListEditor.h"

#include <algorithm>
#include <utility>

namespace quillet {

EditStep::EditStep(ListEditor &editor, ListChange change, EditRecord record)
    : m_editor(&editor), m_content(std::make_shared<Content>())
{
    setText(stepName(change.summary));
    m_content->change = std::move(change);
    m_content->change.places.clear(); // which the records tell as well
    m_content->records.push_back(std::move(record));
}

EditStep::EditStep(const EditStep &other)
    : UndoStep(), m_editor(other.m_editor), m_content(other.m_content), m_isCopy(true)
{
    setText(other.text());
}

void EditStep::undo()
{
    m_isDone = false;
    for (auto record = m_content->records.rbegin(); record != m_content->records.rend(); ++record)
        record->undo(*m_content->change.list);
    tell(ListChange::Cause::Undo);
}

void EditStep::redo()
{
    if (std::exchange(m_isDone, true))
        return;
    for (EditRecord &record : m_content->records)
        record.redo(*m_content->change.list);
    tell(ListChange::Cause::Redo);
}

void EditStep::tell(ListChange::Cause cause) const
{
    if (!m_editor)
        return;
    ListChange change = m_content->change;
    change.cause = cause;
    ListStretch places;
    bool hasMoved = false;
    for (const EditRecord &record : m_content->records) {
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
    emit m_editor->changed(change);
}

int EditStep::id() const
{
    using Kind = EditSummary::Kind;
    const Kind kind = m_content->change.summary.kind;
    return kind == Kind::MovedUp || kind == Kind::MovedDown ? static_cast<int>(kind) : -1;
}

bool EditStep::mergeWith(const QUndoCommand *other)
{
    const auto &next = static_cast<const EditStep &>(*other);
    const ListChange &change = next.m_content->change;
    if (next.m_isCopy || change.list != m_content->change.list ||
        change.stations != m_content->change.stations)
        return false;
    for (const EditRecord &record : next.m_content->records)
        m_content->records.push_back(record);
    return true;
}

std::size_t EditStep::byteCount() const
{
    const ListChange &change = m_content->change;
    const std::vector<EditRecord> &records = m_content->records;
    const qsizetype letters = text().capacity() + change.summary.name.capacity();
    std::size_t bytes = sizeof(*this) + sizeof(Content) + records.capacity() * sizeof(EditRecord) +
                        change.stations.capacity() * sizeof(StationPtr) +
                        static_cast<std::size_t>(letters) * sizeof(QChar);
    for (const EditRecord &record : records)
        bytes += record.byteCount();
    return bytes;
}

std::unique_ptr<UndoStep> EditStep::copy() const
{
    return std::unique_ptr<UndoStep>(new EditStep(*this));
}

} // namespace quillet
