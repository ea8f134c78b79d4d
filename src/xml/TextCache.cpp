#include "xml/TextCache.h"

#include "support/TextConversion.h"

#include <cstring>

namespace quillet {

namespace {

template<typename Integer>
quint64 load(const char *bytes)
{
    Integer value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

} // namespace

QString TextCache::text(QByteArrayView utf8)
{
    constexpr qsizetype longest = 16;
    constexpr quint64 nonAscii = 0x8080808080808080;
    const qsizetype size = utf8.size();
    if (size == 0 || size > longest)
        return textFromUtf8(utf8);
    const char *const begin = utf8.data();
    const char *const end = begin + size;
    Key key{.size = size};
    if (size >= 8) {
        key.first = load<quint64>(begin);
        key.last = load<quint64>(end - 8);
    } else if (size >= 4) {
        key.first = load<quint32>(begin);
        key.last = load<quint32>(end - 4);
    } else {
        key.first = load<quint8>(begin) | load<quint8>(begin + size / 2) << 8;
        key.last = load<quint8>(end - 1);
    }
    if (((key.first | key.last) & nonAscii) != 0)
        return textFromUtf8(utf8);

    const quint64 mixed = (key.first ^ (key.last * 0xC2B2AE3D27D4EB4F)) * 0x9E3779B97F4A7C15;
    Slot &slot = m_slots[(mixed >> 40) % slotCount];
    if (!(slot.key == key)) {
        slot.key = key;
        slot.text = QString::fromLatin1(utf8);
    }
    return slot.text;
}

} // namespace quillet
