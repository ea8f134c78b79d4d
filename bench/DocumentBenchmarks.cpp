#include "bench/DocumentBenchmarks.h"

#include "bench/Document.h"
#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"

#include <libxml/parser.h>
#include <nlohmann/json.hpp>

#include <memory>
#include <string>

namespace quillet::bench {

namespace {

/// What all others are compared with: one pass over the bytes that does nothing with them.
void bare(benchmark::State &state, const QByteArray &bytes)
{
    xmlSAXHandler sax{};
    sax.startElement = [](void *, const xmlChar *, const xmlChar **) {};
    sax.endElement = [](void *, const xmlChar *) {};
    sax.characters = [](void *, const xmlChar *, int) {};
    int status = 0;
    measure(state, {.prepare = emptyHeap,
                    .run =
                        [&] {
                            status = xmlSAXUserParseMemory(&sax, nullptr, bytes.constData(),
                                                           static_cast<int>(bytes.size()));
                        },
                    .hasWorked = [&] { return status == 0 && !bytes.isEmpty(); },
                    .otherwise = "The file is not well-formed"});
}

/// What loading and saving JSON are compared with: the library's parse of the text inside the file,
/// into its own kind of tree.
void bareJSON(benchmark::State &state, const QByteArray &file)
{
    const QByteArray openTag("<legacybroadcast>");
    const qsizetype start = file.indexOf(openTag) + openTag.size();
    const qsizetype end = file.indexOf("</legacybroadcast>", start);
    if (end < 0)
        return fail(state, "There is no JSON list");
    const QByteArray text = file.sliced(start, end - start).replace("&amp;", "&");
    nlohmann::json tree;
    measure(
        state,
        {.prepare =
             [&] {
                 tree = nullptr;
                 emptyHeap();
             },
         .run = [&] { tree = nlohmann::json::parse(text.cbegin(), text.cend(), nullptr, false); },
         .hasWorked = [&] { return tree.is_object(); },
         .otherwise = "The JSON was not parsed"});
}

/// From the lists of a loaded document to bytes in memory. Writing the file is not in it.
void writing(benchmark::State &state, const QByteArray &bytes)
{
    TLLDocument document;
    if (!load(document, bytes))
        return fail(state, "The file was not read");
    showLongestList(document);
    // Channels are written in the order of their numbers, the stations here stand in it.
    const bool isSame = !document.isLegacyFormat() && document.list().beyondLastNumber == 0;
    QByteArray written;
    measure(
        state,
        {.prepare =
             [&] {
                 written.clear();
                 emptyHeap();
             },
         .run =
             [&] {
                 Error error;
                 written = document.dataOfType(TLLDocument::typeName(), error);
             },
         .hasWorked = [&] { return isSame ? written == bytes : written.size() > bytes.size() / 2; },
         .otherwise = "The file written is not the file read"});
}

} // namespace

void loading(benchmark::State &state, const QByteArray &bytes)
{
    std::unique_ptr<TLLDocument> document;
    bool isLoaded = false;
    measure(state, {.prepare =
                        [&] {
                            document = std::make_unique<TLLDocument>();
                            emptyHeap();
                        },
                    .run = [&] { isLoaded = load(*document, bytes); },
                    .hasWorked = [&] { return isLoaded; },
                    .otherwise = "The file was not read"});
}

void addDocumentRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto add = [&](const char *what, const char *list, auto measurement, Counted counted) {
        rows.add(
            std::string(what) + '/' + list,
            [&lists, measurement, list](benchmark::State &state) {
                measurement(state, lists.bytes(list));
            },
            counted);
    };
    const auto addAll = [&](const char *list, auto bareOne, Counted counted) {
        add("bare", list, bareOne, counted);
        add("load", list, loading, counted);
        add("write", list, writing, counted);
    };
    for (const char *list : {"plain-1000", "plain-10000", "real-1000", "real-10000"})
        addAll(list, bare, Counted::Always);
    for (const char *list : {"plain-100000", "real-300000"})
        addAll(list, bare, Counted::Never);
    addAll("real-json-1254", bareJSON, Counted::Always);
    addAll("json-10000", bareJSON, Counted::OnRequest);
}

} // namespace quillet::bench
