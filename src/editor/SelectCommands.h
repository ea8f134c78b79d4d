#pragma once

#include "editor/EditorOutlets.h"
#include "editor/RowChoice.h"
#include "editor/TableController.h"

namespace quillet {

/// The commands that select stations, or look for one. Owned by the window's
/// ViewController.
class SelectCommands
{
public:
    SelectCommands(TableController &table, EditorOutlets &outlets)
        : m_table(table), m_outlets(outlets)
    {
    }

    void select(RowChoice choice);
    /// Why that would select nothing, as a localized text; empty when it would do something.
    [[nodiscard]] QString reasonAgainst(RowChoice choice);
    /// Goes to the next station, or the one before, in the whole list whose name holds the text
    /// that is searched for, or was last.
    void findNext(bool isForward);
    [[nodiscard]] bool canFindNext() const;
    /// Another document is shown, or the same anew.
    void forgetDocument() { m_encryptedOf.reset(); }

private:
    TableController &m_table;
    EditorOutlets &m_outlets;
    QString m_lastSearch;
    StationListPtr m_encryptedOf; ///< the list that was last looked through
    bool m_hasEncrypted = false;  ///< and whether the file tells so of one of its stations
};

} // namespace quillet
