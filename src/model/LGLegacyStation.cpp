#include "model/LGLegacyStation.h"

#include "model/FileWords.h"
#include "model/StationSource.h"
#include "support/TextConversion.h"
#include "xml/JSON.h"

#include <algorithm>

namespace quillet {

namespace {

const StationKeys &legacyKeys()
{
    static const StationKeys keys{
        .keyProgNum = fileword::majorNumber.toString(),
        .keyStationName = QStringLiteral("channelName"),
        .keyStationHexName = QStringLiteral("hexVchName"),
        .keyInvisible = QStringLiteral("Invisible"),
        .keySkipped = QStringLiteral("skipped"),
        .keyBlocked = QStringLiteral("optrBlocked"),
        .keySourceIndex = QStringLiteral("sourceIndex"),
        .keyServiceType = QStringLiteral("serviceType"),
        .keyService_id = QStringLiteral("SVCID"),
        .keyTransport_id = QStringLiteral("TSID"),
        .keyOriginalNetwork_id = QStringLiteral("ONID"),
        .keyNetwork_id = QStringLiteral("networkId"),
        .keyFrequency = QStringLiteral("frequency"),
        .keySatellite = fileword::satelliteId.toString(),
        .keyScrambled = QStringLiteral("scrambled"),
    };
    return keys;
}

struct NamedSource
{
    QStringView name; ///< as the file gives it
    StationSource source;
};

constexpr std::array namedSources{
    NamedSource{u"CABLE DIGITAL", StationSource::Cable},
    NamedSource{u"SATELLITE DIGITAL", StationSource::Satellite},
    NamedSource{u"CABLE ANALOG", StationSource::Antenna},
};

} // namespace

LGLegacyStation::LGLegacyStation(Dictionary entry, qint64 origIndex)
    : LGStation(std::move(entry), origIndex)
{
    // Only now, so that the radio mark is looked for under the key of the other variant.
    setKeys(legacyKeys());
}

QStringList LGLegacyStation::numberMarks()
{
    return {QStringLiteral("userEditChNumber"), QStringLiteral("userSelCHNo")};
}

QString LGLegacyStation::stationName() const
{
    if (name().isEmpty())
        keepName(readName());
    return name();
}

QString LGLegacyStation::readName() const
{
    const QString *given = entry().string(keys().keyStationName);
    return given ? *given : QStringLiteral("??");
}

int LGLegacyStation::mappedSourceIndex() const
{
    const QString *given = entry().string(keys().keySourceIndex);
    const auto *const found =
        std::find_if(namedSources.begin(), namedSources.end(),
                     [given](const NamedSource &row) { return given && row.name == *given; });
    return static_cast<int>(found == namedSources.end() ? StationSource::Analogue : found->source);
}

void LGLegacyStation::setProgramNum(qint64 number)
{
    setValue(keys().keyProgNum, Value(number));
    for (const QString &mark : numberMarks())
        setValue(mark, Value(qint64(1)));
    keepRawNumber(number, canCarry(number));
}

QStringList LGLegacyStation::numberKeys() const
{
    return QStringList{keys().keyProgNum} + numberMarks();
}

bool LGLegacyStation::readsPlainNumber() const
{
    const QStringList marks = numberMarks();
    return field(keys().keyProgNum) == Value(progNum()) &&
           std::all_of(marks.begin(), marks.end(),
                       [this](const QString &mark) { return field(mark) == Value(qint64(1)); });
}

std::optional<bool> LGLegacyStation::getBoolValue(const QString &key) const
{
    const Value *value = entry().find(key);
    const bool *boolean = value ? value->boolean() : nullptr;
    return boolean ? std::optional(*boolean) : std::nullopt;
}

void LGLegacyStation::setBoolValue(bool value, const QString &key)
{
    setValue(key, Value(value));
}

QLatin1String LGLegacyStation::className() const
{
    return QLatin1String("LGLegacyStation");
}

std::optional<QString> LGLegacyStation::getJSONItem() const
{
    const std::optional<QByteArray> json = toJSON(entry());
    return json ? getAsString(*json) : std::nullopt;
}

} // namespace quillet
