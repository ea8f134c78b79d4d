#include "editor/RowFilter.h"

#include "model/CleanName.h"

namespace quillet {

namespace {

bool isIn(const QString &name, const QString &searched)
{
    return name.contains(searched, Qt::CaseInsensitive) ||
           cleanName(name).contains(searched, Qt::CaseInsensitive);
}

} // namespace

bool RowFilter::shows(const ComparisonRow &row) const
{
    return (row.kinds & m_kinds) && isOfList(row) &&
           (m_searched.isEmpty() || isIn(row.nameHere, m_searched) ||
            isIn(row.nameThere, m_searched));
}

} // namespace quillet
