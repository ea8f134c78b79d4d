#include "model/LGStation.h"

#include "model/ItemWriter.h"
#include "model/NameDecoding.h"
#include "model/ServiceKind.h"
#include "model/StationSource.h"
#include "support/TextConversion.h"
#include "support/TextUnits.h"
#include "support/Utf8Builder.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quillet {

namespace {

const StationKeys &itemKeys()
{
    static const StationKeys keys{
        .keyProgNum = QStringLiteral("prNum"),
        .keyStationName = QStringLiteral("vchName"),
        .keyStationHexName = QStringLiteral("hexVchName"),
        .keyInvisible = QStringLiteral("isInvisable"), // the file's own spelling
        .keySkipped = QStringLiteral("isSkipped"),
        .keyBlocked = QStringLiteral("isBlocked"),
        .keySourceIndex = QStringLiteral("sourceIndex"),
        .keyServiceType = QStringLiteral("serviceType"),
        .keyService_id = QStringLiteral("service_id"),
        .keyTransport_id = QStringLiteral("transport_id"),
        .keyOriginalNetwork_id = QStringLiteral("original_network_id"),
        .keyNetwork_id = QStringLiteral("network_id"),
        .keyFrequency = QStringLiteral("frequency"),
        .keySatellite = QStringLiteral("usSatelliteHandle"),
        .keyScrambled = QStringLiteral("scrambled"),
    };
    return keys;
}

struct SourceMapping
{
    qint64 sourceIndex; ///< as the file gives it
    StationSource source;
};

constexpr std::array sourceMappings{
    SourceMapping{1, StationSource::Antenna},   SourceMapping{2, StationSource::Analogue},
    SourceMapping{3, StationSource::Cable},     SourceMapping{4, StationSource::Analogue},
    SourceMapping{5, StationSource::Analogue},  SourceMapping{6, StationSource::Analogue},
    SourceMapping{7, StationSource::Satellite},
};

/// A sign and digits, nothing else; none for anything else and on overflow.
template<typename View>
std::optional<qint64> decimalNumber(View text)
{
    const bool negative = !text.isEmpty() && unitOf(text.front()) == u'-';
    if (negative || (!text.isEmpty() && unitOf(text.front()) == u'+'))
        text = text.sliced(1);
    if (text.isEmpty())
        return {};
    const quint64 limit = static_cast<quint64>(std::numeric_limits<qint64>::max()) + negative;
    quint64 number = 0;
    for (const auto c : text) {
        if (unitOf(c) < u'0' || unitOf(c) > u'9')
            return {};
        const auto digit = static_cast<quint64>(unitOf(c) - u'0');
        if (number > (limit - digit) / 10)
            return {};
        number = number * 10 + digit;
    }
    return static_cast<qint64>(negative ? 0 - number : number);
}

/// Collects an item as text.
struct TextOutput
{
    void append(QStringView part) { text.append(part); }
    void append(QLatin1String part) { text.append(part); }
    void append(QByteArrayView utf8) { text.append(textFromUtf8(utf8)); }

    QString text;
};

} // namespace

LGStation::LGStation(Dictionary entry, qint64 origIndex)
    : m_keys(&itemKeys()), m_entry(std::move(entry)), m_origPos(origIndex)
{
    // Deliberately the base class's reading: a subclass brings its own keys afterwards.
    m_rawNumber = LGStation::getIntValue(m_keys->keyProgNum);
    m_numberState = NumberState::Read;
    m_isRadio = m_rawNumber && (*m_rawNumber & radioMark) != 0;
}

std::optional<qint64> LGStation::getIntValue(const QString &key) const
{
    const qsizetype position = m_entry.indexOf(key);
    return position == KeyTable::none ? std::nullopt : intValueAt(position);
}

