#include "document/compare/StationIdentity.h"

#include "model/CleanName.h"
#include "support/TextUnits.h"

#include <algorithm>

namespace quillet {

namespace {

/// Far more than a name has; putting letters into one form takes too long for endless ones.
constexpr qsizetype longestNormalized = 1000;

/// Of digits that surely fit; none for anything else.
template<typename View>
std::optional<qint64> plainNumber(View text)
{
    constexpr qsizetype mostDigits = 18;
    if (text.isEmpty() || text.size() > mostDigits)
        return {};
    qint64 number = 0;
    for (const auto c : text) {
        if (unitOf(c) < u'0' || unitOf(c) > u'9')
            return {};
        number = number * 10 + (unitOf(c) - u'0');
    }
    return number;
}

/// Letters that are shown as they are and have one form alone, and whose case is theirs alone: most
/// of them.
bool isSimple(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x20 && u < 0x7F) || (u >= 0xC0 && u < 0x130 && u != 0xDF) ||
           (u >= 0x141 && u < 0x149) || (u >= 0x14A && u < 0x17F) || (u >= 0x400 && u < 0x480);
}

QChar simpleFolded(QChar c)
{
    if (c >= u'\x80')
        return c.toCaseFolded();
    return c >= u'A' && c <= u'Z' ? QChar(c.unicode() | 0x20) : c;
}

/// Blanks, and signs that nobody sees.
bool isUnseen(QChar c)
{
    return c.isSpace() || c.category() == QChar::Other_Format;
}

} // namespace

std::optional<StationIdentity> IdentityReader::read(const LGStation &station)
{
    if (station.entry().keys() != m_keys)
        findParts(station);
    const std::optional<qint64> service = part(station, Service);
    if (!service || *service == 0)
        return {};
    const std::optional<qint64> transport = part(station, Transport);
    if (!transport)
        return {};
    const std::optional<qint64> network = part(station, Network);
    if (!network)
        return {};
    return StationIdentity{{*network, *transport, *service}};
}

void IdentityReader::findParts(const LGStation &station)
{
    m_keys = station.entry().keys();
    const StationKeys &keys = station.keys();
    const auto placeOf = [this](const QString &key) {
        return m_keys ? m_keys->indexOf(key) : KeyTable::none;
    };
    m_places = {placeOf(keys.keyOriginalNetwork_id), placeOf(keys.keyTransport_id),
                placeOf(keys.keyService_id)};
}

std::optional<qint64> IdentityReader::part(const LGStation &station, Part part)
{
    const qsizetype place = m_places.at(part);
    if (place == KeyTable::none)
        return {};
    const std::optional<QByteArrayView> bytes = station.entry().bytesRead(place);
    if (const auto number = bytes ? plainNumber(*bytes) : std::nullopt)
        return number;
    const Value &value = station.entry().at(place).value;
    if (value.isNull())
        return {};
    if (const QString *text = value.string()) {
        if (const std::optional<qint64> number = plainNumber(QStringView(*text)))
            return number;
        const QStringView told = QStringView(*text).trimmed();
        if (told.isEmpty())
            return {};
        const std::optional<qint64> number = plainNumber(told);
        return number ? *number : numberOf(told.toString());
    }
    const std::optional<qint64> number = value.wholeNumber();
    return number && *number >= 0 ? *number : numberOf(value.description());
}

/// Below 0, where no plain number is.
qint64 IdentityReader::numberOf(const QString &text)
{
    const auto known = m_texts.constFind(text);
    return known != m_texts.cend() ? *known : *m_texts.insert(text, -1 - m_texts.size());
}

QString toldName(const LGStation &station)
{
    const QString name = station.shownName();
    // Shown of a record of that variant which has none.
    const bool mayBeNone = name == QLatin1String("??");
    return mayBeNone && !station.entry().text(station.keys().keyStationName) ? QString() : name;
}

QString looseName(QStringView name)
{
    if (std::all_of(name.begin(), name.end(), isSimple)) {
        QString loose(name.size(), Qt::Uninitialized);
        QChar *end = loose.data();
        for (const QChar c : name) {
            if (c != u' ')
                *end++ = simpleFolded(c);
        }
        loose.truncate(end - loose.constData());
        return loose;
    }
    QString loose = cleanName(name.toString());
    if (loose.size() <= longestNormalized)
        loose = loose.normalized(QString::NormalizationForm_KC);
    return loose.toCaseFolded().removeIf(isUnseen);
}

} // namespace quillet
