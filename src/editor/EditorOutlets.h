#pragma once

#include <QList>
#include <QString>

#include <optional>

class QWidget;

namespace quillet {

struct ListChange;

/// Why no station is shown, and so what the hint in the table's place says.
enum class EmptyHint {
    None,            ///< there are stations
    NoFile,          ///< nothing was opened yet
    NoStations,      ///< the file has no stations at all
    NoRadioStations, ///< radio mode, and this source has TV stations only
    NoTVStations,    ///< TV mode, and this source has radio stations only
    RadioNotShown,   ///< radio mode, and the radio stations of this kind of list are not shown
};

/// What the bar above the table says.
struct Notice
{
    QString text;              ///< in lines; empty: there is no bar
    bool isWarning = false;    ///< something is wrong, not just worth knowing
    bool offersRepair = false; ///< with a button that opens a repaired copy
};

/// What the bar says of a file that others have changed or taken away.
struct FileNotice
{
    QString text;              ///< empty: there is no bar
    bool offersReload = false; ///< or to keep what is shown; else to save elsewhere
};

/// Rows that are of another list than the one that is chosen.
struct ForeignRows
{
    int source = 0;        ///< theirs
    int currentSource = 0; ///< the one chosen
};

/// The controls of the editor's window, as far as its logic reads and sets them. The window
/// implements it; so do the tests, which need none.
class EditorOutlets
{
public:
    enum class Field { FileName, DeviceName, StationCount, Matches };
    enum class Control { MoveToButton, InfoButton, ApplyButton, ModeButtons, FilterPop };

    virtual ~EditorOutlets() = default;

    virtual void setText(Field field, const QString &text) = 0;
    virtual void setEnabled(Control control, bool enabled) = 0;

    /// The state of the TV button, the one place where the mode is kept; the radio button has the
    /// opposite.
    [[nodiscard]] virtual bool tvButtonIsOn() const = 0;
    virtual void setTVButtonOn(bool on) = 0;

    /// The four segments of the sources, 0 to 3.
    virtual void setSegmentEnabled(int segment, bool enabled) = 0;
    virtual void selectSegment(int segment) = 0;
    [[nodiscard]] virtual int selectedSegment() const = 0;

    [[nodiscard]] virtual QString searchText() const = 0;
    /// The tag of the selected item of the type filter.
    [[nodiscard]] virtual int filterTag() const = 0;
    virtual void selectFilterItem(int index) = 0;
    virtual void clearSearchText() = 0;

    /// Reads all rows anew. Which of them are selected afterwards is not said; no change of the
    /// selection is reported.
    virtual void reloadData() = 0;
    /// Shows what a change of the rows' list did to them. The stations that were selected stay so.
    virtual void showChange(const ListChange &change) = 0;
    /// Ascending.
    [[nodiscard]] virtual QList<qsizetype> selectedRows() const = 0;
    /// Selects exactly these rows.
    virtual void selectRows(const QList<qsizetype> &rows) = 0;
    virtual void scrollRowToVisible(qsizetype row) = 0;
    /// The first row that can be seen; -1 without rows.
    [[nodiscard]] virtual qsizetype topRow() const = 0;
    virtual void scrollRowToTop(qsizetype row) = 0;
    virtual void setNameColumnEditable(bool editable) = 0;
    virtual void showEmptyHint(EmptyHint hint) = 0;
    /// Says beside the rows whose they are; nothing for none.
    virtual void showForeignRows(const std::optional<ForeignRows> &rows) = 0;
    /// In the place of an earlier one, also one that was closed.
    virtual void showNotice(const Notice &notice) = 0;
    /// The same in a bar of its own, for both may be there.
    virtual void showFileNotice(const FileNotice &notice) = 0;

    /// Says in the line at the bottom what has just happened, in the place of what it said before.
    virtual void tell(const QString &text) = 0;
    /// The same of an edit, which can be undone from there.
    virtual void tellEdit(const QString &text) = 0;

    /// The window that questions belong to.
    [[nodiscard]] virtual QWidget *sheetWindow() const = 0;
};

} // namespace quillet
