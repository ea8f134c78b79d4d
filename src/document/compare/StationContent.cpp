#include "document/compare/StationContent.h"

namespace quillet {

namespace {

std::size_t hashOf(const Value &value)
{
    if (const QString *text = value.string())
        return ::qHash(*text);
    const std::optional<qint64> number = value.wholeNumber();
    return number ? ::qHash(*number) : ::qHash(value.description());
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

} // namespace

QStringList editedKeys(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    return station.numberKeys() +
           QStringList{keys.keyStationName, keys.keySkipped, keys.keyBlocked};
}

bool haveSameUnedited(const LGStation &a, const LGStation &b)
{
    const QStringList edited = editedKeys(a);
    return holdsAllOf(a.entry(), b.entry(), edited) && holdsAllOf(b.entry(), a.entry(), edited);
}

ContentHashes contentHashes(const LGStation &station)
{
    const QStringList edited = editedKeys(station);
    ContentHashes hashes;
    for (const auto &[key, value] : station.entry()) {
        const std::size_t hash = qHashMulti(0, key, hashOf(value));
        hashes.all += hash;
        if (!edited.contains(key))
            hashes.unedited += hash;
    }
    return hashes;
}

} // namespace quillet
