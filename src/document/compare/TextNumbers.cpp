#include "document/compare/TextNumbers.h"

#include <QHash>

#include <bit>

namespace quillet {

void TextNumbers::reserve(std::size_t count)
{
    m_texts.reserve(count);
    if (2 * count > m_slots.size())
        grow(std::bit_ceil(2 * count));
}

TextNumbers::Number TextNumbers::number(QStringView text)
{
    if (2 * (m_texts.size() + 1) > m_slots.size())
        grow(std::bit_ceil(4 * (m_texts.size() + 1)));
    const std::size_t hash = qHash(text, QHashSeed::globalSeed());
    Number &number = m_slots[slotOf(text, hash)];
    if (number == empty) {
        number = static_cast<Number>(m_texts.size());
        m_texts.push_back({hash, m_letters.size(), static_cast<std::size_t>(text.size())});
        m_letters.insert(m_letters.end(), text.utf16(), text.utf16() + text.size());
    }
    return number;
}

QStringView TextNumbers::text(Number number) const
{
    const Text &text = m_texts[static_cast<std::size_t>(number)];
    return QStringView(m_letters.data() + text.begin, static_cast<qsizetype>(text.length));
}

void TextNumbers::grow(std::size_t slotCount)
{
    m_slots.assign(slotCount, empty);
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        std::size_t slot = m_texts[i].hash & (slotCount - 1);
        while (m_slots[slot] != empty)
            slot = (slot + 1) & (slotCount - 1);
        m_slots[slot] = static_cast<Number>(i);
    }
}

std::size_t TextNumbers::slotOf(QStringView text, std::size_t hash) const
{
    std::size_t slot = hash & (m_slots.size() - 1);
    while (m_slots[slot] != empty) {
        const Number number = m_slots[slot];
        if (m_texts[static_cast<std::size_t>(number)].hash == hash && this->text(number) == text)
            break;
        slot = (slot + 1) & (m_slots.size() - 1);
    }
    return slot;
}

} // namespace quillet
