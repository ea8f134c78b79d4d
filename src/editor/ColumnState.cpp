#include "editor/ColumnState.h"

#include "texts/StationColumns.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr double narrowestColumn = 2;
constexpr double widestColumn = 60;
constexpr QChar hiddenSign = u'-';
constexpr QChar widthSign = u'=';

const StationColumn &factsOf(int column)
{
    return stationColumns.at(static_cast<std::size_t>(column));
}

} // namespace

ColumnState ColumnState::usual()
{
    return of({});
}

ColumnState ColumnState::of(const QStringList &texts)
{
    ColumnState state;
    const auto isNamed = [&state](int column) {
        return std::any_of(state.m_columns.begin(), state.m_columns.end(),
                           [column](const Column &each) { return each.column == column; });
    };
    for (const QString &text : texts) {
        const bool isHidden = text.startsWith(hiddenSign);
        const QString identifier = text.sliced(isHidden ? 1 : 0).section(widthSign, 0, 0);
        const StationColumn *facts = stationColumn(identifier);
        if (!facts || isNamed(columnOf(facts->content)))
            continue;
        const double width = text.section(widthSign, 1).toDouble();
        const bool hasWidth = width > 0 && facts->content != ColumnContent::Name;
        state.append({.column = columnOf(facts->content),
                      .isShown = !isHidden || facts->use == ColumnUse::Always,
                      .width = hasWidth ? std::clamp(width, narrowestColumn, widestColumn) : 0});
    }
    for (const StationColumn &facts : stationColumns) {
        if (!isNamed(columnOf(facts.content)))
            state.append({columnOf(facts.content), facts.use != ColumnUse::Extra});
    }
    return state;
}

QStringList ColumnState::texts() const
{
    QStringList texts;
    if (m_columns == usual().m_columns)
        return texts;
    for (const Column &each : m_columns) {
        QString text = factsOf(each.column).identifier;
        if (!each.isShown)
            text.prepend(hiddenSign);
        if (each.width > 0)
            text += widthSign + QString::number(each.width, 'f', 2);
        texts.append(text);
    }
    return texts;
}

bool ColumnState::isShown(int column) const
{
    return std::any_of(m_columns.begin(), m_columns.end(), [column](const Column &each) {
        return each.column == column && each.isShown;
    });
}

void ColumnState::setShown(int column, bool shown)
{
    for (Column &each : m_columns) {
        if (each.column == column)
            each.isShown = shown || factsOf(column).use == ColumnUse::Always;
    }
}

} // namespace quillet
