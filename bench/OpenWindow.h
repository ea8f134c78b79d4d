#pragma once

#include "app/AppDelegate.h"
#include "bench/SheetPrompts.h"

class QAction;

namespace quillet {
class EditorView;
}

namespace quillet::bench {

/// The program with the window of one list, which is on show as long as this lives.
class OpenWindow
{
public:
    explicit OpenWindow(const QString &file);

    /// Null when the file was not opened.
    [[nodiscard]] EditorView *editor() const { return m_editor; }
    /// How many rows the table has.
    [[nodiscard]] qsizetype rows() const;
    /// Does nothing while the command is disabled. The name is that of its action.
    void trigger(const char *command) const;
    /// Until everything is painted.
    static void settle();

private:
    SheetPrompts m_prompts;
    AppDelegate m_delegate{m_prompts};
    EditorView *m_editor = nullptr;
};

} // namespace quillet::bench
