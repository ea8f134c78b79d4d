#include "document/text/StationKey.h"

#include <QStringTokenizer>

#include <array>
#include <utility>

namespace quillet {

namespace {

constexpr qsizetype mostDigits = 18; // of any number there is

constexpr std::array keyParts{
    std::pair{u'n', &StationKey::network},
    std::pair{u't', &StationKey::transport},
    std::pair{u's', &StationKey::service},
    std::pair{u'f', &StationKey::frequency},
};
/// Of a station that tells nothing.
constexpr QChar nothing = u'x';

QString digitsIn(const LGStation &station, const QString &field)
{
    const qsizetype place = station.entry().indexOf(field);
    if (place == KeyTable::none)
        return {};
    if (const std::optional<QString> text = station.entry().text(place))
        return digitsOf(*text);
    const std::optional<qint64> number = station.entry().at(place).value.wholeNumber();
    return number ? digitsOf(QString::number(*number)) : QString();
}

/// A part of a key, which begins with its letter. False for anything else.
bool takePart(QStringView part, StationKey &key)
{
    for (const auto &[letter, member] : keyParts) {
        if (part.startsWith(letter, Qt::CaseInsensitive) && (key.*member).isEmpty()) {
            key.*member = digitsOf(part.sliced(1));
            return !(key.*member).isEmpty();
        }
    }
    return false;
}

std::optional<StationKey> identifiersFrom(const std::vector<QStringView> &parts)
{
    StationKey key;
    const std::array members{&StationKey::network, &StationKey::transport, &StationKey::service};
    if (parts.size() != members.size())
        return {};
    for (std::size_t i = 0; i < members.size(); ++i) {
        key.*members[i] = digitsOf(parts[i]);
        if ((key.*members[i]).isEmpty())
            return {};
    }
    return key;
}

} // namespace

StationKey StationKey::of(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    StationKey key;
    key.network = digitsIn(station, keys.keyOriginalNetwork_id);
    key.transport = digitsIn(station, keys.keyTransport_id);
    key.service = digitsIn(station, keys.keyService_id);
    key.frequency = digitsIn(station, keys.keyFrequency);
    return key;
}

std::optional<StationKey> StationKey::fromText(QStringView text)
{
    constexpr qsizetype longest = 120;
    text = text.trimmed();
    if (text.isEmpty() || text.size() > longest)
        return {};
    std::vector<QStringView> parts;
    for (const QStringView part : text.tokenize(u'-'))
        parts.push_back(part.trimmed());
    if (std::optional<StationKey> identifiers = identifiersFrom(parts))
        return identifiers;
    StationKey key;
    std::size_t next = 0;
    const bool tellsNothing = parts.front().compare(nothing, Qt::CaseInsensitive) == 0;
    if (tellsNothing)
        ++next;
    while (!tellsNothing && next < parts.size() && takePart(parts[next], key))
        ++next;
    if (next == 0)
        return {};
    if (next < parts.size()) {
        bool isNumber = false;
        key.occurrence = parts[next++].toInt(&isNumber);
        if (!isNumber || key.occurrence < 1 || next < parts.size())
            return {};
    }
    return key;
}

bool StationKey::isEmpty() const
{
    return network.isEmpty() && transport.isEmpty() && service.isEmpty() && frequency.isEmpty();
}

QString StationKey::text() const
{
    QString text;
    text.reserve(network.size() + transport.size() + service.size() + frequency.size() +
                 qsizetype(2 * keyParts.size()));
    for (const auto &[letter, member] : keyParts) {
        if ((this->*member).isEmpty())
            continue;
        if (!text.isEmpty())
            text += u'-';
        text += letter;
        text += this->*member;
    }
    if (text.isEmpty())
        text += nothing;
    if (occurrence > 1)
        text += u'-' + QString::number(occurrence);
    return text;
}

QString digitsOf(QStringView text)
{
    text = text.trimmed();
    while (text.size() > 1 && text.startsWith(u'0'))
        text = text.sliced(1);
    if (text.size() > mostDigits)
        return {};
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return {};
    }
    return text.toString();
}

QStringList stationKeys(const StationList &stations)
{
    QHash<QString, qsizetype> counts;
    counts.reserve(static_cast<qsizetype>(stations.size()));
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(stations.size()));
    for (const StationPtr &station : stations) {
        StationKey key = StationKey::of(*station);
        const QString first = key.text();
        key.occurrence = ++counts[first];
        texts.append(key.occurrence == 1 ? first : key.text());
    }
    return texts;
}

QHash<const LGStation *, QString> keysByStation(const StationList &stations)
{
    const QStringList texts = stationKeys(stations);
    QHash<const LGStation *, QString> keys;
    keys.reserve(texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i)
        keys.insert(stations[static_cast<std::size_t>(i)].get(), texts[i]);
    return keys;
}

} // namespace quillet
