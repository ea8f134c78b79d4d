#pragma once

#include "editor/EditorOutlets.h"
#include "editor/ListChange.h"
#include "editor/TableController.h"

#include <optional>

namespace quillet {

/// Going back and forth through the steps of the document on show, and showing where that leads.
/// Owned by the window's ViewController.
class UndoCommands
{
public:
    UndoCommands(TableController &table, EditorOutlets &outlets)
        : m_table(table), m_outlets(outlets)
    {
    }

    void undo();
    void redo();
    /// Undoes or makes again until that many steps of the document are done.
    void goToStep(int step);

    /// Shows a step that was undone or made again, in its list and with its stations selected; of
    /// several steps at once only the last, when showLastOfJump() is called.
    void showStep(const ListChange &change);
    void showLastOfJump();

private:
    TableController &m_table;
    EditorOutlets &m_outlets;
    std::optional<ListChange> m_lastOfJump;
};

} // namespace quillet
