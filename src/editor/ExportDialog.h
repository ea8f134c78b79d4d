#pragma once

#include "editor/ListExport.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QPushButton;

namespace quillet {

class SpokenLabel;
class ViewController;

/// Asks as what the list on show is to be exported, with a line that says what would be lost.
/// What a format has no use for is not on show. What was chosen last is chosen again. Writes
/// nothing.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// The export must outlive the dialog.
    ExportDialog(const ListExport &list, QWidget *parent);

    [[nodiscard]] ExportOptions options() const;
    /// Has them chosen the next time.
    void remember() const;

private:
    void choose(const ExportOptions &options);
    void showChoice();
    void tellRemarks(const QStringList &remarks);

    const ListExport &m_list;
    QComboBox *m_format;
    QComboBox *m_separator;
    QComboBox *m_form;
    QComboBox *m_stations;
    QCheckBox *m_hasKeys;
    QFormLayout *m_rows = nullptr;
    SpokenLabel *m_remarks;
    QPushButton *m_export = nullptr;
};

/// Asks how and where to export the list on show, with those columns, and has the document write
/// it. Does nothing while there is no station.
void askToExport(ViewController &controller, std::vector<ColumnContent> columns, QWidget *window);

} // namespace quillet
