#include "document/repair/FileDiagnosis.h"

#include "document/list/ChannelList.h"
#include "document/list/SectionItems.h"
#include "document/read/ListReading.h"
#include "document/repair/MixedEncoding.h"
#include "document/repair/TextMending.h"
#include "model/FileWords.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr auto itemStart = fileword::tagStart(fileword::item);
constexpr auto itemEnd = fileword::endTag(fileword::item);

/// The place of the first station at or after a place; -1 when there is none.
qsizetype nextStation(const QByteArray &text, qsizetype from)
{
    constexpr QByteArrayView tag = itemStart.bytes();
    for (qsizetype at = text.indexOf(tag, from); at >= 0; at = text.indexOf(tag, at + 1)) {
        const char next = text.size() > at + tag.size() ? text[at + tag.size()] : '>';
        if (QByteArray(">/ \t\r\n").contains(next))
            return at;
    }
    return -1;
}

/// The place of a line and column, as good as they tell.
qsizetype placeOf(const ParseError &error, const QByteArray &text)
{
    qsizetype start = 0;
    for (int line = 1; line < error.line; ++line) {
        const qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            return text.size();
        start = end + 1;
    }
    return std::min<qsizetype>(start + std::max(error.column - 1, 0), text.size());
}

/// The entries of all stations that were begun, in the order of the file.
std::vector<Dictionary> begunStations(const Dictionary &tree)
{
    std::vector<Dictionary> stations;
    for (const QStringView section : sectionsInOrder(tree)) {
        const std::vector<Dictionary> entries = stationEntries(tree, section);
        stations.insert(stations.end(), entries.begin(), entries.end());
    }
    return stations;
}

FileFinding damage(const ChannelList &list)
{
    const ParseError &error = *list.parseError;
    FileFinding finding{FileFinding::Kind::Damaged, error.line, error.column};
    finding.isJSONList = list.isLegacyFormat;
    finding.isLimit = error.isLimit;
    const QByteArray text = list.text.utf8();
    const std::vector<Dictionary> begun = begunStations(list.tree);
    std::size_t count = 0;
    qsizetype lastBegun = -1;
    for (qsizetype at = nextStation(text, 0); at >= 0; at = nextStation(text, at + 1)) {
        if (++count == begun.size())
            lastBegun = at;
    }
    finding.unread = static_cast<qsizetype>(count - std::min(count, begun.size()));

    std::size_t whole = begun.size();
    if (lastBegun >= 0) {
        const qsizetype end = text.indexOf(itemEnd.bytes(), lastBegun);
        if (end < 0 || end >= placeOf(error, text))
            --whole;
    }
    if (whole > 0)
        finding.lastStation = LGStation(begun[whole - 1], 0).stationName();
    return finding;
}

/// A text of another kind than XML, or no text.
FileFinding::Kind kindOfOther(const FileText &text)
{
    constexpr qsizetype enough = 4096;
    const QString start = text.start(enough);
    // Without a mark a file is taken for UTF-16 because it begins with a byte that no text has.
    const bool isUnmarked =
        text.encoding() == TextEncoding::Utf16 && !text.bytes().startsWith("\xFF\xFE");
    const auto isControl = [](QChar c) { return c < u' ' && !c.isSpace(); };
    const bool isBinary = isUnmarked || std::any_of(start.begin(), start.end(), isControl);
    return isBinary ? FileFinding::Kind::BinaryList : FileFinding::Kind::NoXML;
}

} // namespace

QList<FileFinding> diagnose(const ChannelList &list)
{
    if (list.parseError && list.tree.isEmpty() && !list.parseError->isLimit)
        return {{.kind = kindOfOther(list.text)}};
    QList<FileFinding> findings;
    if (list.parseError)
        findings.append(damage(list));
    if (const auto &error = list.broadcast.error; error && list.isLegacyFormat)
        findings.append(
            {.kind = FileFinding::Kind::BadJSON, .line = error->line, .column = error->column});
    if (list.text.encoding() == TextEncoding::Latin1)
        findings.append({.kind = FileFinding::Kind::Latin1});
    if (contradictsDeclaration(list.text))
        findings.append({.kind = FileFinding::Kind::Declaration,
                         .declared = declaredEncoding(list.text).value_or(QString())});
    return findings;
}

std::optional<MendedText> repairedText(const ChannelList &list)
{
    if (!list.parseError)
        return {};
    std::optional<MendedText> mended = mendText(textToMend(list.text));
    if (!mended)
        return {};
    const std::optional<ChannelList> again = channelListFromBytes(mended->utf8);
    if (!again || again->parseError || (again->isLegacyFormat && again->broadcast.error))
        return {};
    const qsizetype wanted = list.stationCount() - (mended->mending.droppedStation ? 1 : 0);
    const bool isComplete = again->stationCount() > 0 && again->stationCount() >= wanted;
    return isComplete ? std::move(mended) : std::nullopt;
}

} // namespace quillet
