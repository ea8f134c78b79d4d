#include "document/compare/StationContent.h"

#include "model/LGLegacyStation.h"
#include "support/TextUnits.h"

#include <QStringList>

#include <array>
#include <optional>

namespace quillet {

namespace {

/// A short text of ASCII as the characters that it would be read as; none of anything else.
std::optional<std::size_t> hashOf(QByteArrayView ascii, std::size_t seed)
{
    std::array<char16_t, 32> text; // NOLINT(cppcoreguidelines-pro-type-member-init)
    if (ascii.size() > static_cast<qsizetype>(text.size()))
        return {};
    char16_t all = 0;
    for (qsizetype i = 0; i < ascii.size(); ++i)
        all |= text[static_cast<std::size_t>(i)] = unitOf(ascii[i]);
    if (all >= 0x80)
        return {};
    return ::qHash(QStringView(text.data(), ascii.size()), seed);
}

std::size_t hashAt(const Dictionary &entry, qsizetype position, std::size_t seed)
{
    const std::optional<QByteArrayView> bytes = entry.bytesRead(position);
    if (const auto hash = bytes ? hashOf(*bytes, seed) : std::nullopt)
        return *hash;
    if (const std::optional<QString> text = entry.text(position))
        return ::qHash(*text, seed);
    const Value &value = entry.at(position).value;
    const std::optional<qint64> number = value.wholeNumber();
    return number ? ::qHash(*number, seed) : ::qHash(value.description(), seed);
}

/// The fields that editing changes: the same for all stations of a variant.
const QStringList &editedKeys(const LGStation &station)
{
    const auto made = [&station] {
        const StationKeys &keys = station.keys();
        return station.numberKeys() +
               QStringList{keys.keyStationName, keys.keySkipped, keys.keyBlocked};
    };
    if (isOfLegacyFormat(station)) {
        static const QStringList ofChannels = made();
        return ofChannels;
    }
    static const QStringList ofItems = made();
    return ofItems;
}

bool holdsAllOf(const Dictionary &held, const Dictionary &others, const QStringList &but)
{
    for (qsizetype i = 0; i < others.count(); ++i) {
        const QString &key = others.keyAt(i);
        const qsizetype own = held.indexOf(key);
        const bool isHeld = own != KeyTable::none && held.hasEqualValue(own, others, i);
        if (!isHeld && !but.contains(key))
            return false;
    }
    return true;
}

/// Goes by places, for nearly always both have the same fields in the same order; none where that
/// does not tell.
std::optional<bool> holdSame(const Dictionary &a, const Dictionary &b, const QStringList &but)
{
    const qsizetype count = a.count();
    if (b.count() != count)
        return {};
    const bool haveOneTable = a.keys() == b.keys();
    for (qsizetype i = 0; i < count; ++i) {
        const QString &key = a.keyAt(i);
        if (!haveOneTable && key != b.keyAt(i))
            return {};
        if (!a.hasEqualValue(i, b, i) && !but.contains(key))
            return false;
    }
    return true;
}

} // namespace

bool isOfLegacyFormat(const LGStation &station)
{
    return dynamic_cast<const LGLegacyStation *>(&station);
}

bool haveSameUnedited(const LGStation &a, const LGStation &b)
{
    if (isOfLegacyFormat(a) != isOfLegacyFormat(b))
        return false;
    const QStringList &edited = editedKeys(a);
    if (const std::optional<bool> same = holdSame(a.entry(), b.entry(), edited))
        return *same;
    return holdsAllOf(a.entry(), b.entry(), edited) && holdsAllOf(b.entry(), a.entry(), edited);
}

bool haveSameContent(const LGStation &a, const LGStation &b)
{
    if (a.entry().isSharedWith(b.entry()))
        return true;
    const std::optional<bool> same = holdSame(a.entry(), b.entry(), {});
    return same ? *same : a.entry() == b.entry();
}

void ContentHasher::readKeys(const LGStation &station)
{
    m_keys = station.entry().keys();
    m_isLegacy = isOfLegacyFormat(station);
    m_fields.clear();
    for (qsizetype i = 0; i < station.entry().count(); ++i) {
        const QString &key = station.entry().keyAt(i);
        m_fields.push_back({::qHash(key), editedKeys(station).contains(key)});
    }
}

ContentHashes ContentHasher::hashesOf(const LGStation &station)
{
    const Dictionary &entry = station.entry();
    if (entry.keys() != m_keys || isOfLegacyFormat(station) != m_isLegacy ||
        entry.count() != static_cast<qsizetype>(m_fields.size()))
        readKeys(station);
    ContentHashes hashes;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const auto [keyHash, isEdited] = m_fields[i];
        const std::size_t hash = hashAt(entry, static_cast<qsizetype>(i), keyHash);
        hashes.all += hash;
        hashes.unedited += isEdited ? 0 : hash;
    }
    return hashes;
}

} // namespace quillet
