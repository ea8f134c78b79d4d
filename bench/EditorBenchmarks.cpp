#include "bench/EditorBenchmarks.h"

#include "bench/Editor.h"
#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"

#include <string>
#include <utility>

namespace quillet::bench {

namespace {

/// One search, as after each character typed: filtering and what the editor does around it. The
/// first one decodes all names. Showing the rows is not in it.
void searching(benchmark::State &state, const QByteArray &file, bool isFirst)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to search was not made");
    const QString text = QStringLiteral("kÜche");
    editor.search(text);
    measure(state, {.prepare =
                        [&] {
                            if (!isFirst)
                                return;
                            editor.search({});
                            editor.makeStationsAnew();
                        },
                    .run = [&] { editor.search(text); },
                    .hasWorked =
                        [&] {
                            const std::size_t found = editor.controller().currentList().size();
                            return found > 0 && found < editor.stations().size();
                        },
                    .otherwise = "The search found nothing or everything"});
}

/// The last station to the first place, without filling gaps: every other one gets a new number,
/// which no other move surpasses. The first move finds entries shared with the document's tree.
/// Showing the rows is not in it, nor is the check that follows.
void moving(benchmark::State &state, const QByteArray &file, bool isFirst)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    const auto count = static_cast<qsizetype>(editor.stations().size());
    StationPtr moved;
    measure(state, {.prepare =
                        [&] {
                            if (isFirst)
                                editor.makeStationsAnew();
                            moved = editor.stations().back();
                        },
                    .run = [&] { editor.controller().moveElements(count - 1, 1, 1); },
                    .hasWorked =
                        [&] {
                            return editor.stations().front() == moved && editor.isNumberedWell() &&
                                   editor.stations().back()->progNum() == count;
                        },
                    .otherwise = "The station was not moved well"});
}

/// Taking back that move, which is made again each time.
void undoing(benchmark::State &state, const QByteArray &file)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    const auto count = static_cast<qsizetype>(editor.stations().size());
    const StationPtr moved = editor.stations().back();
    editor.controller().moveElements(count - 1, 1, 1);
    UndoCommands &commands = editor.controller().undoing();
    measure(
        state,
        {.prepare =
             [&] {
                 if (editor.stations().front() != moved)
                     commands.redo();
             },
         .run = [&] { commands.undo(); },
         .hasWorked = [&] { return editor.stations().back() == moved && editor.isNumberedWell(); },
         .otherwise = "The move was not undone"});
}

/// The same move with gaps filled, far towards the end and back again in turn.
void movingWithoutGaps(benchmark::State &state, const QByteArray &file)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to move in was not made");
    // The highest target is before the two stations that have this number and the one above.
    const std::size_t count = editor.stations().size();
    const auto highest = std::min(static_cast<qint64>(count) - 1, highestTarget);
    editor.controller().fillGapsClicked(true);
    std::size_t from = 0;
    std::size_t to = static_cast<std::size_t>(highest) - 2;
    StationPtr moved;
    measure(state, {.prepare = [&] { moved = editor.stations()[from]; },
                    .run =
                        [&] {
                            editor.controller().moveElements(static_cast<qsizetype>(from), 1,
                                                             to == 0 ? 1 : highest);
                        },
                    .hasWorked =
                        [&] {
                            std::swap(from, to);
                            return editor.stations()[from] == moved && editor.isNumberedWell() &&
                                   editor.stations().back()->progNum() ==
                                       static_cast<qint64>(count);
                        },
                    .otherwise = "The station was not moved well"});
}

} // namespace

void addEditorRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto addAll = [&](const char *list, Counted counted) {
        const auto add = [&](const std::string &what, auto measurement) {
            rows.add(
                what + '/' + list,
                [&lists, measurement, list](benchmark::State &state) {
                    measurement(state, lists.bytes(list));
                },
                counted);
        };
        add("search", [](auto &state, auto &file) { searching(state, file, false); });
        add("search-first", [](auto &state, auto &file) { searching(state, file, true); });
        add("move", [](auto &state, auto &file) { moving(state, file, false); });
        add("move-first", [](auto &state, auto &file) { moving(state, file, true); });
        add("move-filling-gaps", movingWithoutGaps);
        add("undo-move", undoing);
    };
    addAll("plain-1000", Counted::Always);
    addAll("plain-10000", Counted::OnRequest);
}

} // namespace quillet::bench
