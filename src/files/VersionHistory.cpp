#include "files/VersionHistory.h"

#include "files/ContentDigest.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace quillet {

namespace {

constexpr QLatin1String placeKey("path");
constexpr QLatin1String versionsKey("versions");
constexpr QLatin1String digestKey("digest");
constexpr QLatin1String sha256Key("sha256"); ///< told before there were others
constexpr QLatin1String sizeKey("size");
constexpr QLatin1String timeKey("time");
constexpr QLatin1String firstKey("first");
constexpr qint64 largestSize = qint64{1} << 40; ///< of what a damaged file tells

std::optional<KeptVersion> versionOf(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const QString told = object[digestKey].toString(object[sha256Key].toString());
    const QByteArray digest = told.toLatin1();
    if (!contentdigest::isDigest(
            digest)) // it is the name of a file, so nothing else may stand there
        return {};
    return KeptVersion{digest, std::clamp<qint64>(object[sizeKey].toInteger(), 0, largestSize),
                       QDateTime::fromString(object[timeKey].toString(), Qt::ISODateWithMs),
                       object[firstKey].toBool()};
}

QJsonObject objectOf(const KeptVersion &version)
{
    QJsonObject object{{digestKey, QString::fromLatin1(version.digest)},
                       {sizeKey, version.size},
                       {timeKey, version.time.toString(Qt::ISODateWithMs)}};
    if (version.isFirst)
        object.insert(firstKey, true);
    return object;
}

} // namespace

VersionHistory::VersionHistory(const QString &place) : m_object{{placeKey, place}} {}

std::optional<VersionHistory> VersionHistory::fromJSON(const QByteArray &json)
{
    VersionHistory history;
    history.m_object = QJsonDocument::fromJson(json).object();
    const QJsonValue versions = history.m_object[versionsKey];
    if (history.place().isEmpty() || !versions.isArray())
        return {};
    return history;
}

QByteArray VersionHistory::toJSON() const
{
    return QJsonDocument(m_object).toJson();
}

QString VersionHistory::place() const
{
    return m_object[placeKey].toString();
}

std::vector<KeptVersion> VersionHistory::versions() const
{
    std::vector<KeptVersion> versions;
    for (const QJsonValue value : m_object[versionsKey].toArray()) {
        const std::optional<KeptVersion> version = versionOf(value);
        const auto isSame = [&version](const auto &each) { return each.digest == version->digest; };
        if (version && std::none_of(versions.begin(), versions.end(), isSame))
            versions.push_back(*version);
    }
    return versions;
}

bool VersionHistory::isWhole() const
{
    const QJsonArray array = m_object[versionsKey].toArray();
    return std::all_of(array.begin(), array.end(),
                       [](const QJsonValue &value) { return versionOf(value).has_value(); });
}

bool VersionHistory::add(const KeptVersion &version)
{
    const std::vector<KeptVersion> before = versions();
    const auto same = std::find_if(before.begin(), before.end(), [&version](const auto &each) {
        return each.digest == version.digest;
    });
    if (same != before.end()) {
        if (same->isFirst || same + 1 == before.end())
            return false;
        remove(version.digest);
    }
    KeptVersion added = version;
    added.isFirst = before.empty();
    QJsonArray array = m_object[versionsKey].toArray();
    array.append(objectOf(added));
    m_object.insert(versionsKey, array);
    return true;
}

void VersionHistory::shorten(std::size_t most)
{
    const std::vector<KeptVersion> all = versions();
    std::size_t left = all.size();
    for (const KeptVersion &version : all) {
        if (version.isFirst || left <= most)
            continue;
        remove(version.digest);
        --left;
    }
}

void VersionHistory::remove(const QByteArray &digest)
{
    QJsonArray left;
    for (const QJsonValue value : m_object[versionsKey].toArray()) {
        const std::optional<KeptVersion> version = versionOf(value);
        if (!version || version->digest != digest)
            left.append(value);
    }
    m_object.insert(versionsKey, left);
}

} // namespace quillet
