#pragma once

#include "editor/EditorOutlets.h"
#include "editor/ShownPlace.h"
#include "editor/ShownStations.h"
#include "texts/StationDetails.h"

#include <QMap>
#include <QObject>

namespace quillet {

class EditorQuestions;
struct ListChange;

/// What an editor window shows: which list, how it is narrowed, what is selected and which controls
/// are enabled. Works on the window's controls through EditorOutlets only, and changes no station.
/// The part of ViewController that makes no edits.
class TableController : public QObject
{
    Q_OBJECT

public:
    explicit TableController(EditorOutlets &outlets, QObject *parent = nullptr);

    /// Sets the controls up; called once by the window's view, before a document is shown.
    void viewDidLoad();
    /// Shows the document, starting with the first source that has stations. An error that is not
    /// empty is shown to the person. Returns whether there was none.
    bool populateFromTLLDoc(TLLDocument &document, const Error &error);
    /// The document shown; null before there is one.
    [[nodiscard]] TLLDocument *stationDoc() const { return m_shown.document(); }
    /// What is on show of it.
    [[nodiscard]] const ShownStations &shown() const { return m_shown; }
    /// Of its file; none before there is one.
    [[nodiscard]] SatelliteNames satelliteNames() const;

    /// Where the person is, and going there again after the document was read anew.
    [[nodiscard]] ShownPlace place() const;
    void goTo(const ShownPlace &place);

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
    [[nodiscard]] int filterTag() const { return m_outlets.filterTag(); }
    /// The search text has changed.
    void textDidChange() { applyFilter(); }
    [[nodiscard]] QString searchText() const { return m_outlets.searchText(); }
    void filterStationsFor(const QString &text);
    void useTypeFilter(int tag);
    void applyFilter();
    /// Shows the whole current list.
    void clearFilters();
    /// The stations shown, one a row.
    [[nodiscard]] const StationList &currentList() const { return m_shown.currentList(); }

    // Selection

    [[nodiscard]] const SavedSelection &selection() const { return m_shown.selection(); }
    void saveSelection();
    void restoreSelection();
    void tableViewSelectionDidChange();

    // State of the window

    void clearDirty();
    void updateButtons();
    /// Whether the control is enabled, and with it the menu items that do the same.
    [[nodiscard]] bool isEnabled(EditorOutlets::Control control) const
    {
        return m_enabled.value(control);
    }
    void showError(const QString &detail, const QString &message);
    /// Shows where the document's file is.
    void showFileName();
    /// Shows in the bar what there is to say about the document's file now.
    void showNotice();
    /// Shows in the other bar what others have done to it.
    void showFileNotice();

    // Showing what was done

    /// Shows what an edit did. Only moving applies the filters anew.
    void showChange(const ListChange &change);
    /// Shows that list of the document, as if its source and mode had been clicked.
    void showList(const StationListPtr &list);
    /// Selects stations of the list on show, and scrolls to the first. A filter that hides one of
    /// them is cleared.
    void reveal(const StationList &stations);
    /// Selects exactly these rows, ascending, and remembers that.
    void selectRows(const QList<qsizetype> &rows);

signals:
    /// A document is about to be shown, or the same one anew.
    void documentChanged(quillet::TLLDocument *document);
    /// Something has changed that commands are enabled by.
    void stateChanged();

protected:
    [[nodiscard]] EditorOutlets &outlets() const { return m_outlets; }
    [[nodiscard]] SavedSelection &savedSelection() { return m_shown.selection(); }
    [[nodiscard]] EditorQuestions questions();

private:
    void enable(EditorOutlets::Control control, bool enabled);
    void displayFileName(const QString &path);
    void showDeviceInfo();
    void updateStationCountDisplay();
    void switchToMode(bool isTV);
    void switchSource(int source);
    void useMode(bool isTV);
    void reflectRadioButton(bool isTV);
    void narrow();
    void rebuildList();
    void reloadWithoutSelecting();

    EditorOutlets &m_outlets;
    ShownStations m_shown;
    QMap<EditorOutlets::Control, bool> m_enabled;
    int m_source = 0;
    bool m_inRestore = false; ///< while the controller itself changes the table's selection
    bool m_loadFailed = false;
};

} // namespace quillet
