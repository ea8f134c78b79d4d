#pragma once

class QFont;

namespace Ui {
class EditorView;
}

/// The sizes of the editor's controls, by the font and the width there is for them.
namespace quillet {

/// Lets the rows of controls fold where the window is narrow. Called once.
void foldRows(Ui::EditorView &ui);
/// Gives the controls the room that their texts need in that font, and the table text of that many
/// percent of its size.
void sizeControls(Ui::EditorView &ui, const QFont &font, int textSize);

} // namespace quillet
