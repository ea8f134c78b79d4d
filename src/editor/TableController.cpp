#include "editor/TableController.h"

#include "editor/EditorQuestions.h"
#include "editor/ListChange.h"
#include "editor/NoticeTexts.h"
#include "files/FileNames.h"
#include "support/KXFileLog.h"

#include <QHash>

#include <algorithm>

namespace quillet {

TableController::TableController(EditorOutlets &outlets, QObject *parent)
    : QObject(parent), m_outlets(outlets)
{
}

void TableController::viewDidLoad()
{
    OpenFileLog(QStringLiteral("XT"));
    m_outlets.setTVButtonOn(true);
    updateButtons();
    for (const StationSource source : stationSources)
        m_outlets.setSegmentEnabled(static_cast<int>(source), false);
}

bool TableController::populateFromTLLDoc(TLLDocument &document, const Error &error)
{
    m_shown.setDocument(&document);
    emit documentChanged(&document);
    m_loadFailed = !error.isEmpty();
    if (m_loadFailed) {
        m_outlets.setText(EditorOutlets::Field::FileName, QStringLiteral("--"));
        showError(error.text(), qtTrId("kLoadingProblem"));
    } else {
        showFileName();
    }
    showNotice();
    switchToMode(isModeTV());

    bool isShown = false;
    for (const StationSource source : stationSources) {
        const int segment = static_cast<int>(source);
        const bool hasStations = document.hasDataForSource(segment);
        m_outlets.setSegmentEnabled(segment, hasStations);
        if (hasStations && !isShown) {
            isShown = true;
            switchSource(segment);
            m_outlets.selectSegment(segment);
        }
    }
    if (!isShown)
        m_outlets.selectSegment(-1);
    showDeviceInfo();
    m_outlets.selectRows({});
    m_outlets.reloadData();
    m_outlets.showForeignRows({});
    clearDirty();
    saveSelection();
    return !m_loadFailed;
}

SatelliteNames TableController::satelliteNames() const
{
    const TLLDocument *document = stationDoc();
    return document ? document->list().broadcast.satelliteNames() : SatelliteNames();
}

ShownPlace TableController::place() const
{
    return stationDoc() ? ShownPlace(m_shown.shownSource(), currentList(), m_outlets)
                        : ShownPlace();
}

/// A source that has lost its stations leaves the one on show.
void TableController::goTo(const ShownPlace &place)
{
    if (!stationDoc())
        return;
    if (m_shown.hasDataForSource(place.source())) {
        m_outlets.selectSegment(place.source());
        switchSource(place.source());
    }
    applyFilter();
    m_outlets.selectRows(place.selectedRows(currentList()));
    saveSelection();
    updateButtons();
    if (const qsizetype top = place.topRow(currentList()); top >= 0)
        m_outlets.scrollRowToTop(top);
}

void TableController::displayFileName(const QString &path)
{
    m_outlets.setText(EditorOutlets::Field::FileName, shortPath(path));
}

void TableController::showFileName()
{
    if (stationDoc() && !m_loadFailed)
        displayFileName(stationDoc()->fileUrl().toLocalFile());
}

void TableController::showNotice()
{
    m_outlets.showNotice(m_loadFailed ? Notice() : noticeFor(*stationDoc()));
}

void TableController::showFileNotice()
{
    if (stationDoc())
        m_outlets.showFileNotice(fileNoticeFor(*stationDoc()));
}

void TableController::showDeviceInfo()
{
    m_outlets.setText(EditorOutlets::Field::DeviceName,
                      stationDoc()->modelName().value_or(QStringLiteral("---")));
}

void TableController::updateStationCountDisplay()
{
    const qsizetype count = stationDoc()->stationCount();
    m_outlets.setText(EditorOutlets::Field::StationCount,
                      count < 1 ? QString()
                                : QStringLiteral("%1 %2").arg(QString::number(count),
                                                              qtTrId("kStations", int(count))));
}

void TableController::switchToMode(bool isTV)
{
    stationDoc()->switchToMode(isTV);
    updateStationCountDisplay();
}

void TableController::switchSource(int source)
{
    stationDoc()->switchToSource(source);
    m_outlets.setNameColumnEditable(source == static_cast<int>(StationSource::Analogue));
    updateStationCountDisplay();
}

void TableController::reflectRadioButton(bool isTV)
{
    useMode(isTV);
    applyFilter();
    m_outlets.selectRows({});
    m_outlets.reloadData();
    saveSelection();
    updateButtons();
}

void TableController::useMode(bool isTV)
{
    m_outlets.setTVButtonOn(isTV);
    if (!isTV)
        m_outlets.selectFilterItem(static_cast<int>(TypeFilter::All));
    enable(EditorOutlets::Control::FilterPop, isTV);
    switchToMode(isTV);
}

void TableController::sourceSegmentClicked()
{
    m_source = m_outlets.selectedSegment();
    switchSource(m_source);
    m_outlets.selectRows({});
    m_outlets.reloadData();
    m_outlets.showForeignRows(m_shown.foreignRows());
    saveSelection();
    updateButtons();
}

void TableController::typeFilterClicked(int tag)
{
    m_outlets.selectFilterItem(tag);
    rebuildList();
}

void TableController::filterStationsFor(const QString &text)
{
    m_shown.filter().filterStationsFor(text, stationDoc()->stations());
}

void TableController::useTypeFilter(int tag)
{
    if (isModeTV())
        m_shown.filter().useTypeFilter(tag, m_source, stationDoc()->stations());
}

/// What was selected in rows of another list means nothing in those of the current one.
void TableController::narrow()
{
    if (m_shown.areForeign())
        m_shown.selection().clear();
    filterStationsFor(m_outlets.searchText());
    useTypeFilter(m_outlets.filterTag());
    QString matches;
    if (m_shown.isFiltered()) {
        const auto count = static_cast<int>(currentList().size());
        matches = QStringLiteral("%1 %2").arg(QString::number(count), qtTrId("matches", count));
    }
    m_outlets.setText(EditorOutlets::Field::Matches, matches);
    m_outlets.showForeignRows({});
}

void TableController::applyFilter()
{
    if (!stationDoc())
        return;
    narrow();
    reloadWithoutSelecting();
    restoreSelection();
}

void TableController::clearFilters()
{
    m_outlets.clearSearchText();
    m_outlets.selectFilterItem(static_cast<int>(TypeFilter::All));
    applyFilter();
}

void TableController::rebuildList()
{
    applyFilter();
    reloadWithoutSelecting();
}

void TableController::reloadWithoutSelecting()
{
    m_inRestore = true;
    m_outlets.reloadData();
    m_inRestore = false;
}

void TableController::showChange(const ListChange &change)
{
    if (change.kind == ListChange::Kind::Moved)
        narrow();
    m_inRestore = true;
    m_outlets.showChange(change);
    m_inRestore = false;
}

void TableController::showList(const StationListPtr &list)
{
    for (const bool isTV : {true, false}) {
        for (const StationSource each : stationSources) {
            const int source = static_cast<int>(each);
            if (stationDoc()->lists().list(isTV, source) != list)
                continue;
            useMode(isTV);
            m_source = source;
            m_outlets.selectSegment(source);
            switchSource(source);
            m_shown.selection().clear();
            applyFilter();
            return updateButtons();
        }
    }
}

void TableController::reveal(const StationList &stations)
{
    QHash<const LGStation *, bool> wanted; // and whether there is a row, or several, of it
    wanted.reserve(static_cast<qsizetype>(stations.size()));
    for (const StationPtr &station : stations)
        wanted.insert(station.get(), false);
    const auto rowsOf = [&wanted, this] {
        QList<qsizetype> rows;
        const StationList &list = currentList();
        for (std::size_t row = 0; row < list.size(); ++row) {
            const auto found = wanted.find(list[row].get());
            if (found == wanted.end())
                continue;
            *found = true;
            rows.append(static_cast<qsizetype>(row));
        }
        return rows;
    };
    QList<qsizetype> rows = rowsOf();
    const bool isAllShown = std::all_of(wanted.begin(), wanted.end(), [](bool has) { return has; });
    if (!isAllShown && m_shown.isFiltered()) {
        clearFilters();
        rows = rowsOf();
    }
    selectRows(rows);
    if (!rows.isEmpty())
        m_outlets.scrollRowToVisible(rows.front());
}

void TableController::selectRows(const QList<qsizetype> &rows)
{
    m_inRestore = true;
    m_outlets.selectRows(rows);
    m_inRestore = false;
    saveSelection();
    updateButtons();
}

void TableController::saveSelection()
{
    m_shown.selection().save(m_outlets.selectedRows(), currentList());
    enable(EditorOutlets::Control::MoveToButton, !selection().isEmpty());
    emit stateChanged();
}

void TableController::restoreSelection()
{
    const QList<qsizetype> rows = selection().rowsIn(currentList());
    enable(EditorOutlets::Control::MoveToButton, !rows.isEmpty());
    m_inRestore = true;
    m_outlets.selectRows(rows);
    m_inRestore = false;
    if (!rows.isEmpty())
        m_outlets.scrollRowToVisible(rows.front());
    emit stateChanged();
}

void TableController::tableViewSelectionDidChange()
{
    if (!m_inRestore)
        saveSelection();
    updateButtons();
}

void TableController::clearDirty()
{
    stationDoc()->setDirtyFlag(false);
    updateButtons();
}

void TableController::updateButtons()
{
    using Control = EditorOutlets::Control;
    enable(Control::MoveToButton, !selection().isEmpty());
    enable(Control::InfoButton, !selection().isEmpty());
    enable(Control::ModeButtons, m_shown.hasData());
    enable(Control::ApplyButton, m_shown.hasData());
    m_outlets.showEmptyHint(m_loadFailed && !m_shown.hasData() ? EmptyHint::NoFile
                                                               : m_shown.emptyHint());
    emit stateChanged();
}

void TableController::enable(EditorOutlets::Control control, bool enabled)
{
    m_enabled[control] = enabled;
    m_outlets.setEnabled(control, enabled);
}

void TableController::showError(const QString &detail, const QString &message)
{
    if (stationDoc())
        questions().showError(message, detail);
}

EditorQuestions TableController::questions()
{
    return {*stationDoc(), m_outlets.sheetWindow(), this};
}

} // namespace quillet
