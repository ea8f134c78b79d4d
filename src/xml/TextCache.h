#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>

namespace quillet {

/// Makes strings from UTF-8, handing out the same shared string for a short text it has made
/// before: most values of a channel list (flags, types, identifiers) are repeated from station to
/// station.
class TextCache
{
public:
    [[nodiscard]] QString text(QByteArrayView utf8);

private:
    static constexpr std::size_t slotCount = 1024; // a power of two
    /// Up to 16 characters, told apart by the first and last of them (which overlap) and their
    /// number.
    struct Key
    {
        quint64 first = 0;
        quint64 last = 0;
        qsizetype size = 0;
        bool operator==(const Key &) const = default;
    };
    struct Slot
    {
        Key key;
        QString text;
    };

    std::array<Slot, slotCount> m_slots;
};

} // namespace quillet
