#include "xml/KeyTable.h"

namespace quillet {

namespace {

/// Up to here walking the keys is faster than hashing one.
constexpr std::size_t linearLimit = 48;

/// The length of a key and three of its characters, which hardly any two keys have alike.
quint32 markOf(QStringView key)
{
    if (key.isEmpty())
        return 0;
    const auto low = [](auto number) { return static_cast<quint32>(number) & 0xFF; };
    const QChar middle = key[key.size() / 2];
    return low(key.size()) << 24 | low(key.front().unicode()) << 16 | low(middle.unicode()) << 8 |
           low(key.back().unicode());
}

} // namespace

qsizetype KeyTable::indexOf(QStringView key) const
{
    if (!m_index.isEmpty())
        return m_index.value(key, none);
    const quint32 mark = markOf(key);
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        if (m_marks[i] == mark && m_keys[i] == key)
            return static_cast<qsizetype>(i);
    }
    return none;
}

void KeyTable::append(const QString &key)
{
    m_keys.push_back(key);
    m_marks.push_back(markOf(key));
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
    m_marks.erase(m_marks.begin() + position);
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
