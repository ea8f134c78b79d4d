#include "document/repair/RepairedWriter.h"

#include "document/list/ChannelList.h"
#include "document/list/SectionItems.h"
#include "document/repair/RepairedBroadcast.h"
#include "document/repair/StationSpans.h"
#include "model/FileWords.h"
#include "xml/XMLCharacters.h"
#include "xml/XMLDictionaryParser.h"
#include "xml/XMLWriter.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>

namespace quillet {

namespace {

using Section = FilePlace::Section;

constexpr auto itemStart = fileword::startTag(fileword::item);

/// A stretch of the text and what takes its place.
struct Replacement
{
    TextSpan span;
    QByteArray text;
};

/// The text with the replacements, which do not overlap.
QByteArray replaced(const QByteArray &text, std::vector<Replacement> replacements)
{
    std::sort(replacements.begin(), replacements.end(),
              [](const auto &a, const auto &b) { return a.span.start < b.span.start; });
    QByteArray result;
    result.reserve(text.size() + text.size() / 8);
    qsizetype next = 0;
    for (const auto &[span, replacement] : replacements) {
        result.append(QByteArrayView(text).sliced(next, span.start - next));
        result.append(replacement);
        next = span.end;
    }
    return result.append(QByteArrayView(text).sliced(next));
}

/// Text for the content of an element: escaped, without the characters that XML cannot hold.
QByteArray escaped(QString text)
{
    text.removeIf([](QChar c) { return !c.isSurrogate() && !isXMLCharacter(c.unicode()); });
    return XMLEncodedString(text).toUtf8();
}

QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

/// Where fields may be added to an ITEM element, whose fields are given: at its end or, where the
/// text breaks off in it, behind its last whole field; negative when it has none.
qsizetype placeForFields(const QByteArray &item, const std::vector<ElementSpan> &fields,
                         bool isWhole)
{
    if (isWhole)
        return item.lastIndexOf("</");
    const auto last = std::find_if(fields.rbegin(), fields.rend(),
                                   [](const ElementSpan &field) { return field.isClosed; });
    return last == fields.rend() ? -1 : last->whole.end;
}

/// Where the blanks begin that stand before that place, on its own line and at the end of the one
/// before.
qsizetype startOfBlanks(const QByteArray &text, qsizetype place)
{
    while (place > 0 && (text[place - 1] == ' ' || text[place - 1] == '\t'))
        --place;
    if (place > 0 && text[place - 1] == '\n')
        --place;
    return place > 0 && text[place - 1] == '\r' ? place - 1 : place;
}

/// Gives the fields of that name another text, which takes the place of several. False when there
/// is none.
bool replaceText(const std::vector<ElementSpan> &fields, const QByteArray &name,
                 const QByteArray &text, std::vector<Replacement> &replacements)
{
    bool isWritten = false;
    for (const ElementSpan &field : fields) {
        if (field.name != name)
            continue;
        const bool isFirst = !std::exchange(isWritten, true);
        if (!field.isClosed)
            continue; // where it ends is not known
        if (!isFirst)
            replacements.push_back({field.whole, {}});
        else if (field.content.start == field.whole.end)
            replacements.push_back({field.whole, element(name, text)});
        else
            replacements.push_back({field.content, text});
    }
    return isWritten;
}

/// An ITEM element, as it was read, with the fields of the entry that differ from the original's.
/// One that is not whole ends with the text; a field that is not, stays.
QByteArray editedItem(const QByteArray &item, const Dictionary &original, const Dictionary &entry,
                      bool isWhole)
{
    const std::vector<ElementSpan> fields = elementSpans(item, {{}, {}});
    std::vector<Replacement> replacements;
    QByteArray added;
    for (const auto &[key, value] : entry) {
        const Value *before = original.find(key);
        const QString *text = value.string();
        if (!text || (before && *before == value))
            continue;
        const QByteArray name = key.toUtf8();
        const QByteArray content = escaped(*text);
        if (!replaceText(fields, name, content, replacements))
            added += element(name, content) + (item.contains("\r\n") ? "\r\n" : "\n");
    }
    for (const ElementSpan &field : fields) {
        const QString key = QString::fromUtf8(field.name);
        if (field.isClosed && original.contains(key) && !entry.contains(key))
            replacements.push_back({{startOfBlanks(item, field.whole.start), field.whole.end}, {}});
    }
    const qsizetype end = placeForFields(item, fields, isWhole);
    if (end >= 0 && !added.isEmpty())
        replacements.push_back({{end, end}, added});
    return replaced(item, std::move(replacements));
}

/// The ITEM elements of one section and the stations that were made of them.
class StationSection
{
public:
    StationSection(const ChannelList &list, const QByteArray &text, Section section)
        : m_section(section)
    {
        const QStringView name = section == Section::ATV ? fileword::atv : fileword::dtv;
        m_originals = sectionItems(list.tree, name);
        findItems(text, name.toUtf8());
    }

