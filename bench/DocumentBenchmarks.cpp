#include "bench/DocumentBenchmarks.h"

#include "bench/Failure.h"
#include "bench/Figures.h"
#include "document/TLLDocument.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"

#include <libxml/parser.h>
#include <nlohmann/json.hpp>

#include <memory>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace quillet::bench {

namespace {

/// Gives all free memory back to the system, outside the measured time. Every measurement here
/// starts so, the bare pass too, and pays for the pages it takes, as a program that was just
/// started does: else it would depend on what the one before it has left.
void emptyHeap(benchmark::State &state)
{
    state.PauseTiming();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    state.ResumeTiming();
}

/// What all others are compared with: one pass over the bytes that does nothing with them.
void bare(benchmark::State &state, const QByteArray &bytes)
{
    xmlSAXHandler sax{};
    sax.startElement = [](void *, const xmlChar *, const xmlChar **) {};
    sax.endElement = [](void *, const xmlChar *) {};
    sax.characters = [](void *, const xmlChar *, int) {};
    for ([[maybe_unused]] auto _ : state) {
        emptyHeap(state);
        if (xmlSAXUserParseMemory(&sax, nullptr, bytes.constData(),
                                  static_cast<int>(bytes.size())) != 0)
            return fail(state, "The file is not well-formed");
    }
}

/// What loading and saving JSON are compared with: the library's parse of the text inside the file,
/// into its own kind of tree.
void bareJSON(benchmark::State &state, const QByteArray &file)
{
    const QByteArray openTag("<legacybroadcast>");
    const qsizetype start = file.indexOf(openTag) + openTag.size();
    const qsizetype end = file.indexOf("</legacybroadcast>", start);
    const QByteArray text = file.sliced(start, end - start).replace("&amp;", "&");
    for ([[maybe_unused]] auto _ : state) {
        emptyHeap(state);
        auto tree = nlohmann::json::parse(text.cbegin(), text.cend(), nullptr, false);
        state.PauseTiming();
        if (!tree.is_object())
            return fail(state, "The JSON was not parsed");
        tree = nullptr;
        state.ResumeTiming();
    }
}

bool load(TLLDocument &document, const QByteArray &bytes)
{
    Error error;
    return document.readFromData(bytes, TLLDocument::typeName(), error) &&
           !document.list().parseError;
}

/// From bytes in memory to sorted lists in a new document. Reading the file is not in it, nor is
/// destroying the document.
void loading(benchmark::State &state, const QByteArray &bytes)
{
    for ([[maybe_unused]] auto _ : state) {
        emptyHeap(state);
        auto document = std::make_unique<TLLDocument>();
        if (!load(*document, bytes))
            return fail(state, "The file was not read");
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

/// From the lists of a loaded document to bytes in memory, which are compared and freed outside the
/// measured time. Writing the file is not in it.
void saving(benchmark::State &state, const QByteArray &bytes, bool isSorted)
{
    TLLDocument document;
    if (!load(document, bytes))
        return fail(state, "The file was not read");
    for ([[maybe_unused]] auto _ : state) {
        emptyHeap(state);
        Error error;
        QByteArray saved = document.dataOfType(TLLDocument::typeName(), error);
        state.PauseTiming();
        if (isSorted ? saved != bytes : saved.size() < bytes.size() / 2)
            return fail(state, "The file saved is not the file read");
        saved.clear();
        state.ResumeTiming();
    }
}

/// What a save does before it replaces the file: the bytes are read and compared.
void rehearsing(benchmark::State &state, const QByteArray &bytes)
{
    TLLDocument document;
    if (!load(document, bytes))
        return fail(state, "The file was not read");
    const QByteArray repaired = repairedTLL(document.list());
    for ([[maybe_unused]] auto _ : state) {
        emptyHeap(state);
        if (!rehearse(document.list(), repaired).isClean())
            return fail(state, "The file would lose something");
    }
}

} // namespace

void registerDocumentBenchmarks(const Files &files)
{
    benchmark::RegisterBenchmark(figure::bare10k, bare, files.stations10k);
    benchmark::RegisterBenchmark(figure::bare100k, bare, files.stations100k);
    benchmark::RegisterBenchmark(figure::load10k, loading, files.stations10k);
    benchmark::RegisterBenchmark(figure::load100k, loading, files.stations100k);
    benchmark::RegisterBenchmark(figure::save10k, saving, files.stations10k, true);
    benchmark::RegisterBenchmark(figure::save100k, saving, files.stations100k, true);
    benchmark::RegisterBenchmark(figure::rehearse10k, rehearsing, files.stations10k);
    benchmark::RegisterBenchmark(figure::rehearse100k, rehearsing, files.stations100k);
    benchmark::RegisterBenchmark(figure::rehearseJSON, rehearsing, files.channels10k);
    benchmark::RegisterBenchmark(figure::bareJSON, bareJSON, files.channels10k);
    benchmark::RegisterBenchmark(figure::loadJSON, loading, files.channels10k);
    benchmark::RegisterBenchmark(figure::saveJSON, saving, files.channels10k, false);
}

} // namespace quillet::bench
