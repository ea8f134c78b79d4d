#pragma once

#include "editor/ComparisonRows.h"
#include "editor/ListEditor.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace quillet {

class ViewController;

/// A document's lists beside another list, as long as somebody looks: the rows, which of them are
/// on show, which are checked to be taken over, and what that would come to. Follows every change
/// of the document, in a later turn of the event loop. Changes nothing but by the controller of the
/// document's window, which must outlive it. Owned by the window that shows it, and by a question
/// that is open.
class StationComparison : public QObject, public std::enable_shared_from_this<StationComparison>
{
    Q_OBJECT

public:
    /// The controller must have a document.
    StationComparison(ViewController &controller, ComparedWith other);

    using Purpose = ComparedWith::Purpose;
    [[nodiscard]] const ComparedWith &other() const { return m_other; }
    [[nodiscard]] Purpose purpose() const { return m_other.purpose; }

    // What is on show

    [[nodiscard]] std::size_t rowCount() const { return m_shown.size(); }
    [[nodiscard]] const ComparisonRow &row(std::size_t row) const { return m_rows[m_shown[row]]; }
    /// Of the list chosen, whatever is searched for.
    [[nodiscard]] std::size_t count(ComparisonKind kind) const;
    /// Whether nothing differs, in any list.
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] ComparisonKinds kinds() const { return m_kinds; }
    void showKinds(ComparisonKinds kinds);
    /// Looks for it in the names of both sides; empty: shows all.
    void search(const QString &text);

    /// One of the eight lists.
    struct List
    {
        bool isTV = true;
        int source = 0;
        bool operator==(const List &) const = default;
    };
    /// Those that have rows.
    [[nodiscard]] const std::vector<List> &lists() const { return m_lists; }
    [[nodiscard]] const std::optional<List> &list() const { return m_list; }
    /// None: all of them.
    void showList(const std::optional<List> &list);

    // What is to be taken over

    /// Whether there is anything to check.
    [[nodiscard]] bool offersChecks() const { return purpose() != Purpose::Order; }
    [[nodiscard]] bool canBeChecked(std::size_t row) const;
    [[nodiscard]] bool isChecked(std::size_t row) const;
    void check(const std::vector<std::size_t> &rows, bool isChecked);
    /// Checks them all unless they are; then none.
    void toggle(const std::vector<std::size_t> &rows);

    static constexpr std::array aspects{StationDifference::Number, StationDifference::Name,
                                        StationDifference::Skipped, StationDifference::Locked};
    [[nodiscard]] bool takes(StationDifference aspect) const { return m_takes.testFlag(aspect); }
    void take(StationDifference aspect, bool isTaken);
    /// Why nothing of that kind can be taken over; empty when something can.
    [[nodiscard]] QString reasonAgainst(StationDifference aspect) const;

    /// Rows of the list chosen that are unchecked because they are alike by name only.
    [[nodiscard]] std::size_t uncheckedLoose() const;
    /// How many stations would get a number that one before them has, by a reference list.
    [[nodiscard]] std::size_t doubledNumbers() const;

    using Parts = std::vector<ListEditor::TakeOverPart>;
    /// What taking over all checked rows of the list chosen would do.
    [[nodiscard]] Parts planForAll() const;
    /// The same of those checked ones among these rows.
    [[nodiscard]] Parts planFor(const std::vector<std::size_t> &rows) const;
    void takeOverAll();
    void takeOver(const std::vector<std::size_t> &rows);

    /// The checked stations, in the order of the other list.
    [[nodiscard]] StationList checkedStations() const;
    /// Applies the reference list that the rows show.
    void applyOrder();

    /// Selects the stations of those rows that are in the same list as that of the first in the
    /// editor. Returns whether there is any.
    bool reveal(const std::vector<std::size_t> &rows);

signals:
    void rowsAboutToChange();
    void rowsChanged();
    /// What is checked or taken over has.
    void choiceChanged();
    void documentGone();

private:
    void compareAnew();
    void filter();
    [[nodiscard]] bool isOnShow(const ComparisonRow &row) const;
    [[nodiscard]] bool canBeChecked(const ComparisonRow &row) const;
    [[nodiscard]] bool isChecked(const ComparisonRow &row) const;
    [[nodiscard]] Parts plan(std::vector<const ComparisonRow *> rows) const;
    void carryOut(const std::function<Parts()> &plan);

    ViewController &m_controller;
    const ComparedWith m_other;
    ComparisonRows m_rows;
    std::vector<std::size_t> m_shown; ///< of those, which are on show
    std::vector<List> m_lists;
    std::optional<List> m_list;
    ComparisonKinds m_kinds;
    QString m_searched;
    StationDifferences m_takes;
    QHash<const LGStation *, bool> m_chosen; ///< checks that a person has set, by the other side
    QTimer m_later;
};

} // namespace quillet
