#include "document/repair/OpenElements.h"

#include "model/FileWords.h"

#include <algorithm>

namespace quillet {

namespace {

/// By these a digital station is filed; without them it would be in the way of others.
constexpr std::array<QByteArrayView, 2> filingFields{"sourceIndex", "serviceType"};

template<std::size_t count>
bool contains(const std::array<QByteArrayView, count> &names, QByteArrayView name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

bool isSectionTag(QByteArrayView name)
{
    return name == fileword::atv.bytes() || name == fileword::dtv.bytes();
}

std::optional<std::size_t> OpenElements::find(QByteArrayView name) const
{
    for (std::size_t index = m_open.size(); index-- > 0;) {
        if (m_open[index].name == name)
            return index;
    }
    return {};
}

std::optional<std::size_t> OpenElements::section() const
{
    const auto found = std::find_if(m_open.begin(), m_open.end(), [](const OpenElement &element) {
        return isSectionTag(element.name);
    });
    if (found == m_open.end())
        return {};
    return static_cast<std::size_t>(found - m_open.begin());
}

void OpenElements::push(const OpenElement &element)
{
    m_open.push_back(element);
    if (element.name == fileword::item.bytes() && !m_station) {
        m_station = m_open.size() - 1;
        m_hasField = false;
        m_filingFields = 0;
    }
}

void OpenElements::pop()
{
    const std::size_t index = m_open.size() - 1;
    if (isField(index) && index == *m_station + 1) {
        m_hasField = true;
        if (contains(filingFields, last().name))
            ++m_filingFields;
    }
    discard();
}

void OpenElements::discard()
{
    m_open.pop_back();
    if (m_station && m_open.size() <= *m_station)
        m_station.reset();
}

bool OpenElements::isContainer(std::size_t index) const
{
    const QByteArrayView name = m_open[index].name;
    return index == 0 || name == fileword::item.bytes() || name == fileword::channel.bytes() ||
           isSectionTag(name);
}

bool OpenElements::canStationBeFiled() const
{
    const bool isDigital = find(fileword::dtv.bytes()).has_value();
    return m_hasField && (!isDigital || m_filingFields >= filingFields.size());
}

} // namespace quillet
