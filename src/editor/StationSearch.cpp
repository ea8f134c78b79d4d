#include "editor/StationSearch.h"

#include "model/CleanName.h"

namespace quillet {

StationSearch::StationSearch(const QString &text) : m_wanted(text.toLower()) {}

bool StationSearch::finds(const LGStation &station)
{
    return fits(station.stationName()) || (station.isRenamed() && fits(station.shownName()));
}

bool StationSearch::fits(const QString &name)
{
    if (isIn(name))
        return true;
    const QString clean = cleanName(name);
    const bool isSame = clean.constData() == name.constData(); // as it mostly is
    return !isSame && isIn(clean);
}

bool StationSearch::isIn(const QString &name)
{
    m_lowered.resize(name.size());
    QChar *out = m_lowered.data();
    for (const QChar c : name) {
        if (c.unicode() >= 0x80) {
            m_lowered = name.toLower(); // where one character may become several
            break;
        }
        *out++ = c >= u'A' && c <= u'Z' ? QChar(c.unicode() | 0x20) : c;
    }
    return QStringView(m_lowered).contains(m_wanted);
}

std::optional<qsizetype> StationSearch::next(const StationList &stations, qsizetype place,
                                             bool isForward)
{
    const auto count = static_cast<qsizetype>(stations.size());
    qsizetype from = place;
    if (place < 0 && !isForward)
        from = 0;
    for (qsizetype i = 1; i <= count; ++i) {
        const qsizetype each = (from + (isForward ? i : count - i)) % count;
        if (finds(*stations[static_cast<std::size_t>(each)]))
            return each;
    }
    return {};
}

} // namespace quillet
