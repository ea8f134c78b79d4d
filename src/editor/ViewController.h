#pragma once

#include "document/TLLDocument.h"
#include "editor/EditorOutlets.h"
#include "editor/SavedSelection.h"
#include "editor/StationFilter.h"
#include "editor/TableDrag.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

namespace quillet {

class EditorQuestions;

/// The logic of one editor window: which list is shown, how it is narrowed, what is selected, and
/// every change to stations and their order. Works on the window's controls through EditorOutlets
/// only, so it runs without a window. Owned by the window's view; holds the document weakly.
class ViewController : public QObject
{
    Q_OBJECT

public:
    explicit ViewController(EditorOutlets &outlets, QObject *parent = nullptr);

    /// Sets the controls up; called once, before a document is shown.
    void viewDidLoad();
    /// Shows the document, starting with the first source that has stations. An error that is not
    /// empty is shown to the person. Returns whether there was none.
    bool populateFromTLLDoc(TLLDocument &document, const Error &error);
    /// The document shown; null before there is one.
    [[nodiscard]] TLLDocument *stationDoc() const { return m_document; }

    // Mode, source and filters

    [[nodiscard]] bool isModeTV() const { return m_outlets.tvButtonIsOn(); }
    [[nodiscard]] bool isModeRadio() const { return !isModeTV(); }
    void useTVClicked() { reflectRadioButton(true); }
    void useRadioClicked() { reflectRadioButton(false); }
    /// Shows the source of the selected segment. The filters are not applied anew.
    void sourceSegmentClicked();
    /// The source last clicked, 0 at first; what the type column and the type filter go by.
    [[nodiscard]] int source() const { return m_source; }
    void typeFilterClicked(int tag);
    /// The search text has changed.
    void textDidChange() { applyFilter(); }
    void filterStationsFor(const QString &text);
    void useTypeFilter(int tag);
    void applyFilter();

    /// The stations shown, one a row: the filtered ones while a filter is active, else the
    /// document's current list.
    [[nodiscard]] const StationList &currentList() const;
    /// Whether the search or the type filter narrows the list.
    [[nodiscard]] bool isFiltered() const { return m_filter.filteredStations().has_value(); }
    [[nodiscard]] const SavedSelection &selection() const { return m_selection; }

    // Selection

    void saveSelection();
    void restoreSelection();
    void tableViewSelectionDidChange();

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
    /// the station, without a check of its range; in any other column the table is not reloaded.
    void setObjectValue(const QVariant &value, const QString &column, qsizetype row);
    /// Toggles the first selected station, and gives the others the same state.
    void skipSelectedItems();
    void changeChildLockForSelectedItems();
    /// Asks for a reference list and imposes its order on the current list.
    void applyOrderClicked();
    /// Imposes the order of another channel list (tll) or of a text file (txt); a file of any other
    /// type, or that cannot be used, changes nothing.
    void applyOrderFile(const QString &path);
    /// The same, called when the panel that asked for the file has gone.
    void applyOrderFileWait(const QString &path);
    /// The station of the first selected row; null when none is selected.
    [[nodiscard]] StationPtr stationForInfo() const;

    // Drag and drop

    [[nodiscard]] DragOperation validateDrop(const TableDrag &drag);
    /// Returns whether the drop was taken. A dropped file is loaded in a later turn of the event
    /// loop.
    bool acceptDrop(const TableDrag &drag);
    /// Loads a file into this window's document, asking first when changes in lists that are not on
    /// show would be lost.
    void loadTLLFile(const QString &path);

    // State of the window

    void setDirty();
    void clearDirty();
    void updateButtons();
    /// Whether the command with that name, one of the editor's own, is enabled.
    [[nodiscard]] bool validateUserInterfaceItem(const QString &action) const;
    void showError(const QString &detail, const QString &message);
    /// Shows where the document's file is.
    void showFileName();
    /// Shows in the bar what there is to say about the document's file now.
    void showNotice();

signals:
    /// The person wants a repaired copy of the document's file.
    void repairedCopyRequested();

private:
    void displayFileName(const QString &path);
    void showDeviceInfo();
    void updateStationCountDisplay();
    void switchToMode(bool isTV);
    void switchSource(int source);
    void reflectRadioButton(bool isTV);
    void rebuildList();
    void reloadWithoutSelecting();
    [[nodiscard]] StationList stationsAt(const QList<qsizetype> &rows) const;
    [[nodiscard]] StationList movable(StationList stations) const;
    void moveStations(const StationList &stations, qint64 target);
    void readDroppedFile(const QString &path);
    void toggleSelected(bool (LGStation::*isSet)() const, void (LGStation::*set)(bool));
    [[nodiscard]] EditorQuestions questions();
    [[nodiscard]] EmptyHint emptyHint() const;
    [[nodiscard]] bool hasData() const;

    EditorOutlets &m_outlets;
    QPointer<TLLDocument> m_document;
    StationFilter m_filter;
    SavedSelection m_selection;
    int m_source = 0;
    bool m_inRestore = false; ///< while the controller itself changes the table's selection
    bool m_fillGaps = false;
    bool m_containsFile = false; ///< the current drag carries a file
    bool m_loadFailed = false;
};

} // namespace quillet
