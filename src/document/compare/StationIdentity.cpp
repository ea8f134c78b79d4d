#include "document/compare/StationIdentity.h"

#include "document/compare/StationPairing.h"
#include "model/CleanName.h"

#include <algorithm>

namespace quillet {

namespace {

/// Far more than a name has; putting letters into one form takes too long for endless ones.
constexpr qsizetype longestNormalized = 1000;

/// Of digits that surely fit; none for anything else.
std::optional<qint64> plainNumber(QStringView text)
{
    constexpr qsizetype mostDigits = 18;
    if (text.isEmpty() || text.size() > mostDigits)
        return {};
    qint64 number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return {};
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

bool isASCII(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x80'; });
}

/// Blanks, and signs that nobody sees.
bool isUnseen(QChar c)
{
    return c.isSpace() || c.category() == QChar::Other_Format;
}

} // namespace

std::optional<StationIdentity> IdentityReader::read(const LGStation &station)
{
    const StationKeys &keys = station.keys();
    const Dictionary &entry = station.entry();
    const std::optional<qint64> service = part(entry.find(keys.keyService_id));
    if (!service || *service == 0)
        return {};
    const std::optional<qint64> transport = part(entry.find(keys.keyTransport_id));
    if (!transport)
        return {};
    const std::optional<qint64> network = part(entry.find(keys.keyOriginalNetwork_id));
    if (!network)
        return {};
    return StationIdentity{{*network, *transport, *service}};
}

std::optional<qint64> IdentityReader::part(const Value *value)
{
    if (!value || value->isNull())
        return {};
    if (const QString *text = value->string()) {
        const QStringView told = QStringView(*text).trimmed();
        if (told.isEmpty())
            return {};
        const std::optional<qint64> number = plainNumber(told);
        return number ? *number : numberOf(told.toString());
    }
    const std::optional<qint64> number = value->wholeNumber();
    return number && *number >= 0 ? *number : numberOf(value->description());
}

/// Below 0, where no plain number is.
qint64 IdentityReader::numberOf(const QString &text)
{
    const auto known = m_texts.constFind(text);
    return known != m_texts.cend() ? *known : *m_texts.insert(text, -1 - m_texts.size());
}

QString toldName(const LGStation &station)
{
    // Without one it is shown as if it had the name "??".
    if (isOfLegacyFormat(station) && !station.entry().string(station.keys().keyStationName))
        return {};
    return station.shownName();
}

QString looseName(const QString &name)
{
    QString loose = cleanName(name);
    if (!isASCII(loose)) {
        if (loose.size() <= longestNormalized)
            loose = loose.normalized(QString::NormalizationForm_KC);
        loose = loose.toCaseFolded();
        loose.removeIf(isUnseen);
        return loose;
    }
    const auto end = std::remove(loose.begin(), loose.end(), u' ');
    loose.truncate(end - loose.begin());
    for (QChar &c : loose) {
        if (c >= u'A' && c <= u'Z')
            c = QChar(c.unicode() | 0x20);
    }
    return loose;
}

} // namespace quillet
