#include "document/review/TextCounts.h"

#include "model/FileWords.h"
#include "xml/XMLDictionaryParser.h"

#include <optional>

namespace quillet {

namespace {

constexpr auto itemStart = fileword::tagStart(fileword::item);
constexpr auto itemEnd = fileword::endTag(fileword::item);
constexpr auto atvStart = fileword::tagStart(fileword::atv);
constexpr auto dtvStart = fileword::tagStart(fileword::dtv);

/// Calls the function with the place behind each start tag of an element.
template<typename Visit>
void forEachStartTag(QByteArrayView text, QByteArrayView start, Visit visit)
{
    for (qsizetype at = text.indexOf(start); at >= 0; at = text.indexOf(start, at + 1)) {
        const qsizetype behind = at + start.size();
        const char next = behind < text.size() ? text[behind] : '>';
        if (QByteArrayView("> \t\r\n/").contains(next))
            visit(behind);
    }
}

/// Whether the element holds another one, or might where the text ends.
bool holdsElements(QByteArrayView text, qsizetype inStartTag)
{
    const qsizetype tagEnd = text.indexOf('>', inStartTag);
    if (tagEnd < 0)
        return true;
    if (text[tagEnd - 1] == '/')
        return false;
    const qsizetype next = text.indexOf('<', tagEnd);
    return next < 0 || next + 1 == text.size() || text[next + 1] != '/';
}

} // namespace

qsizetype stationsBegunIn(QByteArrayView utf8)
{
    qsizetype count = 0;
    forEachStartTag(utf8, itemStart.bytes(),
                    [&](qsizetype inTag) { count += holdsElements(utf8, inTag) ? 1 : 0; });
    return count;
}

qsizetype sectionsBegunIn(QByteArrayView utf8)
{
    qsizetype count = 0;
    for (const QByteArrayView section : {atvStart.bytes(), dtvStart.bytes()})
        forEachStartTag(utf8, section, [&count](qsizetype) { ++count; });
    return count;
}

std::vector<Dictionary> stationsBehind(const QByteArray &utf8, qsizetype from, qsizetype most)
{
    std::vector<Dictionary> entries;
    XMLDictionaryParser parser(XMLDictionaryParser::sharedInstance());
    parser.settings.nodeNameMode = XMLDictionaryParser::NodeNameMode::NameNever;
    qsizetype at = utf8.indexOf(itemStart.bytes(), from);
    while (at >= 0 && static_cast<qsizetype>(entries.size()) < most) {
        const qsizetype end = utf8.indexOf(itemEnd.bytes(), at);
        const qsizetype next = end < 0 ? utf8.size() : end + itemEnd.bytes().size();
        if (const std::optional<Dictionary> entry =
                parser.dictionaryWithData(utf8.sliced(at, next - at)))
            entries.push_back(*entry);
        at = utf8.indexOf(itemStart.bytes(), next);
    }
    return entries;
}

} // namespace quillet
