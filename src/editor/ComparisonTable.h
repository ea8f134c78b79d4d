#pragma once

#include "editor/ComparisonModel.h"
#include "editor/DarkModeTableView.h"
#include "editor/StationComparison.h"

#include <QList>

#include <optional>
#include <tuple>
#include <vector>

namespace quillet {

/// The rows of a comparison as a table: the space bar checks what is selected, and the selection
/// stays with its stations while the rows change, also when they are not on show for a time. Its
/// columns fit its width until somebody sizes one. Owned by the window that compares.
class ComparisonTable : public DarkModeTableView
{
    Q_OBJECT

public:
    /// The comparison must outlive it.
    explicit ComparisonTable(StationComparison &comparison, QWidget *parent = nullptr);
    ~ComparisonTable() override;

    /// In percent of the size of the text around the table.
    void setTextSize(int percent);
    [[nodiscard]] std::vector<std::size_t> selected() const;
    /// Gives it the focus, and the current row, or else the first, the selection if there is none.
    void focusRows();
    /// Whether the current row is checked, in words.
    [[nodiscard]] QString currentMark() const;

signals:
    void selectedRowsChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Of the row at a time when there may be others.
    using RowKey = std::tuple<const LGStation *, const LGStation *, std::size_t>;

    void measureColumns();
    void fitColumns();
    void keepSelection();
    void restoreSelection();
    void restoreCurrent();
    void reveal();
    [[nodiscard]] RowKey keyOf(std::size_t row) const;

    StationComparison &m_comparison;
    ComparisonModel m_model;
    std::vector<RowKey> m_selectedKeys; ///< ascending, of what was selected last
    bool m_areSelectedHidden = false;   ///< then none of those is on show
    RowKey m_currentKey;
    std::optional<RowKey> m_standIn; ///< the current row while that one is not on show
    int m_currentRow = -1;           ///< when there are others
    int m_currentColumn = ComparisonModel::NameHere;
    int m_scrolled = 0;
    /// The widths that would cut nothing.
    QList<int> m_wanted = QList<int>(ComparisonModel::columns);
    bool m_isFitting = false;
    bool m_isSizedByHand = false; ///< then the columns stay
};

} // namespace quillet
