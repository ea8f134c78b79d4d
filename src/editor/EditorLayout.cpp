#include "editor/EditorLayout.h"

#include "editor/FoldingRow.h"
#include "editor/TableColumns.h"
#include "ui_EditorView.h"

namespace quillet {

void foldRows(Ui::EditorView &ui)
{
    FoldingRow::fold(*ui.listRow);
    FoldingRow::fold(*ui.bottomRow);
}

void sizeControls(Ui::EditorView &ui, const QFont &font, int textSize)
{
    QFont device = font;
    device.setBold(true);
    device.setPointSizeF(device.pointSizeF() * 1.2);
    ui.deviceName->setFont(device);

    const QFontMetrics metrics(font);
    sizeText(*ui.list, textSize);
    ui.list->setMinimumHeight(metrics.height() * 10); // with room for the hints in an empty list
    ui.searchText->setMinimumWidth(metrics.averageCharWidth() * 22);
    // Styles leave short texts much room, and long ones none.
    for (QPushButton *button : {ui.moveToButton, ui.infoButton, ui.applyButton}) {
        const int text = metrics.size(Qt::TextShowMnemonic, button->text()).width();
        button->setMinimumWidth(qMax(button->sizeHint().width(), text + 2 * metrics.height()));
    }
}

} // namespace quillet
