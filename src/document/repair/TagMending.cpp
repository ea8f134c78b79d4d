#include "document/repair/TagMending.h"

#include "document/repair/Mending.h"
#include "document/repair/TextChanges.h"
#include "model/FileWords.h"
#include "xml/EventParser.h"

namespace quillet {

using Kind = TextChanges::Kind;

void TagMending::startElement(qsizetype at, const ScannedTag &tag)
{
    if (m_open.isEmpty() && m_hadRoot) {
        m_hasFailed = true;
        return;
    }
    closeWhatCannotHold(tag.name, at);
    if (!m_open.isEmpty() && m_open.last().firstChild < 0)
        m_open.last().firstChild = at;
    m_hadRoot = true;
    m_open.push({tag.name, at, tag.end});
    if (m_open.count() > EventParser::maxDepth)
        m_hasFailed = true;
    if (tag.isEmpty)
        pop(tag.end);
}

/// Stations, sections and channel lists never stand inside one of their kind, nor a channel list in
/// anything but the root.
void TagMending::closeWhatCannotHold(QByteArrayView name, qsizetype at)
{
    if (name == fileword::item.bytes() && m_open.station())
        closeDownTo(*m_open.station(), at);
    else if (name == fileword::channel.bytes() && m_open.count() > 1)
        closeDownTo(1, at);
    else if (const auto section = m_open.section(); isSectionTag(name) && section)
        closeDownTo(*section, at);
}

void TagMending::pop(qsizetype end)
{
    m_lastName = m_open.last().name;
    m_lastEnd = end;
    m_open.pop();
}

void TagMending::endElement(qsizetype at, const ScannedTag &tag)
{
    const auto index = m_open.find(tag.name);
    if (!index)
        endUnopened(at, tag);
    else if (*index + 1 == m_open.count())
        pop(tag.end);
    else
        endEnclosing(*index, at, tag);
}

/// An end tag of an element in which others are still open.
void TagMending::endEnclosing(std::size_t index, qsizetype at, const ScannedTag &tag)
{
    const OpenElement &element = m_open[index];
    if (!m_open.isContainer(index) && endOfText(element, at) > element.content) {
        // What looked like tags is text.
        for (; m_open.count() > index + 1; m_open.discard())
            m_changes.escape(m_open.last().start, "&lt;");
    } else {
        closeDownTo(index + 1, at);
    }
    pop(tag.end);
}

/// An end tag of an element that is not open.
void TagMending::endUnopened(qsizetype at, const ScannedTag &tag)
{
    if (tag.name == m_lastName && m_scanner.isBlankBetween(m_lastEnd, at)) { // there twice
        m_changes.remove(at, tag.end - at, Kind::Tag);
        return;
    }
    if (!m_open.isLastALeaf()) {
        m_hasFailed = true;
        return;
    }
    const qsizetype next = m_scanner.nextBracket(tag.end);
    if (next >= 0 && m_scanner.startsWith(next, "</") &&
        m_scanner.endTagAt(next).name == m_open.last().name) {
        m_changes.escape(at, "&lt;"); // text of that element
        return;
    }
    endMisnamed(at, tag);
}

/// Of a start and an end tag that differ, the one whose name is more often seen is right.
void TagMending::endMisnamed(qsizetype at, const ScannedTag &tag)
{
    OpenElement &element = m_open.last();
    if (endTagsNamed(tag.name) > endTagsNamed(element.name)) {
        m_changes.replace(element.start + 1, element.name.size(), tag.name.toByteArray(),
                          Kind::Tag);
        element.name = tag.name;
    } else {
        m_changes.replace(at + 2, tag.name.size(), element.name.toByteArray(), Kind::Tag);
    }
    pop(tag.end);
}

int TagMending::endTagsNamed(QByteArrayView name)
{
    if (m_endTags.isEmpty()) {
        const QByteArray &text = m_scanner.text();
        for (qsizetype at = text.indexOf("</"); at >= 0; at = text.indexOf("</", at + 2))
            ++m_endTags[m_scanner.nameAt(at + 2)];
    }
    return m_endTags.value(name);
}

/// Where the text ends that an element begins with, and which has ended by the given place.
qsizetype TagMending::endOfText(const OpenElement &element, qsizetype at) const
{
    return m_scanner.trimmedEnd(element.content, element.firstChild < 0 ? at : element.firstChild);
}

/// Adds the end tags of the innermost elements, until so many are open. An element that holds text
/// ends with it, and what follows stands beside it; any other ends at the place.
void TagMending::closeDownTo(std::size_t size, qsizetype at)
{
    while (m_open.count() > size) {
        const std::size_t index = m_open.count() - 1;
        const OpenElement &element = m_open.last();
        const qsizetype textEnd = endOfText(element, at);
        const bool endsWithText =
            !m_open.isContainer(index) && (m_open.isField(index) || textEnd > element.content);
        const qsizetype end = endsWithText ? textEnd : at;
        m_changes.insert(end, "</" + element.name.toByteArray() + '>', Kind::Tag);
        pop(end);
    }
}

void TagMending::closeAtEnd()
{
    if (!m_changes.isCut())
        m_changes.cut(m_scanner.size());
    const auto station = m_open.station();
    std::size_t kept = station ? *station + 1 : m_open.count();
    if (!station && kept > 1 && m_open.isLastALeaf())
        --kept;
    m_keptStation = station && m_open.canStationBeFiled();
    m_droppedStation = station && !m_keptStation;
    if (m_droppedStation)
        --kept;
    if (kept < m_open.count())
        m_changes.cut(m_open[kept].start);

    const QByteArray lineEnd = m_scanner.text().contains("\r\n") ? "\r\n" : "\n";
    QByteArray closing;
    for (; kept > 0; --kept)
        closing += "</" + m_open[kept - 1].name.toByteArray() + '>' + lineEnd;
    const qsizetype end = m_changes.cutPlace();
    if (end > 0 && m_scanner.text()[end - 1] != '\n' && !closing.isEmpty())
        closing.prepend(lineEnd);
    m_changes.setEnd(closing);
}

void TagMending::countInto(Mending &mending) const
{
    mending.keptStation = m_keptStation;
    mending.droppedStation = m_droppedStation;
}

} // namespace quillet
