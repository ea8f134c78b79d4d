#pragma once

#include "editor/StationComparison.h"

#include <QWidget>

#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace quillet {

/// By what the rows of a comparison are narrowed: the list, a search, and the kinds with how many
/// rows each has. Owned by the window that compares.
class ComparisonFilter : public QWidget
{
    Q_OBJECT

public:
    /// The comparison must outlive it.
    explicit ComparisonFilter(StationComparison &comparison, QWidget *parent = nullptr);

    void focusSearch();
    /// Which names the search field, and may have a letter for it.
    [[nodiscard]] QLabel &searchTitle() const { return *m_searchTitle; }

signals:
    /// The person goes on from the search to what was found.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QLayout *makeTop();
    [[nodiscard]] QLayout *makeKinds();
    void showState();
    void showKinds();

    StationComparison &m_comparison;
    QComboBox *m_lists;
    QLabel *m_searchTitle;
    QLineEdit *m_search;
    std::vector<std::pair<ComparisonKind, QCheckBox *>> m_kinds;
};

} // namespace quillet