    [[nodiscard]] bool holds(const FiledStation &filed) const
    {
        return filed.place.section == m_section &&
               m_items.contains(static_cast<std::size_t>(filed.place.index));
    }

    /// Puts the stations, all of this section, into their own places, one after another.
    void replace(const QByteArray &text, const std::vector<FiledStation> &stations,
                 std::vector<Replacement> &replacements) const
    {
        std::vector<TextSpan> places;
        places.reserve(stations.size());
        for (const FiledStation &filed : stations)
            places.push_back(span(filed));
        std::sort(places.begin(), places.end(),
                  [](const TextSpan &a, const TextSpan &b) { return a.start < b.start; });
        for (std::size_t i = 0; i < stations.size(); ++i)
            replacements.push_back({places[i], itemText(text, stations[i])});
    }

    /// Writes the edits of the one that the text breaks off in, if it is of this section.
    void replaceBroken(const QByteArray &text, const std::vector<FiledStation> &roll,
                       std::vector<Replacement> &replacements) const
    {
        const qsizetype index = m_originals.count() - 1;
        const Dictionary *original = m_broken ? m_originals.at(index).dictionary() : nullptr;
        const auto filed =
            std::find_if(roll.begin(), roll.end(), [this, index](const FiledStation &each) {
                return each.place.section == m_section && each.place.index == index;
            });
        if (!original || filed == roll.end() || filed->station->entry() == *original)
            return;
        const QByteArray item = m_broken->in(text).toByteArray();
        replacements.push_back(
            {*m_broken, editedItem(item, *original, filed->station->entry(), false)});
    }

private:
    /// Elements that hold nothing were not read, so they are told from the others by what they
    /// hold. One that was broken off is not moved.
    void findItems(const QByteArray &text, const QByteArray &name)
    {
        XMLDictionaryParser parser(XMLDictionaryParser::sharedInstance());
        parser.settings.nodeNameMode = XMLDictionaryParser::NodeNameMode::NameNever;
        qsizetype next = 0;
        for (const ElementSpan &span : elementSpans(text, {{},
                                                           fileword::channel.bytes().toByteArray(),
                                                           name,
                                                           fileword::item.bytes().toByteArray()})) {
            if (next == m_originals.count())
                break;
            if (!span.isClosed) { // the last one, if it was read at all
                if (next + 1 == m_originals.count())
                    m_broken = span.whole;
                break;
            }
            const std::optional<Dictionary> entry =
                parser.dictionaryWithData(span.whole.in(text).toByteArray());
            const Dictionary *original = m_originals.at(next).dictionary();
            if (!entry || entry->isEmpty() || (original && !(*entry == *original)))
                continue;
            m_items.emplace(static_cast<std::size_t>(next++), span.whole);
        }
    }

    [[nodiscard]] TextSpan span(const FiledStation &filed) const
    {
        return m_items.at(static_cast<std::size_t>(filed.place.index));
    }

