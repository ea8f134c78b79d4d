#include "editor/ViewController.h"

#include "document/ReferenceListFile.h"
#include "editor/EditorQuestions.h"
#include "editor/NoticeTexts.h"
#include "editor/Renumbering.h"
#include "editor/StationColumns.h"
#include "support/KXFileLog.h"
#include "support/LenientNumber.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <numeric>

namespace quillet {

ViewController::ViewController(EditorOutlets &outlets, QObject *parent)
    : QObject(parent), m_outlets(outlets)
{
}

void ViewController::viewDidLoad()
{
    OpenFileLog(QStringLiteral("XT"));
    m_outlets.setTVButtonOn(true);
    updateButtons();
    for (const StationSource source : stationSources)
        m_outlets.setSegmentEnabled(static_cast<int>(source), false);
}

bool ViewController::populateFromTLLDoc(TLLDocument &document, const Error &error)
{
    m_document = &document;
    m_filter.clear();
    m_selection.clear();
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
    clearDirty();
    saveSelection();
    return !m_loadFailed;
}

void ViewController::displayFileName(const QString &path)
{
    const QString home = QDir::homePath();
    const bool isInHome = path.startsWith(home + QLatin1Char('/'));
    m_outlets.setText(EditorOutlets::Field::FileName,
                      isInHome ? QLatin1Char('~') + path.sliced(home.size()) : path);
}

void ViewController::showFileName()
{
    if (m_document && !m_loadFailed)
        displayFileName(m_document->fileUrl().toLocalFile());
}

void ViewController::showNotice()
{
    m_outlets.showNotice(m_loadFailed ? Notice() : noticeFor(*m_document));
}

void ViewController::showDeviceInfo()
{
    m_outlets.setText(EditorOutlets::Field::DeviceName,
                      m_document->modelName().value_or(QStringLiteral("---")));
}

void ViewController::updateStationCountDisplay()
{
    const qsizetype count = m_document->stationCount();
    m_outlets.setText(EditorOutlets::Field::StationCount,
                      count < 1 ? QString()
                                : QStringLiteral("%1 %2").arg(QString::number(count),
                                                              qtTrId("kStations", int(count))));
}

void ViewController::switchToMode(bool isTV)
{
    m_document->switchToMode(isTV);
    updateStationCountDisplay();
}

void ViewController::switchSource(int source)
{
    m_document->switchToSource(source);
    m_outlets.setNameColumnEditable(source == static_cast<int>(StationSource::Analogue));
    updateStationCountDisplay();
}

void ViewController::reflectRadioButton(bool isTV)
{
    m_outlets.setTVButtonOn(isTV);
    if (!isTV)
        m_outlets.selectFilterItem(static_cast<int>(TypeFilter::All));
    m_outlets.setEnabled(EditorOutlets::Control::FilterPop, isTV);
    switchToMode(isTV);
    applyFilter();
    m_outlets.selectRows({});
    m_outlets.reloadData();
    saveSelection();
    updateButtons();
}

void ViewController::sourceSegmentClicked()
{
    m_source = m_outlets.selectedSegment();
    switchSource(m_source);
    m_outlets.selectRows({});
    m_outlets.reloadData();
    saveSelection();
    updateButtons();
}

void ViewController::typeFilterClicked(int tag)
{
    m_outlets.selectFilterItem(tag);
    rebuildList();
}

void ViewController::filterStationsFor(const QString &text)
{
    m_filter.filterStationsFor(text, m_document->stations());
}

void ViewController::useTypeFilter(int tag)
{
    if (isModeTV())
        m_filter.useTypeFilter(tag, m_source, m_document->stations());
}

void ViewController::applyFilter()
{
    if (!m_document)
        return;
    filterStationsFor(m_outlets.searchText());
    useTypeFilter(m_outlets.filterTag());
    QString matches;
    if (const auto &filtered = m_filter.filteredStations()) {
        const auto count = static_cast<int>(filtered->size());
        matches = QStringLiteral("%1 %2").arg(QString::number(count), qtTrId("matches", count));
    }
    m_outlets.setText(EditorOutlets::Field::Matches, matches);
    reloadWithoutSelecting();
    restoreSelection();
}

void ViewController::rebuildList()
{
    applyFilter();
    reloadWithoutSelecting();
}

void ViewController::reloadWithoutSelecting()
{
    m_inRestore = true;
    m_outlets.reloadData();
    m_inRestore = false;
}

const StationList &ViewController::currentList() const
{
    static const StationList none;
    if (m_filter.filteredStations())
        return *m_filter.filteredStations();
    return m_document && m_document->stations() ? *m_document->stations() : none;
}

void ViewController::saveSelection()
{
    m_selection.save(m_outlets.selectedRows(), currentList());
    m_outlets.setEnabled(EditorOutlets::Control::MoveToButton,
                         m_selection.selectedStations().has_value());
}

void ViewController::restoreSelection()
{
    const QList<qsizetype> rows = m_selection.rowsIn(currentList());
    m_outlets.setEnabled(EditorOutlets::Control::MoveToButton, !rows.isEmpty());
    m_inRestore = true;
    m_outlets.selectRows(rows);
    m_inRestore = false;
    if (!rows.isEmpty())
        m_outlets.scrollRowToVisible(rows.front());
}

void ViewController::tableViewSelectionDidChange()
{
    if (!m_inRestore)
        saveSelection();
    updateButtons();
}

void ViewController::fillGapsClicked(bool on)
{
    m_fillGaps = on;
    fillGapsIfWanted();
}

void ViewController::fillGapsIfWanted()
{
    if (!m_fillGaps || !hasData())
        return;
    if (closeGaps(*m_document->stations())) {
        m_document->setDirtyFlag(true);
        m_outlets.reloadData();
    }
}

void ViewController::moveItemsToClicked()
{
    if (!m_document)
        return;
    questions().askForNumber([this](qint64 number) {
        moveSelectedElements(m_outlets.selectedRows(), number);
        restoreSelection();
    });
}

void ViewController::moveSelectedElements(const QList<qsizetype> &rows, qint64 target)
{
    moveStations(stationsAt(rows), target);
}

void ViewController::moveElements(qsizetype firstRow, qsizetype count, qint64 target)
{
    QList<qsizetype> rows(count);
    std::iota(rows.begin(), rows.end(), firstRow);
    moveStations(stationsAt(rows), target);
}

/// The stations of those rows that there are.
StationList ViewController::stationsAt(const QList<qsizetype> &rows) const
{
    const StationList &list = currentList();
    StationList stations;
    for (const qsizetype row : rows) {
        if (row >= 0 && row < static_cast<qsizetype>(list.size()))
            stations.push_back(list[static_cast<std::size_t>(row)]);
    }
    return stations;
}

/// Leaves out the stations of other lists: after a change of source the old filter's rows are still
/// on show.
StationList ViewController::movable(StationList stations) const
{
    const StationListPtr &current = m_document->stations();
    if (!m_filter.filteredStations() || m_filter.base() == current)
        return stations;
    QSet<const LGStation *> own;
    for (const StationPtr &station : *current)
        own.insert(station.get());
    std::erase_if(stations, [&own](const auto &station) { return !own.contains(station.get()); });
    return stations;
}

void ViewController::moveStations(const StationList &stations, qint64 target)
{
    const StationList moved = movable(stations);
    if (moved.empty())
        return;
    m_selection.set(moveElemList(*m_document->stations(), moved, target, m_fillGaps));
    setDirty();
    rebuildList();
}

void ViewController::setObjectValue(const QVariant &value, const QString &column, qsizetype row)
{
    const StationColumn *known = stationColumn(column);
    const StationList edited = stationsAt({row});
    if (!known || edited.empty())
        return;
    LGStation &station = *edited.front();
    switch (known->content) {
    case ColumnContent::Number:
        if (const qint64 number = lenientInteger(value.toString()); number != station.progNum())
            moveElements(row, 1, number);
        return;
    case ColumnContent::Name:
        station.setStationName(value.toString());
        break;
    case ColumnContent::Skipped:
        station.setSkipped(value.toBool());
        break;
    case ColumnContent::Blocked:
        station.setBlocked(value.toBool());
        break;
    case ColumnContent::Type:
        return;
    }
    setDirty();
}

void ViewController::skipSelectedItems()
{
    toggleSelected(&LGStation::isSkipped, &LGStation::setSkipped);
}

void ViewController::changeChildLockForSelectedItems()
{
    toggleSelected(&LGStation::isBlocked, &LGStation::setBlocked);
}

void ViewController::toggleSelected(bool (LGStation::*isSet)() const, void (LGStation::*set)(bool))
{
    const StationList selected = stationsAt(m_outlets.selectedRows());
    if (selected.empty())
        return;
    const bool newValue = !((*selected.front()).*isSet)();
    for (const StationPtr &station : selected)
        ((*station).*set)(newValue);
    setDirty();
    m_outlets.reloadData();
}

void ViewController::applyOrderClicked()
{
    if (!m_document)
        return;
    questions().askForReferenceList([this](const QString &path) {
        // In a later turn, when the panel has gone.
        QTimer::singleShot(0, this, [this, path] { applyOrderFileWait(path); });
    });
}

void ViewController::applyOrderFileWait(const QString &path)
{
    applyOrderFile(path);
}

void ViewController::applyOrderFile(const QString &path)
{
    if (!m_document)
        return;
    const ReferenceList entries = referenceListFromFile(path, isModeTV());
    if (entries.empty())
        return;
    m_document->applyOrderFromRefList(entries, QFileInfo(path).fileName());
    m_outlets.selectRows({});
    m_outlets.reloadData();
    setDirty();
    saveSelection();
}

StationPtr ViewController::stationForInfo() const
{
    const StationList selected = stationsAt(m_outlets.selectedRows());
    return selected.empty() ? nullptr : selected.front();
}

DragOperation ViewController::validateDrop(const TableDrag &drag)
{
    m_containsFile = !drag.files.isEmpty();
    if (m_containsFile && !hasData())
        return DragOperation::Copy;
    return drag.isFromThisTable && drag.isAboveRow ? DragOperation::Move : DragOperation::None;
}

bool ViewController::acceptDrop(const TableDrag &drag)
{
    if (m_containsFile && !drag.files.isEmpty()) {
        QTimer::singleShot(0, this, [this, path = drag.files.front()] { loadTLLFile(path); });
        return true;
    }
    if (drag.draggedRows.isEmpty() || drag.draggedRows.front() + 1 == drag.row)
        return false;
    const StationList above = stationsAt({drag.row - 1});
    const qint64 target = drag.row == 0 || above.empty() ? 1 : above.front()->progNum() + 1;
    QList<qsizetype> rows = drag.draggedRows;
    std::sort(rows.begin(), rows.end());
    moveSelectedElements(rows, target);
    restoreSelection();
    return true;
}

void ViewController::loadTLLFile(const QString &path)
{
    if (!m_document)
        return;
    if (m_document->isDirty())
        questions().askToReplace([this, path] { readDroppedFile(path); });
    else
        readDroppedFile(path);
}

/// A file that another window has is shown there. The document changes only when the file can be
/// read: half-read content could be saved over the file that could not.
void ViewController::readDroppedFile(const QString &path)
{
    if (const Document *other = m_document->otherDocumentAt(path))
        return other->raiseWindows();
    Error error;
    m_document->readFromUrl(QUrl::fromLocalFile(path), TLLDocument::typeName(), error);
    const bool holdsStations =
        std::any_of(stationSources.begin(), stationSources.end(), [this](StationSource source) {
            return m_document->hasDataForSource(static_cast<int>(source));
        });
    if (!error.isEmpty() && holdsStations) {
        showError(error.text(), qtTrId("kLoadingProblem"));
        return;
    }
    populateFromTLLDoc(*m_document, error);
    applyFilter();
}

void ViewController::setDirty()
{
    m_document->setDirtyFlag(true);
    updateButtons();
}

void ViewController::clearDirty()
{
    m_document->setDirtyFlag(false);
    updateButtons();
}

void ViewController::updateButtons()
{
    m_outlets.setEnabled(EditorOutlets::Control::MoveToButton, !m_selection.isEmpty());
    m_outlets.setEnabled(EditorOutlets::Control::InfoButton, !m_selection.isEmpty());
    m_outlets.setEnabled(EditorOutlets::Control::ModeButtons, hasData());
    m_outlets.setEnabled(EditorOutlets::Control::ApplyButton, hasData());
    m_outlets.showEmptyHint(emptyHint());
}

bool ViewController::validateUserInterfaceItem(const QString &action) const
{
    if (action == QLatin1String("typeFilterClicked"))
        return true;
    if (action == QLatin1String("skipSelectedItems") ||
        action == QLatin1String("changeChildLockForSelectedItems"))
        return !m_outlets.selectedRows().isEmpty();
    return false;
}

void ViewController::showError(const QString &detail, const QString &message)
{
    if (m_document)
        questions().showError(message, detail);
}

EditorQuestions ViewController::questions()
{
    return {*m_document, m_outlets.sheetWindow(), this};
}

bool ViewController::hasData() const
{
    return m_document && m_document->hasData();
}

EmptyHint ViewController::emptyHint() const
{
    if (hasData())
        return EmptyHint::None;
    if (!m_document || m_loadFailed ||
        (m_document->fileUrl().isEmpty() && m_document->suggestedUrl().isEmpty()))
        return EmptyHint::NoFile;
    // The current list is empty, so whatever its source has is in the other mode's list.
    if (!m_document->hasDataForSource(m_document->curSource()))
        return EmptyHint::NoStations;
    return m_document->usesTV() ? EmptyHint::NoTVStations : EmptyHint::NoRadioStations;
}

} // namespace quillet
