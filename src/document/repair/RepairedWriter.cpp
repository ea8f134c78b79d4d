#include "document/repair/RepairedWriter.h"

#include "document/list/ChannelList.h"
#include "document/list/SectionItems.h"
#include "document/repair/EditedItem.h"
#include "document/repair/RepairedBroadcast.h"
#include "document/repair/StationSpans.h"
#include "model/FileWords.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>

namespace quillet {

namespace {

using Section = FilePlace::Section;

constexpr auto itemStart = fileword::startTag(fileword::item);

/// The ITEM elements of one section and the stations that were made of them.
class StationSection
{
public:
    StationSection(const ChannelList &list, const QByteArray &text, Section section)
        : m_section(section)
    {
        const QStringView name = section == Section::ATV ? fileword::atv : fileword::dtv;
        m_originals = sectionItems(list.tree, name);
        m_items.resize(static_cast<std::size_t>(m_originals.count()));
        if (!takeNotedItems(text))
            findItems(text, name.toUtf8());
    }

    [[nodiscard]] bool holds(const FiledStation &filed) const
    {
        return filed.place.section == m_section && span(filed).end > 0;
    }

    /// Puts the stations, all of this section, into their own places, one after another.
    void replace(const QByteArray &text, const std::vector<const FiledStation *> &stations,
                 std::vector<Replacement> &replacements) const
    {
        std::vector<TextSpan> places;
        places.reserve(stations.size());
        for (const FiledStation *filed : stations)
            places.push_back(span(*filed));
        std::sort(places.begin(), places.end(),
                  [](const TextSpan &a, const TextSpan &b) { return a.start < b.start; });
        for (std::size_t i = 0; i < stations.size(); ++i)
            replacements.push_back({places[i], itemText(text, *stations[i])});
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
    /// Where the elements were noted, if that was in this very text; false if one was not.
    bool takeNotedItems(const QByteArray &text)
    {
        for (qsizetype i = 0; i < m_originals.count(); ++i) {
            const Dictionary *original = m_originals.at(i).dictionary();
            if (!original)
                continue;
            const ElementText *origin = original->origin();
            if (!origin || origin->texts->utf8().constData() != text.constData())
                return false;
            const qsizetype start = origin->element.start;
            m_items[static_cast<std::size_t>(i)] = {start, start + origin->element.size};
        }
        return true;
    }

    /// Elements that hold nothing were not read, so they are told from the others by what they
    /// hold. One that was broken off is not moved.
    void findItems(const QByteArray &text, const QByteArray &name)
    {
        const std::vector<QByteArray> path{{},
                                           fileword::channel.bytes().toByteArray(),
                                           name,
                                           fileword::item.bytes().toByteArray()};
        qsizetype next = 0;
        for (const ElementSpan &span : elementSpans(text, path, WithNodes::Yes)) {
            if (next == m_originals.count())
                break;
            if (!span.isClosed) { // the last one, if it was read at all
                if (next + 1 == m_originals.count())
                    m_broken = span.whole;
                break;
            }
            const Dictionary *original = m_originals.at(next).dictionary();
            if (!span.node || span.node->isEmpty() || (original && !(*span.node == *original)))
                continue;
            m_items[static_cast<std::size_t>(next++)] = span.whole;
        }
    }

    [[nodiscard]] TextSpan span(const FiledStation &filed) const
    {
        const auto index = static_cast<std::size_t>(filed.place.index);
        return index < m_items.size() ? m_items[index] : TextSpan();
    }

    [[nodiscard]] QByteArray itemText(const QByteArray &text, const FiledStation &filed) const
    {
        const QByteArrayView whole = span(filed).in(text);
        const QByteArray item = QByteArray::fromRawData(whole.data(), whole.size());
        const Dictionary &original = *m_originals.at(filed.place.index).dictionary();
        const Dictionary &entry = filed.station->entry();
        return entry == original ? item : editedItem(item, original, entry, true);
    }

    Section m_section;
    Array m_originals;                ///< the elements as they were read
    std::vector<TextSpan> m_items;    ///< where these stand; nowhere, if that is not known
    std::optional<TextSpan> m_broken; ///< the last of them, when the text breaks off in it
};

/// All stations that were read, each once: list by list, and one by one those that no list holds
/// any more.
std::vector<std::vector<const FiledStation *>> stationsByList(const StationLists &lists)
{
    std::unordered_map<const LGStation *, const FiledStation *> left;
    left.reserve(lists.roll().size());
    for (const FiledStation &filed : lists.roll())
        left.emplace(filed.station.get(), &filed);
    std::vector<std::vector<const FiledStation *>> result;
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
    const std::vector<std::vector<const FiledStation *>> lists = stationsByList(list.lists);
    std::vector<Replacement> replacements;
    for (const Section section : {Section::ATV, Section::DTV}) {
        const StationSection places(list, text, section);
        std::vector<Replacement> ofThis;
        for (const std::vector<const FiledStation *> &stations : lists) {
            std::vector<const FiledStation *> ofSection;
            std::copy_if(stations.begin(), stations.end(), std::back_inserter(ofSection),
                         [&places](const FiledStation *filed) { return places.holds(*filed); });
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
    if (file.encoding() != TextEncoding::Latin1)
        return utf8;
    const QString text = textFromUtf8(utf8);
    const QByteArray latin1 = text.toLatin1();
    const bool isLatin1 = !latin1.isValidUtf8() && QString::fromLatin1(latin1) == text;
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
