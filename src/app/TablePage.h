#pragma once

#include "app/PreferencesPage.h"

class QCheckBox;
class QComboBox;
class QGroupBox;

namespace quillet {

/// The table of stations: the size of its text, and its columns for each kind of list.
class TablePage : public PreferencesPage
{
    Q_OBJECT

public:
    explicit TablePage(Settings &settings);

private:
    [[nodiscard]] Setting kind() const;
    void addColumns();
    void showColumns();
    void setColumn(int column, bool isShown);

    QComboBox *m_kind;
    QGroupBox *m_group;
    std::vector<QCheckBox *> m_columns; ///< in the order of stationColumns
};

} // namespace quillet
