#include "editor/ViewController.h"

#include "editor/EditorQuestions.h"
#include "editor/NoticeTexts.h"
#include "support/LenientNumber.h"
#include "texts/SourceTitles.h"
#include "texts/StationColumns.h"

#include <QSet>
#include <QTimer>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillet {

ViewController::ViewController(EditorOutlets &outlets, QObject *parent)
    : TableController(outlets, parent), m_arranging(shown(), outlets),
      m_comparing(*this, outlets, m_editor), m_ordering(*this, outlets, m_editor),
      m_selecting(*this, outlets), m_undoing(*this, outlets), m_pasting(*this, outlets)
{
    connect(this, &TableController::documentChanged, this, &ViewController::followDocument);
    connect(&m_editor, &ListEditor::changed, this, [this](const ListChange &change) {
        if (change.cause == ListChange::Cause::Edit)
            editWasMade(change);
        else
            m_undoing.showStep(change);
        if (change.isLast)
            emit edited();
    });
    connect(&m_droppedFiles, &DroppedFiles::loaded, this, &ViewController::fileLoaded);
    connect(&m_droppedFiles, &DroppedFiles::refused, this, &ViewController::fileRefused);
}

void ViewController::followDocument(TLLDocument *document)
{
    m_editor.setDocument(document);
    m_selecting.forgetDocument();
    UndoHistory &history = document->history();
    history.disconnect(this);
    connect(&history, &UndoHistory::changed, this, &ViewController::stateChanged);
    connect(&history, &UndoHistory::jumped, this, [this] { m_undoing.showLastOfJump(); });
}

void ViewController::editWasMade(const ListChange &change)
{
    if (!change.isLast)
        return;
    if (change.list == stationDoc()->stations())
        showChange(change);
    else
        showList(change.list);
    outlets().tellEdit(textOf(change.summary));
}

/// What is planned is planned again after a question, which may have taken a while.
void ViewController::arrange(Arrangement command)
{
    const ArrangeCommands::Plan planned = m_arranging.plan(command, m_fillGaps);
    whenNumbersSuffice(planned.plan.beyond(), [=, this](ListEditor::Beyond beyond) {
        carryOutArrangement(
            beyond == ListEditor::Beyond::Refused ? planned : m_arranging.plan(command, m_fillGaps),
            beyond);
    });
}

void ViewController::arrangeByKeys(const ArrangeKeys &keys)
{
    const ArrangeCommands::Plan planned = m_arranging.planByKeys(keys, source(), m_fillGaps);
    whenNumbersSuffice(planned.plan.beyond(), [=, this](ListEditor::Beyond beyond) {
        carryOutArrangement(beyond == ListEditor::Beyond::Refused
                                ? planned
                                : m_arranging.planByKeys(keys, source(), m_fillGaps),
                            beyond);
    });
}

/// The selected stations stay selected, wherever they are now.
void ViewController::carryOutArrangement(const ArrangeCommands::Plan &planned,
                                         ListEditor::Beyond beyond)
{
    if (planned.plan.order.isEmpty())
        return;
    const StationList selected = shown().ownStationsAt(outlets().selectedRows());
    m_editor.arrange(planned.plan, planned.stations, planned.kind, beyond);
    reveal(selected);
}

void ViewController::fillGapsClicked(bool on)
{
    m_fillGaps = on;
    emit stateChanged();
    fillGapsIfWanted();
}

/// The filter is not applied anew. The selection, which goes by number, follows the stations that
/// are selected in the table, and those that the filter hides.
void ViewController::fillGapsIfWanted()
{
    if (!m_fillGaps || !shown().hasData())
        return;
    whenNumbersSuffice(
        m_editor.beyondAfterClosingGaps(), [this](ListEditor::Beyond beyond) { closeGaps(beyond); },
        [this] { fillGapsClicked(false); });
}

void ViewController::closeGaps(ListEditor::Beyond beyond)
{
    StationList selected;
    if (!shown().areForeign()) {
        selected = shown().stationsAt(outlets().selectedRows());
        const StationList &rows = currentList();
        const QSet<StationPtr> onShow(rows.begin(), rows.end());
        for (const StationPtr &station : selection().stationsIn(*stationDoc()->stations())) {
            if (!onShow.contains(station))
                selected.push_back(station);
        }
    }
    m_editor.closeGaps(beyond);
    if (!selected.empty())
        savedSelection().follow(selected);
}

