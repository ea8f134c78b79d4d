#pragma once

#include "editor/ComparisonModel.h"
#include "editor/StationComparison.h"

#include <QDialog>

#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quillet {

class DarkModeTableView;

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

    /// The controller must have a document.
    CompareDialog(ViewController &controller, const ComparedWith &other, QWidget *parent,
                  MoveHere moveHere = {});
    ~CompareDialog() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Purpose = ComparedWith::Purpose;
    /// Of the row at a time when there may be others.
    using RowKey = std::pair<const LGStation *, const LGStation *>;

    [[nodiscard]] QLayout *makeTop();
    [[nodiscard]] QLayout *makeKinds();
    [[nodiscard]] QLayout *makeAspects();
    [[nodiscard]] QWidget *makeButtons();
    void makeTable();
    void addShortcuts();
    void setMnemonics();
    void showLists();
    void showCounts();
    void showPlan();
    void showSelected();
    void setTabOrders();
    void focusTable();
    void showKinds();
    void keepSelection();
    void restoreSelection();
    void accept() override;
    void takeOverSelected();
    void reveal();
    [[nodiscard]] RowKey keyOf(std::size_t row) const;
    [[nodiscard]] std::vector<std::size_t> selected() const;

    ViewController &m_controller;
    const std::shared_ptr<StationComparison> m_kept;
    StationComparison &m_comparison;
    ComparisonModel m_model;
    MoveHere m_moveHere;
    DarkModeTableView *m_table;
    QComboBox *m_lists = nullptr;
    QLineEdit *m_search = nullptr;
    QLabel *m_preview = nullptr;
    QString m_plan;                        ///< of all that is checked, in words
    QPushButton *m_takeSelected = nullptr; ///< null: there is but one way to go on
    QPushButton *m_take = nullptr;
    std::vector<std::pair<ComparisonKind, QCheckBox *>> m_kinds;
    std::vector<std::pair<StationDifference, QCheckBox *>> m_aspects;
    std::vector<RowKey> m_selectedKeys; ///< while the rows change
    RowKey m_currentKey;
    int m_scrolled = 0;
};

/// Shows the comparison in a window of its own.
void showComparison(ViewController &controller, const ComparedWith &other, QWidget *window,
                    const CompareDialog::MoveHere &moveHere = {});

} // namespace quillet
