#pragma once

#include "editor/ColumnState.h"
#include "files/Settings.h"
#include "texts/StationColumns.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class QTableView;

namespace quillet {

class StationHeader;

/// Which columns of the station table are shown, in which order and how wide, remembered for each
/// variant of the file. The name takes what is left; where that is too little, the table can be
/// scrolled. What is changed elsewhere meanwhile is followed at once. A child of the table.
///
/// A hidden column costs nothing: its section is hidden, and a table asks its model for the cells
/// of shown sections only.
class ShownColumns : public QObject
{
    Q_OBJECT

public:
    /// The table has its model and a StationHeader. The settings must outlive it.
    ShownColumns(QTableView &table, Settings &settings);
    ~ShownColumns() override;

    /// Shows what is remembered for that variant of the file, unless it is the one on show.
    void useVariant(bool isJSON);

    [[nodiscard]] bool isShown(int column) const;
    /// Nothing is changed for a column that is always shown.
    void setShown(int column, bool shown);
    /// Whether everything is as it was before the person changed something.
    [[nodiscard]] bool areUsual() const;
    void useUsual();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] ColumnState state() const;
    void setState(const ColumnState &state);
    /// Shows what is remembered now, unless that is what was noted last.
    void follow();
    void leaveHidden();
    void note();
    void remember();
    void noteWidth(int column, int before, int now);
    void sizeSections();
    void fitName();

    QTableView &m_table;
    StationHeader &m_header;
    Settings &m_settings;
    Setting m_variant = Setting::XMLColumns;
    QStringList m_lastState;                              ///< to remember
    std::array<double, stationColumns.size()> m_widths{}; ///< in average characters; 0: usual
    QTimer m_remembering;                                 ///< for a resizing by mouse is many steps
    int m_character = 0; ///< average width in the font that the columns have the widths for
    bool m_isSettingUp = false;
};

} // namespace quillet