std::optional<qint64> LGStation::intValueAt(qsizetype position) const
{
    if (const std::optional<QByteArrayView> bytes = m_entry.bytesRead(position))
        return decimalNumber(*bytes);
    const Value &value = m_entry.at(position).value;
    if (const QString *text = value.string())
        return decimalNumber(QStringView(*text));
    return value.wholeNumber();
}

std::optional<bool> LGStation::getBoolValue(const QString &key) const
{
    const qsizetype position = m_entry.indexOf(key);
    if (position == KeyTable::none)
        return {};
    if (const std::optional<QByteArrayView> bytes = m_entry.bytesRead(position))
        return decimalNumber(*bytes).value_or(0) > 0;
    const Value &value = m_entry.at(position).value;
    if (const bool *boolean = value.boolean())
        return *boolean;
    if (const QString *text = value.string())
        return decimalNumber(QStringView(*text)).value_or(0) > 0;
    return {};
}

void LGStation::setBoolValue(bool value, const QString &key)
{
    setValue(key, value ? QStringLiteral("1") : QStringLiteral("0"));
}

std::optional<QString> LGStation::textValue(const QString &key) const
{
    return m_entry.text(key);
}

QString LGStation::stationName() const
{
    if (!m_name.isEmpty())
        return m_name;
    m_name = LGStation::readName();
    if (!m_name.isEmpty())
        m_usesEnvelope = true;
    return m_name;
}

QString LGStation::readName() const
{
    const qsizetype position = m_entry.indexOf(m_keys->keyStationName);
    if (position != KeyTable::none) {
        if (const std::optional<QByteArrayView> bytes = m_entry.bytesRead(position))
            return decodeUtf8Envelope(*bytes);
    }
    QString candidate;
    if (std::optional<QString> name = textValue(m_keys->keyStationName))
        candidate = *std::move(name);
    else if (const std::optional<QString> hex = textValue(m_keys->keyStationHexName))
        candidate = decodeHexName(*hex);
    return decodeUtf8Envelope(candidate);
}

void LGStation::setStationName(const QString &name)
{
    if (name.isEmpty())
        return;
    if (!m_nameAsMade)
        m_nameAsMade = std::make_unique<std::optional<QString>>(textValue(m_keys->keyStationName));
    setValue(m_keys->keyStationName, name);
}

bool LGStation::isRenamed() const
{
    return m_nameAsMade && *m_nameAsMade != textValue(m_keys->keyStationName);
}

QString LGStation::shownName() const
{
    QString cached = stationName();
    if (!m_nameAsMade)
        return cached;
    return isRenamed() ? textValue(m_keys->keyStationName).value_or(cached) : readName();
}

LGStation::RememberedName LGStation::rememberedName() const
{
    RememberedName name{m_name, {}};
    if (m_nameAsMade)
        name.asMade = *m_nameAsMade;
    return name;
}

void LGStation::setRememberedName(const RememberedName &name)
{
    m_name = name.read;
    m_nameAsMade =
        name.asMade ? std::make_unique<const std::optional<QString>>(*name.asMade) : nullptr;
}

void LGStation::setEntry(Dictionary entry)
{
    m_entry = std::move(entry);
    m_numberState = NumberState::Unknown;
}

void LGStation::swapContent(LGStation &other)
{
    std::swap(m_entry, other.m_entry);
    std::swap(m_name, other.m_name);
    std::swap(m_nameAsMade, other.m_nameAsMade);
    std::swap(m_rawNumber, other.m_rawNumber);
    std::swap(m_numberState, other.m_numberState);
    std::swap(m_isRadio, other.m_isRadio);
    std::swap(m_usesEnvelope, other.m_usesEnvelope);
}

void LGStation::setKeys(const StationKeys &keys)
{
    m_keys = &keys;
    m_numberState = NumberState::Unknown;
}

void LGStation::setValue(const QString &key, Value value)
{
    m_entry.insert(key, std::move(value));
    m_numberState = NumberState::Unknown;
}

