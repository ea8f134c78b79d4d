#pragma once

#include "editor/StationComparison.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QPushButton;

namespace quillet {

class ComparisonFilter;
class ComparisonTable;
class Settings;
class SpokenLabel;

/// The window that shows a document's lists beside another list, and has taken over from there what
/// is checked. It stays open while the document is edited, unless it shows what is to be applied or
/// pasted. Decides nothing: what there is to see and to do, StationComparison says. Deletes itself
/// when it is closed.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// Has stations moved, for rows that are to be pasted.
    using MoveHere = std::function<void(const StationList &)>;

    /// The controller must have a document. The settings must outlive the dialog.
    CompareDialog(ViewController &controller, const ComparedWith &other, const Settings &settings,
                  QWidget *parent, MoveHere moveHere = {});
    ~CompareDialog() override;

private:
    using Purpose = ComparedWith::Purpose;

    void addControls();
    void followTextSize(const Settings &settings);
    [[nodiscard]] QLayout *makeAspects();
    [[nodiscard]] QWidget *makeButtons();
    void addShortcuts();
    void setMnemonics();
    void showPlan();
    void showSelected();
    void speakChoice();
    void accept() override;

    ViewController &m_controller;
    const std::shared_ptr<StationComparison> m_kept;
    StationComparison &m_comparison;
    MoveHere m_moveHere;
    ComparisonFilter *m_filter;
    ComparisonTable *m_table;
    SpokenLabel *m_preview;
    QTimer m_selectionShown;               ///< when no more keys wait
    QSize m_wantedSize, m_firstSize;       ///< the screen may not have had room for it
    QString m_plan;                        ///< of all that is checked, in words
    QPushButton *m_takeSelected = nullptr; ///< null: there is but one way to go on
    QPushButton *m_take = nullptr;
    std::vector<std::pair<StationDifference, QCheckBox *>> m_aspects;
};

/// Shows the comparison in a window of its own.
void showComparison(ViewController &controller, const ComparedWith &other, const Settings &settings,
                    QWidget *window, const CompareDialog::MoveHere &moveHere = {});

} // namespace quillet
