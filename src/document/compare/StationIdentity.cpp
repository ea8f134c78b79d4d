#include "document/compare/StationIdentity.h"

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

/// Letters that have one form alone, and whose case is theirs alone: most of them.
bool isSimple(QChar c)
{
    const char16_t u = c.unicode();
    return u < 0x80 || (u >= 0xC0 && u < 0x130 && u != 0xDF) || (u >= 0x141 && u < 0x149) ||
           (u >= 0x14A && u < 0x17F) || (u >= 0x400 && u < 0x480);
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
        if (const std::optional<qint64> number = plainNumber(*text))
            return number;
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
    const QString name = station.shownName();
    // Shown of a record of that variant which has none.
    const bool mayBeNone = name == QLatin1String("??");
    return mayBeNone && !station.entry().string(station.keys().keyStationName) ? QString() : name;
}

QString looseName(const QString &name)
{
    QString loose = cleanName(name);
    if (std::all_of(loose.begin(), loose.end(), isSimple)) {
        const auto end = std::remove(loose.begin(), loose.end(), u' ');
        loose.truncate(end - loose.begin());
        for (QChar &c : loose)
            c = c.toCaseFolded();
        return loose;
    }
    if (loose.size() <= longestNormalized)
        loose = loose.normalized(QString::NormalizationForm_KC);
    return loose.toCaseFolded().removeIf(isUnseen);
}

} // namespace quillet