std::optional<qint64> LGStation::rawNumber() const
{
    if (m_numberState == NumberState::Unknown) {
        m_rawNumber = getIntValue(m_keys->keyProgNum);
        m_numberState = NumberState::Read;
    }
    return m_rawNumber;
}

qint64 LGStation::progNum() const
{
    const std::optional<qint64> number = rawNumber();
    return number ? *number & progNumMask : missingProgNum;
}

qint64 LGStation::getRawProgNum() const
{
    return rawNumber().value_or(missingProgNum);
}

QString LGStation::progNumString() const
{
    return QString::number(progNum());
}

void LGStation::setProgramNum(qint64 number)
{
    const qint64 raw = m_isRadio ? number | radioMark : number;
    setValue(m_keys->keyProgNum, QString::number(raw));
    keepRawNumber(raw, canCarry(number));
}

void LGStation::keepRawNumber(qint64 raw, bool isPlain)
{
    m_rawNumber = raw;
    m_numberState = isPlain ? NumberState::Plain : NumberState::Read;
}

bool LGStation::hasPlainNumber() const
{
    if (m_numberState != NumberState::Plain && readsPlainNumber())
        m_numberState = NumberState::Plain;
    return m_numberState == NumberState::Plain;
}

bool LGStation::readsPlainNumber() const
{
    const std::optional<QString> text = textValue(m_keys->keyProgNum);
    return text && *text == QString::number(m_isRadio ? progNum() | radioMark : progNum());
}

QStringList LGStation::numberKeys() const
{
    return {m_keys->keyProgNum};
}

std::optional<Value> LGStation::field(const QString &key) const
{
    const qsizetype position = m_entry.indexOf(key);
    if (position == KeyTable::none)
        return {};
    if (std::optional<QString> text = m_entry.text(position))
        return Value(*std::move(text));
    return m_entry.at(position).value;
}

void LGStation::setField(const QString &key, const std::optional<Value> &content)
{
    if (content) {
        setValue(key, *content);
    } else {
        m_entry.remove(key);
        m_numberState = NumberState::Unknown;
    }
    // A name that was first read from a field that is no more was never the station's.
    if (key == m_keys->keyStationName && m_nameAsMade && !isRenamed() && m_name != readName())
        m_name.clear();
}

bool LGStation::isInvisible() const
{
    return getBoolValue(m_keys->keyInvisible).value_or(false);
}

bool LGStation::isSkipped() const
{
    return getBoolValue(m_keys->keySkipped).value_or(false);
}

bool LGStation::isBlocked() const
{
    return getBoolValue(m_keys->keyBlocked).value_or(false);
}

void LGStation::setSkipped(bool skipped)
{
    setBoolValue(skipped, m_keys->keySkipped);
}

void LGStation::setBlocked(bool blocked)
{
    setBoolValue(blocked, m_keys->keyBlocked);
}

std::optional<QString> LGStation::service_id() const
{
    return textValue(m_keys->keyService_id);
}

std::optional<QString> LGStation::transport_id() const
{
    return textValue(m_keys->keyTransport_id);
}

std::optional<QString> LGStation::originalNetwork_id() const
{
    return textValue(m_keys->keyOriginalNetwork_id);
}

std::optional<QString> LGStation::shownText(const QString &key) const
{
    const qsizetype position = m_entry.indexOf(key);
    if (position == KeyTable::none)
        return {};
    if (std::optional<QString> text = m_entry.text(position))
        return text->isEmpty() ? std::nullopt : std::move(text);
    const std::optional<qint64> number = m_entry.at(position).value.wholeNumber();
    return number ? std::optional(QString::number(*number)) : std::nullopt;
}

std::optional<QString> LGStation::networkIdText() const
{
    return shownText(m_keys->keyNetwork_id);
}

std::optional<QString> LGStation::transportStreamIdText() const
{
    return shownText(m_keys->keyTransport_id);
}

std::optional<QString> LGStation::serviceIdText() const
{
    return shownText(m_keys->keyService_id);
}

