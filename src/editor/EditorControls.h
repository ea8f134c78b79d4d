#pragma once

#include "editor/EditorOutlets.h"

class QString;

namespace Ui {
class EditorView;
}

/// What the editor's controls say, and of those that are disabled why.
namespace quillet {

/// Gives the controls the texts and the order that the form does not give them. Called once.
void setUpControls(Ui::EditorView &ui);
void setText(Ui::EditorView &ui, EditorOutlets::Field field, const QString &text);
void setEnabled(Ui::EditorView &ui, EditorOutlets::Control control, bool enabled);
void setSegmentEnabled(Ui::EditorView &ui, int segment, bool enabled);

/// An empty notice takes the bar away.
void showNotice(Ui::EditorView &ui, const Notice &notice);
void showFileNotice(Ui::EditorView &ui, const FileNotice &notice);
void showForeignRows(Ui::EditorView &ui, const std::optional<ForeignRows> &rows);

} // namespace quillet