void ViewController::moveItemsToClicked()
{
    if (!stationDoc() || tellForeignRows())
        return;
    questions().askForNumber(
        outlets().selectedRows().size(),
        [this](qint64 number) {
            moveSelectedElements(outlets().selectedRows(), number);
            restoreSelection();
        },
        [this] { outlets().tell(qtTrId("kToldNotMoved").arg(highestTarget)); });
}

void ViewController::moveSelectedElements(const QList<qsizetype> &rows, qint64 target)
{
    moveStations(shown().ownStationsAt(rows), target);
}

void ViewController::moveElements(qsizetype firstRow, qsizetype count, qint64 target)
{
    QList<qsizetype> rows(count);
    std::iota(rows.begin(), rows.end(), firstRow);
    moveStations(shown().ownStationsAt(rows), target);
}

/// The numbers to select are the editor's fixed rule. With gaps filled other stations may carry
/// them; then the moved ones are selected all the same.
void ViewController::moveStations(const StationList &stations, qint64 target, Removal removal)
{
    if (stations.empty()) {
        tellForeignRows();
        return;
    }
    const MovePlan plan = m_editor.planMove(stations, target, m_fillGaps, removal);
    whenNumbersSuffice(plan.beyond(), [this, plan](ListEditor::Beyond beyond) {
        // What was asked may have taken a while.
        carryOut(beyond == ListEditor::Beyond::Refused
                     ? plan
                     : m_editor.planMove(plan.moved, plan.target, m_fillGaps, plan.removal),
                 beyond);
    });
}

void ViewController::carryOut(const MovePlan &plan, ListEditor::Beyond beyond)
{
    if (!m_editor.move(plan, beyond))
        return;
    savedSelection().set(plan.selection);
    updateButtons();
    if (m_fillGaps)
        savedSelection().follow(plan.moved);
    restoreSelection();
}

void ViewController::whenNumbersSuffice(std::size_t beyond,
                                        const std::function<void(ListEditor::Beyond)> &goOn,
                                        const std::function<void()> &refused)
{
    if (beyond == 0)
        return goOn(ListEditor::Beyond::Refused);
    questions().askToGoBeyond(beyond, [goOn, refused](bool isWanted) {
        if (isWanted)
            goOn(ListEditor::Beyond::Wanted);
        else if (refused)
            refused();
    });
}

bool ViewController::tellForeignRows()
{
    const auto rows = shown().areForeign() ? shown().foreignRows() : std::nullopt;
    if (rows)
        outlets().tell(qtTrId("kToldForeign")
                           .arg(sourceTitle(rows->source), sourceTitle(rows->currentSource)));
    return shown().areForeign();
}

void ViewController::setObjectValue(const QVariant &value, const QString &column, qsizetype row)
{
    const StationColumn *known = stationColumn(column);
    const StationList edited = shown().ownStationsAt({row});
    if (!known || edited.empty()) {
        tellForeignRows();
        return;
    }
    switch (known->content) {
    case ColumnContent::Number:
        if (const qint64 number = lenientInteger(value.toString());
            number != edited.front()->progNum())
            moveElements(row, 1, number);
        return;
    case ColumnContent::Name:
        m_editor.rename(edited.front(), value.toString());
        break;
    case ColumnContent::Skipped:
        m_editor.setFlag(edited, StationFlag::Skipped, value.toBool());
        break;
    case ColumnContent::Blocked:
        m_editor.setFlag(edited, StationFlag::Blocked, value.toBool());
        break;
    default:
        return;
    }
    updateButtons();
}

void ViewController::skipSelectedItems()
{
    toggleSelected(StationFlag::Skipped);
}

void ViewController::changeChildLockForSelectedItems()
{
    toggleSelected(StationFlag::Blocked);
}

void ViewController::toggleSelected(StationFlag flag)
{
    const StationList selected = shown().ownStationsAt(outlets().selectedRows());
    if (selected.empty()) {
        tellForeignRows();
        return;
    }
    m_editor.setFlag(selected, flag, toggledFlag(selected, flag));
    updateButtons();
}

bool ViewController::putBack(const ChannelList &version, const QString &name)
{
    if (!stationDoc())
        return false;
    const StationList selected = shown().ownStationsAt(outlets().selectedRows());
    const StationListPtr list = stationDoc()->stations();
    const bool isBack = m_editor.putBack(version, name);
    if (list == stationDoc()->stations())
        reveal(selected);
    updateButtons();
    return isBack;
}

