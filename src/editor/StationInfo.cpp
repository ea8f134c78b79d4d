#include "editor/StationInfo.h"

#include <algorithm>

namespace quillet {

void StationInfo::setStation(const LGStation &station)
{
    m_title = station.shownName();
    m_entry = station.entry();
    m_fields.clear();
    for (const auto &[key, value] : m_entry)
        m_fields.append(key);
    std::stable_sort(m_fields.begin(), m_fields.end());
}

QString StationInfo::content(qsizetype position) const
{
    const Value *value = m_entry.find(m_fields.at(position));
    return value ? value->description() : QStringLiteral("????");
}

} // namespace quillet
