#pragma once

#include "document/rows/ComparisonRows.h"

#include <QString>

#include <optional>
#include <utility>

namespace quillet {

/// Which rows of a comparison are on show: those of a list, of some kinds, and with a name that is
/// searched for. Owned by the comparison.
class RowFilter
{
public:
    explicit RowFilter(ComparisonKinds kinds) : m_kinds(kinds) {}

    [[nodiscard]] ComparisonKinds kinds() const { return m_kinds; }
    void setKinds(ComparisonKinds kinds) { m_kinds = kinds; }
    /// None: all of them.
    [[nodiscard]] const std::optional<ComparedList> &list() const { return m_list; }
    void setList(const std::optional<ComparedList> &list) { m_list = list; }
    /// Looks for it in the names of both sides; empty: shows all.
    void setSearched(const QString &text) { m_searched = text; }

    [[nodiscard]] bool isOfList(const ComparisonRow &row) const
    {
        return !m_list || *m_list == ComparedList{row.isTV, row.source};
    }
    [[nodiscard]] bool shows(const ComparisonRow &row) const;

private:
    ComparisonKinds m_kinds;
    QString m_searched;
    std::optional<ComparedList> m_list;
};

} // namespace quillet
