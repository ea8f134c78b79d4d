#include "editor/StationInfo.h"

#include "texts/ShownTexts.h"
#include "xml/FormattedDescription.h"

#include <algorithm>

namespace quillet {

namespace {

/// Surrogates stand for the highest code points, but are lower units than some of one unit.
bool isBeforeByCodePoint(const QString &a, const QString &b)
{
    const auto rank = [](QChar unit) {
        return unit.isSurrogate() ? unit.unicode() + 0x10000 : unit.unicode();
    };
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [&rank](QChar left, QChar right) { return rank(left) < rank(right); });
}

} // namespace

void StationInfo::setStation(const LGStation &station)
{
    m_title = station.shownName();
    m_entry = station.entry();
    m_fields.clear();
    for (const auto &[key, value] : m_entry)
        m_fields.append(key);
    std::stable_sort(m_fields.begin(), m_fields.end(), isBeforeByCodePoint);
}

QString StationInfo::shownContent(qsizetype position) const
{
    const Value *value = m_entry.find(m_fields.at(position));
    const Dictionary *dictionary = value ? value->dictionary() : nullptr;
    const Array *array = value ? value->array() : nullptr;
    return drawnContent(dictionary ? formattedDescription(*dictionary, 0, longestContentShown + 1)
                        : array    ? formattedDescription(*array, 0, longestContentShown + 1)
                                   : content(position));
}

QString StationInfo::content(qsizetype position) const
{
    const Value *value = m_entry.find(m_fields.at(position));
    return value ? value->description() : QStringLiteral("????");
}

} // namespace quillet
