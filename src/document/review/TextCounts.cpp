#include "document/review/TextCounts.h"

#include "document/list/FileWords.h"
#include "document/review/ListContent.h"
#include "xml/XMLDictionaryParser.h"

#include <optional>

namespace quillet {

namespace {

constexpr auto itemStart = fileword::tagStart(fileword::item);
constexpr auto itemEnd = fileword::endTag(fileword::item);
constexpr FileWord emptyItem(itemStart, FileWord("/>"));
constexpr auto atvStart = fileword::tagStart(fileword::atv);
constexpr auto dtvStart = fileword::tagStart(fileword::dtv);

/// How often a start tag stands there that nothing goes on behind but attributes or its end.
qsizetype tagsIn(QByteArrayView text, QByteArrayView start)
{
    qsizetype count = 0;
    for (const char behind : {'>', ' ', '\t', '\r', '\n', '/'}) {
        const QByteArray tag = start.toByteArray() + behind;
        count += occurrences(text, tag, start.size() - 1);
    }
    return count;
}

} // namespace

qsizetype stationsBegunIn(QByteArrayView utf8)
{
    return tagsIn(utf8, itemStart.bytes()) - occurrences(utf8, emptyItem.bytes(), 4);
}

qsizetype sectionsBegunIn(QByteArrayView utf8)
{
    return tagsIn(utf8, atvStart.bytes()) + tagsIn(utf8, dtvStart.bytes());
}

std::vector<Dictionary> stationsBehind(const QByteArray &utf8, qsizetype from, qsizetype most)
{
    std::vector<Dictionary> entries;
    XMLDictionaryParser parser(XMLDictionaryParser::sharedInstance());
    parser.settings.nodeNameMode = XMLDictionaryParser::NodeNameMode::NameNever;
    qsizetype at = utf8.indexOf(itemStart.bytes(), from);
    while (at >= 0 && static_cast<qsizetype>(entries.size()) < most) {
        const qsizetype end = utf8.indexOf(itemEnd.bytes(), at);
        if (end < 0)
            break;
        const qsizetype next = end + itemEnd.bytes().size();
        if (const std::optional<Dictionary> entry =
                parser.dictionaryWithData(utf8.sliced(at, next - at)))
            entries.push_back(*entry);
        at = utf8.indexOf(itemStart.bytes(), next);
    }
    return entries;
}

} // namespace quillet
