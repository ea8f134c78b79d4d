#include "editor/ShownColumns.h"

#include "editor/StationHeader.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QSettings>
#include <QTableView>

#include <algorithm>

namespace quillet {

namespace {

constexpr int nameColumn = columnOf(ColumnContent::Name);
constexpr int narrowestName = 24; ///< in average characters
constexpr double narrowestColumn = 2;
constexpr double widestColumn = 60;
constexpr QChar hiddenSign = u'-';
constexpr QChar widthSign = u'=';

const StationColumn &factsOf(int column)
{
    return stationColumns.at(static_cast<std::size_t>(column));
}

int columnCalled(QStringView identifier)
{
    const StationColumn *found = stationColumn(identifier.toString());
    return found ? columnOf(found->content) : -1;
}

QStringList usualState()
{
    QStringList state;
    for (const StationColumn &column : stationColumns) {
        const QString identifier(column.identifier);
        state.append(column.use == ColumnUse::Extra ? hiddenSign + identifier : identifier);
    }
    return state;
}

} // namespace

ShownColumns::ShownColumns(QTableView &table)
    : QObject(&table), m_table(table),
      m_header(static_cast<StationHeader &>(*table.horizontalHeader()))
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
    useVariant(false);
}

ShownColumns::~ShownColumns()
{
    if (m_remembering.isActive()) // the header may have gone already
        remember();
}

void ShownColumns::useVariant(bool isJSON)
{
    const QString key = isJSON ? QStringLiteral("Columns JSON") : QStringLiteral("Columns XML");
    if (key == m_settingsKey) // a file that is read anew leaves the table as it is
        return;
    if (m_remembering.isActive())
        remember();
    m_settingsKey = key;
    setState(QSettings().value(m_settingsKey, usualState()).toStringList());
}

bool ShownColumns::isShown(int column) const
{
    return !m_header.isSectionHidden(column);
}

void ShownColumns::setShown(int column, bool shown)
{
    if (factsOf(column).use == ColumnUse::Always || shown == isShown(column))
        return;
    // The keyboard would be lost in a cell that nobody sees.
    if (const QModelIndex current = m_table.currentIndex(); !shown && current.column() == column) {
        m_table.selectionModel()->setCurrentIndex(current.siblingAtColumn(nameColumn),
                                                  QItemSelectionModel::NoUpdate);
    }
    m_header.setSectionHidden(column, !shown);
    fitName();
    note();
    remember();
}

bool ShownColumns::areUsual() const
{
    return state() == usualState();
}

void ShownColumns::useUsual()
{
    setState(usualState());
    note();
    remember();
}

QStringList ShownColumns::state() const
{
    QStringList state;
    for (int place = 0; place < m_header.count(); ++place) {
        const int column = m_header.logicalIndex(place);
        QString text = factsOf(column).identifier;
        if (!isShown(column))
            text.prepend(hiddenSign);
        if (const double width = m_widths.at(static_cast<std::size_t>(column)); width > 0)
            text += widthSign + QString::number(width, 'f', 2);
        state.append(text);
    }
    return state;
}

/// Columns that it does not name come last, as they usually are.
void ShownColumns::setState(const QStringList &state)
{
    {
        const QScopedValueRollback settingUp(m_isSettingUp, true);
        m_widths.fill(0);
        int place = 0;
        for (const QString &each : state + usualState()) {
            const bool isHidden = each.startsWith(hiddenSign);
            const QStringView identifier = QStringView(each).sliced(isHidden ? 1 : 0);
            const int column = columnCalled(identifier.left(identifier.indexOf(widthSign)));
            if (column < 0 || m_header.visualIndex(column) < place)
                continue;
            m_header.moveSection(m_header.visualIndex(column), place++);
            m_header.setSectionHidden(column, isHidden && factsOf(column).use != ColumnUse::Always);
            const double width = each.section(widthSign, 1).toDouble();
            if (column != nameColumn && width > 0)
                m_widths.at(static_cast<std::size_t>(column)) =
                    std::clamp(width, narrowestColumn, widestColumn);
        }
    }
    sizeSections();
}

void ShownColumns::note()
{
    m_lastState = state();
    m_remembering.start();
}

void ShownColumns::remember()
{
    m_remembering.stop();
    QSettings().setValue(m_settingsKey, m_lastState);
}

void ShownColumns::noteWidth(int column, int before, int now)
{
    if (m_isSettingUp || column == nameColumn)
        return;
    if (before > 0 && now > 0) { // not hidden or shown
        m_widths.at(static_cast<std::size_t>(column)) =
            static_cast<double>(now) / m_table.fontMetrics().averageCharWidth();
        note();
    }
    fitName();
}

void ShownColumns::sizeSections()
{
    const int character = m_table.fontMetrics().averageCharWidth();
    {
        const QScopedValueRollback settingUp(m_isSettingUp, true);
        for (int column = 0; column < m_header.count(); ++column) {
            if (column == nameColumn)
                continue;
            const double wanted = m_widths.at(static_cast<std::size_t>(column));
            const int usual =
                qMax(factsOf(column).width * character, m_header.widthOfTitle(column));
            m_header.resizeSection(column, wanted > 0 ? qRound(wanted * character) : usual);
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
