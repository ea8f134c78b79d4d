#pragma once

#include "document/edit/StationEdits.h"
#include "document/rows/ComparedWith.h"
#include "editor/ArrangeCommands.h"
#include "editor/CompareCommands.h"
#include "editor/DroppedFiles.h"
#include "editor/ListEditor.h"
#include "editor/OrderCommands.h"
#include "editor/PasteCommand.h"
#include "editor/SelectCommands.h"
#include "editor/TableController.h"
#include "editor/TableDrag.h"
#include "editor/UndoCommands.h"

#include <QVariant>

#include <functional>

namespace quillet {

/// The logic of one editor window: what is on show, as its base says, and what each command, typed
/// cell and drop does, in which order. Has every edit made by its ListEditor, and never one of a
/// station in foreign rows. Runs without a window. Owned by the window's view; holds the document
/// weakly.
class ViewController : public TableController
{
    Q_OBJECT

public:
    explicit ViewController(EditorOutlets &outlets, QObject *parent = nullptr);

    // Moving and renumbering

    [[nodiscard]] bool fillGaps() const { return m_fillGaps; }
    void fillGapsClicked(bool on);
    void fillGapsIfWanted();
    /// Asks for a number from 1 to 9999 and moves the selected rows there; any other answer changes
    /// nothing.
    void moveItemsToClicked();
    void moveSelectedElements(const QList<qsizetype> &rows, qint64 target);
    void moveElements(qsizetype firstRow, qsizetype count, qint64 target);

    // Editing

    /// Takes what was typed or clicked into a cell, by the identifier of its column. A number moves
    /// the station, without a check of its range.
    void setObjectValue(const QVariant &value, const QString &column, qsizetype row);
    /// Toggles the first selected station, and gives the others the same state.
    void skipSelectedItems();
    void changeChildLockForSelectedItems();
    /// Makes all lists of the document what they are in an earlier version of it, if that has the
    /// same stations one to one. The name is that of the version. Returns whether it did.
    bool putBack(const ChannelList &version, const QString &name);
    /// Calls it at once, or after asking when stations would get numbers that they cannot carry.
    /// What was refused is told by `refused`, which may be empty.
    void whenNumbersSuffice(std::size_t beyond, const std::function<void(ListEditor::Beyond)> &goOn,
                            const std::function<void()> &refused = {});
    /// The station of the first selected row; null when none is selected.
    [[nodiscard]] StationPtr stationForInfo() const;
    /// Whether the command with that name, one of the editor's own, is enabled.
    [[nodiscard]] bool validateUserInterfaceItem(const QString &action) const;

    // Arranging and selecting

    /// Has the command carried out for the selected stations, or does nothing.
    void arrange(Arrangement command);
    void arrangeByKeys(const ArrangeKeys &keys);
    /// Which stations that arranges, why some command cannot, and what it would do.
    [[nodiscard]] const ArrangeCommands &arranging() const { return m_arranging; }
    [[nodiscard]] SelectCommands &selecting() { return m_selecting; }

    /// Comparing the document with other lists, and putting it into their order.
    [[nodiscard]] CompareCommands &comparing() { return m_comparing; }
    [[nodiscard]] OrderCommands &ordering() { return m_ordering; }

    /// Going back and forth through the steps of the document.
    [[nodiscard]] UndoCommands &undoing() { return m_undoing; }

    // Clipboard

    /// Moves the stations that it tells to the place of the first selected row, or has what is
    /// doubtful of that shown by comparisonWanted().
    void paste(const QMimeData &data);
    /// The same for those of them that were chosen there, to the place that it told. Says so when
    /// nothing is moved.
    void pasteStations(const StationList &chosen, const StationPtr &place);
    [[nodiscard]] const PasteCommand &pasting() const { return m_pasting; }

    // Drag and drop

    [[nodiscard]] DragOperation validateDrop(const TableDrag &drag);
    /// Returns whether the drop was taken. A dropped file is loaded in a later turn of the event
    /// loop.
    bool acceptDrop(const TableDrag &drag);
    /// Loads a file into this window's document, asking first when changes in lists that are not on
    /// show would be lost.
    void loadTLLFile(const QString &path);

    // What others do to the file

    /// Reads a file that others have changed again, or saves the list elsewhere.
    void followFileNotice();
    /// Lets their content be, to be replaced by the next save.
    void keepMine();

signals:
    /// Something of the document's stations was edited, undone or made again.
    void edited();
    /// The person wants a repaired copy of the document's file.
    void repairedCopyRequested();
    /// The document is to be compared with that, and the comparison shown.
    void comparisonWanted(const quillet::ComparedWith &other);

private:
    void moveStations(const StationList &stations, qint64 target,
                      Removal removal = Removal::ByNumber);
    void carryOutPaste(const PasteCommand::Move &move);
    void carryOut(const MovePlan &plan, ListEditor::Beyond beyond);
    void carryOutArrangement(const ArrangeCommands::Plan &planned, ListEditor::Beyond beyond);
    void closeGaps(ListEditor::Beyond beyond);
    /// Says why the stations in foreign rows stay as they are. Returns whether there are such.
    bool tellForeignRows();
    void toggleSelected(StationFlag flag);
    void followDocument(TLLDocument *document);
    void editWasMade(const ListChange &change);
    void fileLoaded(const Error &error);
    void fileRefused(const Error &error);

    ListEditor m_editor;
    ArrangeCommands m_arranging;
    CompareCommands m_comparing;
    OrderCommands m_ordering;
    SelectCommands m_selecting;
    UndoCommands m_undoing;
    PasteCommand m_pasting;
    DroppedFiles m_droppedFiles;
    bool m_fillGaps = false;
    int m_alsoDropped = 0;       ///< files, beside the one that is loaded
    bool m_containsFile = false; ///< the current drag carries a file
};

} // namespace quillet
