#include "document/FileDiagnosis.h"

#include "document/TLLDocument.h"
#include "document/repair/MixedEncoding.h"
#include "document/repair/TextMending.h"

#include <algorithm>

namespace quillet {

namespace {

qsizetype stationCount(const TLLDocument &document)
{
    qsizetype count = 0;
    for (const StationSource source : stationSources)
        count += document.lists().stationCount(static_cast<int>(source));
    return count;
}

/// The place of the first station at or after a place; -1 when there is none.
qsizetype nextStation(const QByteArray &text, qsizetype from)
{
    const QByteArray tag("<ITEM");
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
std::vector<const Dictionary *> stationsOf(const Dictionary &tree)
{
    std::vector<const Dictionary *> stations;
    const auto add = [&stations](const Value &item) {
        if (item.dictionary())
            stations.push_back(item.dictionary());
    };
    const Dictionary *channel = tree.dictionary(u"CHANNEL");
    if (!channel)
        return {};
    for (const auto &[key, section] : *channel) {
        const bool isSection = key == QLatin1String("ATV") || key == QLatin1String("DTV");
        const Value *items =
            isSection && section.dictionary() ? section.dictionary()->find(u"ITEM") : nullptr;
        if (!items)
            continue;
        if (items->array())
            std::for_each(items->array()->begin(), items->array()->end(), add);
        else
            add(*items);
    }
    return stations;
}

FileFinding damage(const TLLDocument &document)
{
    const ParseError &error = *document.parseError();
    FileFinding finding{FileFinding::Kind::Damaged, error.line, error.column};
    finding.isJSONList = document.isLegacyFormat();
    const QByteArray text = document.text().encoding() == TextEncoding::Utf8
                                ? document.text().utf8()
                                : document.text().toString().toUtf8();
    const std::vector<const Dictionary *> begun = stationsOf(document.xmlDictionary());
    std::size_t count = 0;
    qsizetype lastBegun = -1;
    for (qsizetype at = nextStation(text, 0); at >= 0; at = nextStation(text, at + 1)) {
        if (++count == begun.size())
            lastBegun = at;
    }
    finding.unread = static_cast<qsizetype>(count - std::min(count, begun.size()));

    std::size_t whole = begun.size();
    if (lastBegun >= 0) {
        const qsizetype end = text.indexOf("</ITEM>", lastBegun);
        if (end < 0 || end >= placeOf(error, text))
            --whole;
    }
    if (whole > 0)
        finding.lastStation = LGStation(*begun[whole - 1], 0).stationName();
    return finding;
}

/// A text of another kind than XML, or no text.
FileFinding::Kind kindOfOther(const FileText &text)
{
    constexpr qsizetype enough = 4096;
    const bool isUtf8 = text.encoding() == TextEncoding::Utf8;
    const QByteArray utf8 = text.utf8().first(qMin(enough, text.utf8().size()));
    const QString start = isUtf8 ? QString::fromUtf8(utf8) : text.toString().left(enough);
    // Without a mark a file is taken for UTF-16 because it begins with a byte that no text has.
    const bool isUnmarked =
        text.encoding() == TextEncoding::Utf16 && !start.startsWith(QChar::ByteOrderMark);
    const auto isControl = [](QChar c) { return c < u' ' && !c.isSpace(); };
    const bool isBinary = isUnmarked || std::any_of(start.begin(), start.end(), isControl);
    return isBinary ? FileFinding::Kind::BinaryList : FileFinding::Kind::NoXML;
}

} // namespace

QList<FileFinding> diagnose(const TLLDocument &document)
{
    if (document.parseError() && document.xmlDictionary().isEmpty())
        return {{.kind = kindOfOther(document.text())}};
    QList<FileFinding> findings;
    if (document.parseError())
        findings.append(damage(document));
    if (const auto &error = document.legacyBroadcast().error(); error && document.isLegacyFormat())
        findings.append(
            {.kind = FileFinding::Kind::BadJSON, .line = error->line, .column = error->column});
    if (document.text().encoding() == TextEncoding::Latin1)
        findings.append({.kind = FileFinding::Kind::Latin1});
    return findings;
}

std::optional<MendedText> repairedText(const TLLDocument &document)
{
    if (!document.parseError())
        return {};
    std::optional<MendedText> mended = mendText(textToMend(document.text()));
    if (!mended)
        return {};
    TLLDocument probe;
    Error unused;
    if (!probe.readFromData(mended->utf8, TLLDocument::typeName(), unused) || probe.parseError() ||
        (probe.isLegacyFormat() && probe.legacyBroadcast().error()))
        return {};
    const qsizetype wanted = stationCount(document) - (mended->mending.droppedStation ? 1 : 0);
    const bool isComplete = stationCount(probe) > 0 && stationCount(probe) >= wanted;
    return isComplete ? std::move(mended) : std::nullopt;
}

} // namespace quillet
