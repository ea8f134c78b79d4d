#include "bench/SaveBenchmarks.h"

#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"
#include "bench/SavedDocument.h"

#include <string>

namespace quillet::bench {

namespace {

using Ending = SavedDocument::Ending;

/// Edited, a save replaces other bytes, which are kept first.
void saving(benchmark::State &state, const QString &file, bool isEdited)
{
    SavedDocument saved;
    if (!saved.open(file))
        return fail(state, "The file was not read");
    if (saved.save() == Ending::Asked && saved.answer(0) != Ending::Written)
        return fail(state, "The file was not repaired"); // and is from then on without a question
    Ending ending = Ending::Failed;
    measure(state, {.prepare =
                        [&] {
                            if (isEdited)
                                saved.edit();
                            emptyHeap();
                        },
                    .run = [&] { ending = saved.save(); },
                    .hasWorked = [&] { return ending == Ending::Written; },
                    .otherwise = "The file was not saved"});
}

void asking(benchmark::State &state, const QString &file)
{
    SavedDocument saved;
    if (!saved.open(file))
        return fail(state, "The file was not read");
    Ending ending = Ending::Failed;
    measure(
        state,
        {.prepare = emptyHeap,
         .run = [&] { ending = saved.save(); },
         .hasWorked = [&] { return ending == Ending::Asked && saved.answer(-1) == Ending::Failed; },
         .otherwise = "Nothing was asked before saving"});
}

} // namespace

void addSaveRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto add = [&](const std::string &what, const char *list, bool isEdited,
                         Counted counted) {
        rows.add(
            what + '/' + list,
            [&lists, list, isEdited](benchmark::State &state) {
                saving(state, lists.path(list), isEdited);
            },
            counted);
    };
    add("save", "real-1000", false, Counted::Always);
    add("save", "real-10000", false, Counted::OnRequest);
    add("save", "real-50000", false, Counted::Never);
    add("save", "plain-10000", false, Counted::OnRequest);
    add("save-edited", "real-1000", true, Counted::Always);
    add("save-edited", "plain-10000", true, Counted::OnRequest);
    add("save-edited", "real-json-1254", true, Counted::Always);
    rows.add(
        "ask-to-save/real-json-1254",
        [&lists](benchmark::State &state) { asking(state, lists.path("real-json-1254")); },
        Counted::Always);
}

} // namespace quillet::bench
