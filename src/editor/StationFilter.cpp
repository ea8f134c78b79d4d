#include "editor/StationFilter.h"

#include "editor/StationSearch.h"

namespace quillet {

void StationFilter::clear()
{
    m_filtered.reset();
    m_base.reset();
}

void StationFilter::filterStationsFor(const QString &text, const StationListPtr &stations)
{
    clear();
    if (text.isEmpty())
        return;
    m_base = stations;
    StationList &matching = m_filtered.emplace();
    if (!stations)
        return;
    StationSearch search(text);
    for (const StationPtr &station : *stations) {
        if (search.finds(*station))
            matching.push_back(station);
    }
}

void StationFilter::useTypeFilter(int tag, int source, const StationListPtr &stations)
{
    if (tag == static_cast<int>(TypeFilter::All))
        return;
    if (!m_filtered) {
        m_base = stations;
        m_filtered = stations ? *stations : StationList();
    }
    std::erase_if(*m_filtered, [tag, source](const StationPtr &station) {
        return !station->matchesType(tag, source);
    });
}

} // namespace quillet
