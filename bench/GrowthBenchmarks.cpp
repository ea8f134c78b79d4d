#include "bench/GrowthBenchmarks.h"

#include "bench/Measuring.h"
#include "bench/Rows.h"
#include "document/read/ListReading.h"
#include "document/repair/FileDiagnosis.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"

namespace quillet::bench {

namespace {

/// The text of a station or channel, around a piece that is repeated with a number for its "%1".
struct Text
{
    const char *before;
    const char *piece;
    const char *after;
    int count;
    bool isJSON = false;
};

constexpr std::array<Text, growths.size()> texts{{
    {"<!--", "--", "-->", 100'000},
    {"<f", " a%1='1'", "/>", 40'000},
    {"", "<f%1>1</f%1>", "", 9'000},
    {"<f>", "x<g>1</g>", "</f>", 50'000},
    {"<f>", "x<!--c-->", "</f>", 50'000},
    {"", ",\"k%1\":1", "", 50'000, true},
    {",\"k\":\"", "\\u00e4\\\"", "\"", 50'000, true},
}};

QByteArray fileWith(const Text &text, int times)
{
    QByteArray content = text.before;
    for (int i = 0; i < times * text.count; ++i)
        content += QByteArray(text.piece).replace("%1", QByteArray::number(i));
    content += text.after;
    if (text.isJSON)
        return "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[{\"majorNumber\":1,"
               "\"serviceType\":1,\"channelName\":\"A\"" +
               content + "}]}</legacybroadcast></CHANNEL></TLLDATA>";
    return "<TLLDATA><CHANNEL><DTV><ITEM><prNum>1</prNum><sourceIndex>3</sourceIndex>"
           "<serviceType>1</serviceType><vchName>A</vchName>" +
           content + "</ITEM></DTV></CHANNEL></TLLDATA>";
}

/// All that is done with a file between opening it and having saved it.
bool opensAndSaves(const QByteArray &file)
{
    std::optional<ChannelList> list = channelListFromBytes(file);
    if (!list || list->stationCount() != 1)
        return false;
    benchmark::DoNotOptimize(diagnose(*list));
    benchmark::DoNotOptimize(repairedText(*list));
    for (const QByteArray &saved :
         {writeTLL(*list, list->lists.listWithMostEntries(true)), repairedTLL(*list)})
        benchmark::DoNotOptimize(rehearse(*list, saved));
    return true;
}

void growing(benchmark::State &state, const Text &text, int times)
{
    const QByteArray file = fileWith(text, times);
    bool isRead = false;
    measure(state, {.prepare = {},
                    .run = [&] { isRead = opensAndSaves(file); },
                    .hasWorked = [&] { return isRead; },
                    .otherwise = "The file was not read"});
}

} // namespace

void addGrowthRows(Rows &rows)
{
    for (std::size_t i = 0; i < growths.size(); ++i) {
        const Text &text = texts[i];
        rows.add(
            growths[i].half, [&text](benchmark::State &state) { growing(state, text, 1); },
            Rows::Counted::Never);
        rows.add(
            growths[i].whole, [&text](benchmark::State &state) { growing(state, text, 2); },
            Rows::Counted::Never);
    }
}

} // namespace quillet::bench
