#include "editor/ShownColumns.h"

#include "editor/StationHeader.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QTableView>

namespace quillet {

namespace {

constexpr int nameColumn = columnOf(ColumnContent::Name);
constexpr int narrowestName = 24; ///< in average characters

const StationColumn &factsOf(int column)
{
    return stationColumns.at(static_cast<std::size_t>(column));
}

} // namespace

ShownColumns::ShownColumns(QTableView &table, Settings &settings)
    : QObject(&table), m_table(table),
      m_header(static_cast<StationHeader &>(*table.horizontalHeader())), m_settings(settings)
{
    m_remembering.setSingleShot(true);
    m_remembering.setInterval(500);
    connect(&m_remembering, &QTimer::timeout, this, &ShownColumns::remember);
    connect(&m_header, &QHeaderView::sectionResized, this, &ShownColumns::noteWidth);
    connect(&m_header, &QHeaderView::sectionMoved, this, [this] {
        if (!m_isSettingUp)
            note();
    });
    // The header counts its sections anew then, hidden ones for a while included.
    connect(table.model(), &QAbstractItemModel::layoutAboutToBeChanged, this,
            [this] { m_isSettingUp = true; });
    connect(table.model(), &QAbstractItemModel::layoutChanged, this, [this] {
        m_isSettingUp = false;
        fitName();
    });
    table.installEventFilter(this);
    table.viewport()->installEventFilter(this);
    connect(&settings, &Settings::changed, this, [this](Setting setting) {
        if (setting == m_variant)
            follow();
    });
    m_lastState = settings.texts(m_variant);
    setState(ColumnState::of(m_lastState));
}

ShownColumns::~ShownColumns()
{
    if (m_remembering.isActive()) // the header may have gone already
        remember();
}

void ShownColumns::useVariant(bool isJSON)
{
    const Setting variant = isJSON ? Setting::JSONColumns : Setting::XMLColumns;
    if (variant == m_variant) // a file that is read anew leaves the table as it is
        return;
    if (m_remembering.isActive())
        remember();
    m_variant = variant;
    m_lastState = m_settings.texts(m_variant);
    setState(ColumnState::of(m_lastState));
}

void ShownColumns::follow()
{
    const QStringList now = m_settings.texts(m_variant);
    if (now == m_lastState)
        return;
    m_remembering.stop();
    m_lastState = now;
    setState(ColumnState::of(now));
}

bool ShownColumns::isShown(int column) const
{
    return !m_header.isSectionHidden(column);
}

void ShownColumns::setShown(int column, bool shown)
{
    if (factsOf(column).use == ColumnUse::Always || shown == isShown(column))
        return;
    m_header.setSectionHidden(column, !shown);
    leaveHidden();
    fitName();
    note();
    remember();
}

/// The keyboard would be lost in a cell that nobody sees.
void ShownColumns::leaveHidden()
{
    const QModelIndex current = m_table.currentIndex();
    if (current.isValid() && !isShown(current.column()))
        m_table.selectionModel()->setCurrentIndex(current.siblingAtColumn(nameColumn),
                                                  QItemSelectionModel::NoUpdate);
}

bool ShownColumns::areUsual() const
{
    return state().texts().isEmpty();
}

void ShownColumns::useUsual()
{
    setState(ColumnState::usual());
    note();
    remember();
}

ColumnState ShownColumns::state() const
{
    ColumnState state;
    for (int place = 0; place < m_header.count(); ++place) {
        const int column = m_header.logicalIndex(place);
        state.append({.column = column,
                      .isShown = isShown(column),
                      .width = m_widths.at(static_cast<std::size_t>(column))});
    }
    return state;
}

void ShownColumns::setState(const ColumnState &state)
{
    {
        const QScopedValueRollback settingUp(m_isSettingUp, true);
        int place = 0;
        for (const auto &[column, isShown, width] : state.columns()) {
            m_header.moveSection(m_header.visualIndex(column), place++);
            m_header.setSectionHidden(column, !isShown);
            m_widths.at(static_cast<std::size_t>(column)) = width;
        }
    }
    leaveHidden();
    sizeSections();
}

void ShownColumns::note()
{
    m_lastState = state().texts();
    m_remembering.start();
}

void ShownColumns::remember()
{
    m_remembering.stop();
    m_settings.set(m_variant, m_lastState);
}

/// While the font grows, the header makes sections wider by itself.
void ShownColumns::noteWidth(int column, int before, int now)
{
    const bool isFontNew = m_table.fontMetrics().averageCharWidth() != m_character;
    if (m_isSettingUp || isFontNew || column == nameColumn)
        return;
    if (before > 0 && now > 0) { // not hidden or shown
        m_widths.at(static_cast<std::size_t>(column)) = static_cast<double>(now) / m_character;
        note();
    }
    fitName();
}

void ShownColumns::sizeSections()
{
    m_character = m_table.fontMetrics().averageCharWidth();
    {
        const QScopedValueRollback settingUp(m_isSettingUp, true);
        for (int column = 0; column < m_header.count(); ++column) {
            if (column == nameColumn)
                continue;
            const double wanted = m_widths.at(static_cast<std::size_t>(column));
            const int usual =
                qMax(factsOf(column).width * m_character, m_header.widthOfTitle(column));
            m_header.resizeSection(column, wanted > 0 ? qRound(wanted * m_character) : usual);
        }
    }
    fitName();
}

void ShownColumns::fitName()
{
    if (m_isSettingUp)
        return;
    const QScopedValueRollback settingUp(m_isSettingUp, true);
    const int others = m_header.length() - m_header.sectionSize(nameColumn);
    const int least = narrowestName * m_table.fontMetrics().averageCharWidth();
    const bool isRoomy = m_table.viewport()->width() - others >= least;
    m_header.setSectionResizeMode(nameColumn, isRoomy ? QHeaderView::Stretch : QHeaderView::Fixed);
    if (!isRoomy)
        m_header.resizeSection(nameColumn, least);
}

bool ShownColumns::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_table && event->type() == QEvent::FontChange)
        sizeSections();
    else if (watched != &m_table && event->type() == QEvent::Resize)
        fitName();
    return QObject::eventFilter(watched, event);
}

} // namespace quillet
