#include "editor/StationFilter.h"

#include "model/CleanName.h"

namespace quillet {

namespace {

/// Lower-cases one text after another into the same memory.
class LowerCase
{
public:
    /// Valid until the next one.
    QStringView of(const QString &text)
    {
        m_text.resize(text.size());
        QChar *out = m_text.data();
        for (const QChar c : text) {
            if (c.unicode() >= 0x80) {
                m_text = text.toLower(); // where one character may become several
                break;
            }
            *out++ = c >= u'A' && c <= u'Z' ? QChar(c.unicode() | 0x20) : c;
        }
        return m_text;
    }

private:
    QString m_text;
};

} // namespace

void StationFilter::clear()
{
    m_filtered.reset();
    m_base.reset();
}

void StationFilter::filterStationsFor(const QString &text, const StationListPtr &stations)
{
    clear();
    if (text.isEmpty())
        return;
    m_base = stations;
    StationList &matching = m_filtered.emplace();
    if (!stations)
        return;
    const QString wanted = text.toLower();
    LowerCase lowerCase;
    const auto holds = [&lowerCase, &wanted](const QString &name) {
        return lowerCase.of(name).contains(wanted);
    };
    const auto fits = [&holds](const QString &name) {
        if (holds(name))
            return true;
        const QString clean = cleanName(name);
        const bool isSame = clean.constData() == name.constData(); // as it mostly is
        return !isSame && holds(clean);
    };
    for (const StationPtr &station : *stations) {
        if (fits(station->stationName()) || (station->isRenamed() && fits(station->shownName())))
            matching.push_back(station);
    }
}

void StationFilter::useTypeFilter(int tag, int source, const StationListPtr &stations)
{
    if (tag == static_cast<int>(TypeFilter::All))
        return;
    if (!m_filtered) {
        m_base = stations;
        m_filtered = stations ? *stations : StationList();
    }
    std::erase_if(*m_filtered, [tag, source](const StationPtr &station) {
        return !station->matchesType(tag, source);
    });
}

} // namespace quillet
