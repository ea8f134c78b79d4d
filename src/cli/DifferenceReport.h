#pragma once

#include "cli/ListChoice.h"
#include "document/compare/ListComparison.h"
#include "xml/Array.h"

#include <vector>

namespace quillet {

class Console;
class Invocation;

/// Two records of stations as they are told: of two files, or before and after an edit.
class DifferenceReport
{
public:
    /// `hasSame`: also what is the same on both sides.
    DifferenceReport(const ListComparison &comparison, bool hasSame);

    /// Leaves out the lists that the call has not chosen.
    void narrow(const Invocation &invocation);
    [[nodiscard]] bool isEmpty() const;

    /// A line for each station, below a title for each list.
    void writeText(Console &console) const;
    [[nodiscard]] Array jsonLists() const;

private:
    ListComparison m_comparison;
    bool m_hasSame;
};

/// The lists as they were, to be compared with what becomes of them.
class ListsBefore
{
public:
    explicit ListsBefore(const StationLists &lists);
    [[nodiscard]] ListComparison compareWith(const StationLists &lists) const;

private:
    StationLists m_before;
    KnownPairs m_known; ///< by the very stations of the lists
};

} // namespace quillet
