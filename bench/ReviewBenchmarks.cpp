#include "bench/ReviewBenchmarks.h"

#include "bench/Document.h"
#include "bench/DocumentBenchmarks.h"
#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"

#include <string>

namespace quillet::bench {

namespace {

enum class Writing { Plain, Repaired };

/// The same list with something in each station that the plain writing does not keep.
QByteArray withLosses(QByteArray file)
{
    file.replace("<ITEM>", "<ITEM><!-- found -->");
    return file.replace("<vchName>", "<vchName type=\"0\">");
}

/// As a document is saved whose list is on show.
QByteArray written(TLLDocument &document, Writing writing)
{
    Error error;
    return writing == Writing::Repaired ? repairedTLL(document.list())
                                        : document.dataOfType(TLLDocument::typeName(), error);
}

void rehearsing(benchmark::State &state, const QByteArray &file, Writing writing, bool isClean)
{
    TLLDocument document;
    if (!load(document, file))
        return fail(state, "The file was not read");
    showLongestList(document);
    const QByteArray bytes = written(document, writing);
    Rehearsal result;
    measure(state, {.prepare = emptyHeap,
                    .run = [&] { result = rehearse(document.list(), bytes); },
                    .hasWorked = [&] { return !result.isRefused && result.isClean() == isClean; },
                    .otherwise = "The file would lose something else than expected"});
}

void repairing(benchmark::State &state, const QByteArray &file)
{
    TLLDocument document;
    if (!load(document, file))
        return fail(state, "The file was not read");
    showLongestList(document);
    // As most that are saved it has been edited, here and there.
    std::size_t place = 0;
    for (const FiledStation &filed : document.lists().roll()) {
        if (place++ % 100 == 0)
            filed.station->setSkipped(!filed.station->isSkipped());
    }
    QByteArray repaired;
    measure(state, {.prepare =
                        [&] {
                            repaired.clear();
                            emptyHeap();
                        },
                    .run = [&] { repaired = repairedTLL(document.list()); },
                    .hasWorked = [&] { return repaired.size() > file.size() / 2; },
                    .otherwise = "The list was not written"});
}

} // namespace

void addReviewRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto add = [&](const std::string &what, const char *list, auto measurement,
                         Counted counted) {
        rows.add(
            what + '/' + list,
            [&lists, measurement, list](benchmark::State &state) {
                measurement(state, lists.bytes(list));
            },
            counted);
    };
    const auto addAll = [&](const char *list, bool isPlainClean, Counted counted) {
        add(
            "rehearse-plain", list,
            [isPlainClean](auto &state, auto &file) {
                rehearsing(state, file, Writing::Plain, isPlainClean);
            },
            counted);
        add(
            "rehearse-repaired", list,
            [](auto &state, auto &file) { rehearsing(state, file, Writing::Repaired, true); },
            counted);
        add("repair", list, repairing, counted);
    };
    const auto addLosing = [&](const char *list, Counted counted) {
        add(
            "load-losses", list, [](auto &state, auto &file) { loading(state, withLosses(file)); },
            counted);
        add(
            "rehearse-losses", list,
            [](auto &state, auto &file) {
                rehearsing(state, withLosses(file), Writing::Plain, false);
            },
            counted);
        add(
            "rehearse-losses-repaired", list,
            [](auto &state, auto &file) {
                rehearsing(state, withLosses(file), Writing::Repaired, true);
            },
            counted);
        add(
            "repair-losses", list,
            [](auto &state, auto &file) { repairing(state, withLosses(file)); }, counted);
    };
    addAll("real-1000", true, Counted::Always);
    addAll("real-10000", true, Counted::OnRequest);
    addAll("real-50000", true, Counted::Never);
    addAll("plain-10000", true, Counted::OnRequest);
    addAll("real-json-1254", false, Counted::Always);
    addAll("json-10000", false, Counted::OnRequest);
    addLosing("real-1000", Counted::Always);
    addLosing("real-10000", Counted::OnRequest);
}

} // namespace quillet::bench
