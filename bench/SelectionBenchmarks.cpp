#include "bench/SelectionBenchmarks.h"

#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/OpenWindow.h"
#include "bench/Rows.h"
#include "document/edit/ArrangeKey.h"
#include "editor/EditorView.h"

#include <array>
#include <string>

namespace quillet::bench {

namespace {

/// A command that is given by its menu item, and what takes it back.
struct Command
{
    const char *row;
    const char *name;      ///< null: the stations are sorted by their names, which a sheet asks for
    bool isUndone = false; ///< it is given beforehand, and undoing it is measured
    bool isOfSelection = false;   ///< and leaves nothing to undo
    const char *before = nullptr; ///< another one that it needs
};

constexpr std::array commands{
    Command{"scattered-skip", "skipSelectedItems"},
    Command{"scattered-lock", "changeChildLockForSelectedItems"},
    Command{"scattered-up", "moveUp"},
    Command{"scattered-top", "moveToTop"},
    Command{"scattered-sort", nullptr},
    Command{"scattered-paste", "paste", false, false, "copy"},
    Command{"scattered-undo-skip", "skipSelectedItems", true},
    Command{"scattered-undo-top", "moveToTop", true},
    Command{"scattered-invert", "invertSelection", false, true},
    Command{"scattered-none", "selectNone", false, true},
};

/// Every second one, from the second on.
QList<qsizetype> scatteredRows(qsizetype count)
{
    QList<qsizetype> rows;
    for (qsizetype row = 1; row < count; row += 2)
        rows.append(row);
    return rows;
}

void selecting(benchmark::State &state, const QString &file)
{
    const OpenWindow window(file);
    if (!window.editor())
        return fail(state, "The window was not opened");
    const QList<qsizetype> scattered = scatteredRows(window.rows());
    measure(state, {.prepare =
                        [&] {
                            window.editor()->selectRows({});
                            OpenWindow::settle();
                        },
                    .run =
                        [&] {
                            window.editor()->selectRows(scattered);
                            OpenWindow::settle();
                        },
                    .hasWorked = [&] { return window.editor()->selectedRows() == scattered; },
                    .otherwise = "The rows were not selected"});
}

void commanding(benchmark::State &state, const QString &file, const Command &command)
{
    const OpenWindow window(file);
    if (!window.editor())
        return fail(state, "The window was not opened");
    const QList<qsizetype> scattered = scatteredRows(window.rows());
    const UndoHistory &history = window.editor()->controller().stationDoc()->history();
    const auto isEdited = [&history] { return !history.isClean(); };
    measure(state, {.prepare =
                        [&] {
                            if (isEdited())
                                window.trigger("undo");
                            window.editor()->selectRows(scattered);
                            if (command.isUndone)
                                window.trigger(command.name);
                            if (command.before)
                                window.trigger(command.before);
                            OpenWindow::settle();
                        },
                    .run =
                        [&] {
                            if (command.name)
                                window.trigger(command.isUndone ? "undo" : command.name);
                            else
                                window.editor()->controller().arrangeByKeys({{ArrangeBy::Name}});
                            OpenWindow::settle();
                        },
                    .hasWorked =
                        [&] {
                            if (command.isOfSelection)
                                return window.editor()->selectedRows() != scattered;
                            return isEdited() != command.isUndone;
                        },
                    .otherwise = "The command did nothing"});
}

} // namespace

void addSelectionRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto addAll = [&](const char *list, Counted counted) {
        rows.add(
            std::string("scattered-select/") + list,
            [&lists, list](benchmark::State &state) { selecting(state, lists.path(list)); },
            counted);
        for (const Command &command : commands)
            rows.add(
                std::string(command.row) + '/' + list,
                [&lists, list, &command](benchmark::State &state) {
                    commanding(state, lists.path(list), command);
                },
                counted);
    };
    addAll("tv-1000", Counted::Always);
    addAll("tv-10000", Counted::OnRequest);
}

} // namespace quillet::bench
