#include "xml/KeyTable.h"

namespace quillet {

namespace {

/// Up to here walking the keys is faster than hashing one.
constexpr std::size_t linearLimit = 48;

} // namespace

qsizetype KeyTable::indexOf(QStringView key) const
{
    if (!m_index.isEmpty())
        return m_index.value(key, none);
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        if (m_keys[i] == key)
            return static_cast<qsizetype>(i);
    }
    return none;
}

void KeyTable::append(const QString &key)
{
    m_keys.push_back(key);
    if (m_keys.size() > linearLimit + 1) {
        index(m_keys.size() - 1);
    } else if (m_keys.size() == linearLimit + 1) {
        for (std::size_t i = 0; i < m_keys.size(); ++i)
            index(i);
    }
}

void KeyTable::removeAt(qsizetype position)
{
    m_keys.erase(m_keys.begin() + position);
    m_index.clear();
    if (m_keys.size() > linearLimit) {
        for (std::size_t i = 0; i < m_keys.size(); ++i)
            index(i);
    }
}

void KeyTable::index(std::size_t position)
{
    m_index.insert(m_keys[position], static_cast<qsizetype>(position));
}

} // namespace quillet
