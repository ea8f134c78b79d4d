#pragma once

#include "editor/TakeOverChoice.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace quillet {

class TLLDocument;
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
    /// Whether nothing differs, in any list, but perhaps the order.
    [[nodiscard]] bool isEmpty() const;
    /// Whether the stations on both sides stand in one order, in every list.
    [[nodiscard]] bool isSameOrder() const { return areInSameOrder(m_rows); }
    /// Whether there are stations to be compared, but none that both sides have.
    [[nodiscard]] bool isOfStrangers() const { return haveNoneInCommon(m_rows); }
    [[nodiscard]] const RowFilter &filter() const { return m_filter; }
    void showKinds(ComparisonKinds kinds);
    void search(const QString &text);
    using List = ComparedList;
    /// Those that have rows.
    [[nodiscard]] const std::vector<List> &lists() const { return m_lists; }
    void showList(const std::optional<List> &list);

    // What is to be taken over
    [[nodiscard]] bool canBeChecked(std::size_t row) const;
    [[nodiscard]] bool isChecked(std::size_t row) const;
    void check(const std::vector<std::size_t> &rows, bool isChecked);
    /// Checks them all unless they are; then none.
    void toggle(const std::vector<std::size_t> &rows);
    [[nodiscard]] const TakeOverChoice &choice() const { return m_choice; }
    void take(StationDifference aspect, bool isTaken);
    /// Why nothing of that kind can be taken over; empty when something can.
    [[nodiscard]] QString reasonAgainst(StationDifference aspect) const;

    /// Rows of the list chosen that are unchecked because they are not sure, or of another list; of
    /// another channel list, those alone that tell something to be taken over.
    [[nodiscard]] std::size_t uncheckedUnsure() const;
    /// Checked rows of the list chosen that tell something to be taken over, or a station to be
    /// moved, and are not on show.
    [[nodiscard]] std::size_t checkedHidden() const;
    /// How many numbers that stations take are told of several stations of a list.
    [[nodiscard]] std::size_t doubledNumbers() const;
    using Parts = TakeOverParts;
    /// What taking over all checked rows of the list chosen would do.
    [[nodiscard]] const Parts &planForAll() const;
    /// The same of those checked ones among these rows.
    [[nodiscard]] Parts planFor(const std::vector<std::size_t> &rows) const;
    void takeOverAll();
    void takeOver(const std::vector<std::size_t> &rows);
    /// The checked stations, in the order of the other list.
    [[nodiscard]] StationList checkedStations() const;
    /// Whether the rows are what comparing would find now, with names that were read since. If not,
    /// they are shown anew.
    bool isStillSo();
    /// Applies the reference list that the rows show.
    void applyOrder();
    /// Selects the stations of those rows that are in the same list as that of the first in the
    /// editor. Returns whether there is any.
    bool reveal(const std::vector<std::size_t> &rows);

signals:
    void rowsAboutToChange();
    void rowsChanged();
    void choiceChanged();
    void takenOver(const QString &sentence);
    void documentGone();

private:
    void compareAnew();
    [[nodiscard]] ComparisonRows rowsNow(const TLLDocument &document) const;
    void show(ComparisonRows rows);
    void narrow(const std::function<void()> &change);
    void choose();
    void numberChecked();
    [[nodiscard]] Parts planAll() const;
    [[nodiscard]] Parts plan(std::vector<const ComparisonRow *> rows) const;
    void carryOut(const std::function<Parts()> &plan);

    ViewController &m_controller;
    const ComparedWith m_other;
    ComparisonRows m_rows;
    std::vector<std::size_t> m_shown; ///< of those, which are on show
    std::vector<List> m_lists;
    RowFilter m_filter;
    TakeOverChoice m_choice;
    mutable std::optional<Parts> m_planForAll; ///< none when it is to be made anew
    QTimer m_later;
};

} // namespace quillet