    [[nodiscard]] QByteArray itemText(const QByteArray &text, const FiledStation &filed) const
    {
        const QByteArray item = span(filed).in(text).toByteArray();
        const Dictionary &original = *m_originals.at(filed.place.index).dictionary();
        const Dictionary &entry = filed.station->entry();
        return entry == original ? item : editedItem(item, original, entry, true);
    }

    Section m_section;
    Array m_originals;                                 ///< the elements as they were read
    std::unordered_map<std::size_t, TextSpan> m_items; ///< by their index there
    std::optional<TextSpan> m_broken; ///< the last of them, when the text breaks off in it
};

/// All stations that were read, each once: list by list, and one by one those that no list holds
/// any more.
std::vector<std::vector<FiledStation>> stationsByList(const StationLists &lists)
{
    std::unordered_map<const LGStation *, FiledStation> left;
    for (const FiledStation &filed : lists.roll())
        left.emplace(filed.station.get(), filed);
    std::vector<std::vector<FiledStation>> result;
    for (const StationSource source : stationSources) {
        for (const bool isTV : {true, false}) {
            result.emplace_back();
            for (const StationPtr &station : *lists.list(isTV, static_cast<int>(source))) {
                const auto found = left.find(station.get());
                if (found == left.end())
                    continue; // there already
                result.back().push_back(found->second);
                left.erase(found);
            }
        }
    }
    for (const auto &[station, filed] : left)
        result.push_back({filed});
    return result;
}

/// A section is refused when its first ITEM element without attributes is far from its start: where
/// that was not so before, the first element changes places with one that has none. The stations'
/// numbers say in which order they are.
void keepFirstPlain(QByteArrayView text, std::vector<Replacement> &items)
{
    const auto isPlain = [](QByteArrayView item) { return item.startsWith(itemStart.bytes()); };
    const auto first =
        std::min_element(items.begin(), items.end(),
                         [](const auto &a, const auto &b) { return a.span.start < b.span.start; });
    if (first == items.end() || isPlain(first->text) || !isPlain(first->span.in(text)))
        return;
    const auto plain = std::find_if(items.begin(), items.end(),
                                    [&isPlain](const auto &item) { return isPlain(item.text); });
    if (plain != items.end())
        std::swap(first->text, plain->text);
}

QByteArray repairedStations(const ChannelList &list, const QByteArray &text)
{
    const std::vector<std::vector<FiledStation>> lists = stationsByList(list.lists);
    std::vector<Replacement> replacements;
    for (const Section section : {Section::ATV, Section::DTV}) {
        const StationSection places(list, text, section);
        std::vector<Replacement> ofThis;
        for (const std::vector<FiledStation> &stations : lists) {
            std::vector<FiledStation> ofSection;
            std::copy_if(stations.begin(), stations.end(), std::back_inserter(ofSection),
                         [&places](const FiledStation &filed) { return places.holds(filed); });
            places.replace(text, ofSection, ofThis);
        }
        keepFirstPlain(text, ofThis);
        places.replaceBroken(text, list.lists.roll(), ofThis);
        replacements.insert(replacements.end(), ofThis.begin(), ofThis.end());
    }
    return replaced(text, std::move(replacements));
}

/// In the encoding of the file that was read, if it can be told in it, else in UTF-8.
QByteArray encodedAs(const FileText &file, const QByteArray &utf8)
{
    if (utf8 == file.utf8())
        return file.bytes();
    const QString text = textFromUtf8(utf8);
    const QByteArray latin1 = text.toLatin1();
    const bool isLatin1 = file.encoding() == TextEncoding::Latin1 && !latin1.isValidUtf8() &&
                          QString::fromLatin1(latin1) == text;
    return isLatin1 ? latin1 : utf8;
}

} // namespace

QByteArray repairedTLL(const ChannelList &list)
{
    const QByteArray text = list.text.utf8();
    return encodedAs(list.text, list.isLegacyFormat ? repairedChannels(list, text)
                                                    : repairedStations(list, text));
}

} // namespace quillet
