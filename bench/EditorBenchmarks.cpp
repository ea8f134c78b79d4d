#include "bench/EditorBenchmarks.h"

#include "bench/Failure.h"
#include "bench/Figures.h"
#include "bench/IdleOutlets.h"
#include "document/TLLDocument.h"
#include "document/edit/Renumbering.h"
#include "editor/ViewController.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillet::bench {

namespace {

constexpr std::size_t stationCount = 10'000;

/// An editor without a window that shows all stations of a file, TV and radio, as one list with the
/// numbers 1, 2, 3 and so on.
class Editor
{
public:
    explicit Editor(const QByteArray &file) : m_controller(m_outlets)
    {
        Error error;
        m_isRead = m_document.readFromData(file, TLLDocument::typeName(), error);
        if (!m_isRead)
            return;
        m_controller.populateFromTLLDoc(m_document, error);
        for (const StationSource source : stationSources) {
            const int index = static_cast<int>(source);
            for (const bool isTV : {true, false}) {
                const StationListPtr &list = m_document.lists().list(isTV, index);
                if (list != m_document.stations())
                    stations().insert(stations().end(), list->begin(), list->end());
            }
        }
        EditRecord unused;
        closeGaps(stations(), unused);
    }

    /// The current list, of which the filter and the move take their stations.
    [[nodiscard]] StationList &stations() { return *m_document.stations(); }
    [[nodiscard]] ViewController &controller() { return m_controller; }
    [[nodiscard]] bool isReady() { return m_isRead && isNumberedWell(); }

    /// Leaves the stations as they are right after reading: no name asked for yet, and their
    /// entries shared with somebody else (the document's tree, here the stations before).
    void makeStationsAnew()
    {
        m_before = std::move(stations());
        stations().clear();
        for (const StationPtr &station : m_before)
            stations().push_back(std::make_shared<LGStation>(station->entry(), station->origPos()));
    }

    void search(const QString &text)
    {
        m_outlets.search = text;
        m_controller.textDidChange();
    }

    /// Whether all stations are there and their numbers strictly increase from 1 on.
    [[nodiscard]] bool isNumberedWell()
    {
        qint64 last = 0;
        return stations().size() == stationCount &&
               std::all_of(stations().begin(), stations().end(),
                           [&last](const StationPtr &station) {
                               const qint64 before = std::exchange(last, station->progNum());
                               return before < last;
                           });
    }

private:
    IdleOutlets m_outlets;
    TLLDocument m_document;
    ViewController m_controller;
    StationList m_before;
    bool m_isRead = false;
};

/// One search, as after each character typed: filtering and what the editor does around it. The
/// first one decodes all names. Showing the rows is not in it.
void searching(benchmark::State &state, const QByteArray &file, bool isFirst)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to search was not made");
    const QString text = QStringLiteral("kÜche");
    editor.search(text);
    for ([[maybe_unused]] auto _ : state) {
        if (isFirst) {
            state.PauseTiming();
            editor.search({});
            editor.makeStationsAnew();
            state.ResumeTiming();
        }
        editor.search(text);
        const std::size_t found = editor.controller().currentList().size();
        if (found == 0 || found == stationCount)
            return fail(state, "The search found nothing or everything");
    }
}

/// The last station to the first place, without filling gaps: every other one gets a new number,
/// which no other move surpasses. The first move finds entries shared with the document's tree.
/// Showing the rows is not in it, nor is the check that follows.
void moving(benchmark::State &state, const QByteArray &file, bool isFirst)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        if (isFirst)
            editor.makeStationsAnew();
        const StationPtr moved = editor.stations().back();
        state.ResumeTiming();
        editor.controller().moveElements(stationCount - 1, 1, 1);
        state.PauseTiming();
        if (editor.stations().front() != moved || !editor.isNumberedWell() ||
            editor.stations().back()->progNum() != stationCount)
            return fail(state, "The station was not moved well");
        state.ResumeTiming();
    }
}

/// Taking back that move, which is made again each time.
void undoing(benchmark::State &state, const QByteArray &file)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    const StationPtr moved = editor.stations().back();
    editor.controller().moveElements(stationCount - 1, 1, 1);
    for ([[maybe_unused]] auto _ : state) {
        editor.controller().undoing().undo();
        state.PauseTiming();
        if (editor.stations().back() != moved || !editor.isNumberedWell())
            return fail(state, "The move was not undone");
        editor.controller().undoing().redo();
        state.ResumeTiming();
    }
}

/// The same with gaps filled, far towards the end and back again in turn.
void movingWithoutGaps(benchmark::State &state, const QByteArray &file)
{
    // The highest target is before the two stations that have this number and the one above.
    constexpr std::size_t farPlace = stationCount - 3;
    static_assert(highestTarget == stationCount - 1);

    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    editor.controller().fillGapsClicked(true);
    std::size_t from = 0;
    std::size_t to = farPlace;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const StationPtr moved = editor.stations()[from];
        state.ResumeTiming();
        editor.controller().moveElements(static_cast<qsizetype>(from), 1,
                                         to == 0 ? 1 : highestTarget);
        state.PauseTiming();
        if (editor.stations()[to] != moved || !editor.isNumberedWell() ||
            editor.stations().back()->progNum() != stationCount)
            return fail(state, "The station was not moved well");
        std::swap(from, to);
        state.ResumeTiming();
    }
}

} // namespace

void registerEditorBenchmarks(const QByteArray &file)
{
    benchmark::RegisterBenchmark(figure::search, searching, file, false);
    benchmark::RegisterBenchmark(figure::firstSearch, searching, file, true);
    benchmark::RegisterBenchmark(figure::move, moving, file, false);
    benchmark::RegisterBenchmark(figure::firstMove, moving, file, true);
    benchmark::RegisterBenchmark(figure::undo, undoing, file);
    benchmark::RegisterBenchmark(figure::moveFillingGaps, movingWithoutGaps, file);
}

} // namespace quillet::bench
