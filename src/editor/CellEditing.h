#pragma once

#include <QString>

class QLineEdit;

namespace quillet {

class DarkModeTableView;
class ViewController;

/// Typing into the cells of the station table, for commands that concern it from outside. Owned by
/// the window's view.
class CellEditing
{
public:
    CellEditing(DarkModeTableView &list, ViewController &controller)
        : m_list(list), m_controller(controller)
    {
    }

    [[nodiscard]] bool isTyping() const;
    /// Takes over what is being typed.
    void commit();
    /// Undoes what was typed last in the cell, or makes it again. With nothing of that left the
    /// cell is closed; false then, and when nothing is being typed.
    bool undo();
    bool redo();

    /// Why the first selected station cannot be renamed, as a localized text; empty when it can.
    [[nodiscard]] QString reasonAgainstRenaming() const;
    /// Opens its name for typing.
    void rename();

private:
    [[nodiscard]] QLineEdit *field() const;

    DarkModeTableView &m_list;
    ViewController &m_controller;
};

} // namespace quillet
