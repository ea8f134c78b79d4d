#pragma once

#include "document/edit/EditRecord.h"
#include "editor/ListChange.h"
#include "framework/UndoHistory.h"

#include <QPointer>

#include <memory>
#include <vector>

namespace quillet {

class ListEditor;

/// One edit as a step that can be undone. Goes back and forth by the records that were made of it,
/// and has the gate for edits tell it.
class EditStep : public UndoStep
{
public:
    /// What it did to one list.
    struct Part
    {
        ListChange change;
        std::vector<EditRecord> records; ///< one after another
    };
    using Content = std::vector<Part>;

    /// The parts (at least one) are of one list each, and have one summary.
    EditStep(ListEditor &editor, Content parts);

    void undo() override;
    void redo() override;
    /// Presses of one key for the same stations are one step.
    [[nodiscard]] int id() const override;
    bool mergeWith(const QUndoCommand *other) override;
    [[nodiscard]] std::size_t byteCount() const override;
    [[nodiscard]] std::unique_ptr<UndoStep> copy() const override;

private:
    EditStep(const EditStep &other);
    void tell(ListChange::Cause cause) const;
    [[nodiscard]] static ListChange changeOf(const Part &part, ListChange::Cause cause);

    QPointer<ListEditor> m_editor;
    std::shared_ptr<Content> m_content;
    bool m_isCopy = false;
    bool m_isDone = true; ///< and redo has nothing to do
};

} // namespace quillet