StationPtr ViewController::stationForInfo() const
{
    const StationList selected = shown().stationsAt(outlets().selectedRows());
    return selected.empty() ? nullptr : selected.front();
}

void ViewController::paste(const QMimeData &data)
{
    if (tellForeignRows())
        return;
    if (const QString reason = m_pasting.reasonAgainst(); !reason.isEmpty())
        return outlets().tell(reason);
    if (const auto move = m_pasting.planOwn(data))
        return carryOutPaste(*move);
    std::optional<PastedStations> pasted = m_pasting.read(data);
    if (!pasted)
        return outlets().tell(qtTrId("kTipNothingToPaste"));
    if (const auto move = m_pasting.plan(*pasted))
        carryOutPaste(*move);
    else
        emit comparisonWanted(m_pasting.comparison(*pasted));
}

void ViewController::pasteStations(const StationList &chosen, const StationPtr &place)
{
    const PasteCommand::Move move = m_pasting.planFor(chosen, place);
    if (move.stations.empty())
        outlets().tell(qtTrId("kToldPasteGone"));
    else
        carryOutPaste(move);
}

void ViewController::carryOutPaste(const PasteCommand::Move &move)
{
    const bool areThere = m_editor.planMove(move.stations, move.target, m_fillGaps, Removal::Itself)
                              .changesNothingIn(*stationDoc()->stations());
    moveStations(move.stations, move.target, Removal::Itself);
    if (areThere)
        outlets().tell(qtTrId("kToldPasteThere"));
}

DragOperation ViewController::validateDrop(const TableDrag &drag)
{
    m_containsFile = !drag.files.isEmpty();
    if (m_containsFile && !shown().hasData())
        return DragOperation::Copy;
    const bool isMove = drag.isFromThisTable && drag.isAboveRow && !shown().areForeign();
    return isMove ? DragOperation::Move : DragOperation::None;
}

bool ViewController::acceptDrop(const TableDrag &drag)
{
    if (m_containsFile && !drag.files.isEmpty()) {
        QTimer::singleShot(0, this, [this, files = drag.files] {
            m_alsoDropped = static_cast<int>(files.size()) - 1;
            loadTLLFile(files.front());
        });
        return true;
    }
    const bool isInPlace = !drag.draggedRows.isEmpty() && drag.draggedRows.front() + 1 == drag.row;
    if (drag.draggedRows.isEmpty() || isInPlace || shown().areForeign())
        return false;
    const StationList above = shown().ownStationsAt({drag.row - 1});
    const qint64 target = drag.row == 0 || above.empty() ? 1 : above.front()->progNum() + 1;
    QList<qsizetype> rows = drag.draggedRows;
    std::sort(rows.begin(), rows.end());
    moveSelectedElements(rows, target);
    restoreSelection();
    return true;
}

void ViewController::loadTLLFile(const QString &path)
{
    if (stationDoc())
        m_droppedFiles.load(*stationDoc(), questions(), path);
}

void ViewController::fileLoaded(const Error &error)
{
    if (!stationDoc())
        return;
    populateFromTLLDoc(*stationDoc(), error);
    applyFilter();
    if (const int others = std::exchange(m_alsoDropped, 0); others > 0 && error.isEmpty())
        outlets().tell(qtTrId("kToldOthersDropped", others).arg(stationDoc()->displayName()));
}

void ViewController::fileRefused(const Error &error)
{
    showError(error.text(), qtTrId("kLoadingProblem"));
}

void ViewController::followFileNotice()
{
    if (!stationDoc())
        return;
    if (fileNoticeFor(*stationDoc()).offersReload)
        stationDoc()->reloadDocument();
    else
        stationDoc()->saveDocumentAs();
}

void ViewController::keepMine()
{
    if (stationDoc())
        stationDoc()->keepMine();
}

bool ViewController::validateUserInterfaceItem(const QString &action) const
{
    if (action == QLatin1String("typeFilterClicked"))
        return true;
    if (action == QLatin1String("skipSelectedItems") ||
        action == QLatin1String("changeChildLockForSelectedItems"))
        return !outlets().selectedRows().isEmpty();
    return false;
}

} // namespace quillet