std::optional<QString> LGStation::satellite() const
{
    // Sets write 0 for stations of cable and antenna.
    const bool isOfSatellite = mappedSourceIndex() == static_cast<int>(StationSource::Satellite);
    return isOfSatellite ? shownText(m_keys->keySatellite) : std::nullopt;
}

std::optional<qint64> LGStation::frequency() const
{
    const std::optional<qint64> given = getIntValue(m_keys->keyFrequency);
    return given && *given > 0 ? given : std::nullopt;
}

std::optional<bool> LGStation::isEncrypted() const
{
    const qsizetype position = m_entry.indexOf(m_keys->keyScrambled);
    if (position == KeyTable::none)
        return {};
    if (const std::optional<qint64> number = intValueAt(position))
        return *number > 0;
    const bool *given = m_entry.at(position).value.boolean();
    return given ? std::optional(*given) : std::nullopt;
}

int LGStation::mappedSourceIndex() const
{
    const std::optional<qint64> given = getIntValue(m_keys->keySourceIndex);
    const auto found = std::find_if(sourceMappings.begin(), sourceMappings.end(),
                                    [&given](const auto &row) { return row.sourceIndex == given; });
    return static_cast<int>(found == sourceMappings.end() ? StationSource::Analogue
                                                          : found->source);
}

bool LGStation::isTVStation() const
{
    const std::optional<qint64> code = getIntValue(m_keys->keyServiceType);
    return code && serviceKindFacts(*code).isTV;
}

bool LGStation::isRadioStation() const
{
    const std::optional<qint64> code = getIntValue(m_keys->keyServiceType);
    return code && serviceKindFacts(*code).isRadio;
}

QString LGStation::channelType() const
{
    const std::optional<qint64> code = getIntValue(m_keys->keyServiceType);
    return code ? QString(serviceKindFacts(*code).channelType) : QStringLiteral("?");
}

QString LGStation::channelTypeForDisplay(int sourceIndex) const
{
    const std::optional<qint64> code = getIntValue(m_keys->keyServiceType);
    if (!code)
        return QStringLiteral("?");
    const ServiceKindFacts &facts = serviceKindFacts(*code);
    const bool inAntenna = sourceIndex == static_cast<int>(StationSource::Antenna);
    return inAntenna ? facts.displayInAntenna : facts.display;
}

bool LGStation::matchesType(int filter, int sourceIndex) const
{
    const qint64 code =
        getIntValue(m_keys->keyServiceType).value_or(static_cast<qint64>(ServiceKind::DigitalTV));
    const ServiceKindFacts &facts = serviceKindFacts(code);
    if (facts.filterClass == FilterClass::Radio)
        return false;
    const std::optional<TypeFilter> known = typeFilter(filter);
    if (!known)
        qFatal("Unexpected case of TypeFilter: %d", filter);
    const bool inAntenna = sourceIndex == static_cast<int>(StationSource::Antenna);
    return passes(inAntenna ? facts.filterClassInAntenna : facts.filterClass, *known);
}

QString LGStation::getXMLItem() const
{
    TextOutput output;
    writeItem(m_entry, m_keys->keyStationName, output);
    return output.text;
}

void LGStation::appendXMLItem(Utf8Builder &output) const
{
    writeItem(m_entry, m_keys->keyStationName, output);
}

QString LGStation::description() const
{
    Utf8Builder text;
    appendDescription(text);
    return QString::fromUtf8(text.text());
}

void LGStation::appendDescription(Utf8Builder &output) const
{
    output.append(className());
    output.append(QLatin1String(" [Index = "));
    output.appendNumber(m_origPos);
    output.append(QLatin1String(m_isDirty ? ", dirty = true] #" : ", dirty = false] #"));
    output.appendNumber(progNum());
    output.append(QLatin1String(" "));
    output.append(QStringView(stationName()));
}

QLatin1String LGStation::className() const
{
    return QLatin1String("LGStation");
}

} // namespace quillet
