#include "editor/TypeAhead.h"

#include "document/edit/Renumbering.h"
#include "model/CleanName.h"

#include <algorithm>

namespace quillet {

namespace {

bool begins(const LGStation &station, const QString &text)
{
    return cleanName(station.shownName()).trimmed().startsWith(text, Qt::CaseInsensitive);
}

bool isOneLetter(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [&text](QChar c) {
        return c.toCaseFolded() == text.front().toCaseFolded();
    });
}

} // namespace

std::optional<qsizetype> TypeAhead::type(const QString &letters, const StationList &rows,
                                         qsizetype current)
{
    m_text += letters;
    const auto count = static_cast<qsizetype>(rows.size());
    if (m_text.isEmpty() || count == 0)
        return {};
    const bool goesOn = isOneLetter(m_text);
    const QString wanted = goesOn ? m_text.first(1) : m_text;
    const qsizetype start = goesOn ? current + 1 : qMax<qsizetype>(current, 0);
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype row = (start + i) % count;
        if (begins(*rows[static_cast<std::size_t>(row)], wanted))
            return row;
    }
    return {};
}

bool TypeAhead::isNumber() const
{
    return !m_text.isEmpty() && std::all_of(m_text.begin(), m_text.end(),
                                            [](QChar c) { return c >= u'0' && c <= u'9'; });
}

std::optional<qsizetype> TypeAhead::rowOfNumber(const StationList &rows) const
{
    bool fits = false;
    const qint64 number = isNumber() ? m_text.toLongLong(&fits) : 0;
    const std::size_t row = fits ? indexForExactProgNum(rows, number) : rows.size();
    return row < rows.size() ? std::optional(static_cast<qsizetype>(row)) : std::nullopt;
}

} // namespace quillet
