#include "document/compare/StationContent.h"

#include "model/LGLegacyStation.h"

#include <QStringList>

#include <cstring>
#include <optional>

namespace quillet {

namespace {

std::size_t hashOf(const Value &value, std::size_t seed)
{
    if (const QString *text = value.string())
        return ::qHash(*text, seed);
    const std::optional<qint64> number = value.wholeNumber();
    return number ? ::qHash(*number, seed) : ::qHash(value.description(), seed);
}

bool areEqual(const QString &a, const QString &b)
{
    return a.size() == b.size() &&
           std::memcmp(a.constData(), b.constData(),
                       static_cast<std::size_t>(a.size()) * sizeof(QChar)) == 0;
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
    for (const auto &[key, value] : others) {
        const Value *own = held.find(key);
        if (!(own && *own == value) && !but.contains(key))
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
        const auto &[key, value] = a.at(i);
        const auto &[otherKey, otherValue] = b.at(i);
        if (!haveOneTable && !areEqual(key, otherKey))
            return {};
        if (!(value == otherValue) && !but.contains(key))
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
    for (const auto &[key, value] : station.entry())
        m_fields.push_back({::qHash(key), editedKeys(station).contains(key)});
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
        const std::size_t hash = hashOf(entry.at(static_cast<qsizetype>(i)).value, keyHash);
        hashes.all += hash;
        hashes.unedited += isEdited ? 0 : hash;
    }
    return hashes;
}

} // namespace quillet
