#include "document/repair/TextMending.h"

#include "document/list/FileText.h"
#include "xml/EventParser.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <vector>

namespace quillet {

namespace {

using View = QByteArrayView;

constexpr View station = "ITEM";
/// By these a digital station is filed; without them it would be in the way of others.
constexpr std::array<View, 2> filingFields{"sourceIndex", "serviceType"};
constexpr View channel = "CHANNEL";
constexpr std::array<View, 2> sections{"ATV", "DTV"};
constexpr std::array<View, 5> predefined{"amp", "lt", "gt", "quot", "apos"};
constexpr View byteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' || c < 0;
}

bool isNamePart(char c)
{
    return isNameStart(c) || isDigit(c) || c == '-' || c == '.';
}

bool isSection(View name)
{
    return std::find(sections.begin(), sections.end(), name) != sections.end();
}

/// A code point that XML text may hold.
bool isAllowed(uint character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character < 0xD800 || (character > 0xDFFF && character < 0xFFFE) ||
           (character > 0xFFFF && character < 0x110000);
}

/// The text without the characters that no XML text may hold, and how many there were.
QByteArray withoutControls(const QByteArray &utf8, qsizetype &count)
{
    const auto forbidden = [&utf8](qsizetype i) -> qsizetype {
        const char c = utf8[i];
        if (c >= 0 && c < 0x20)
            return isAllowed(static_cast<uint>(c)) ? 0 : 1;
        const bool isNone = c == '\xEF' && i + 2 < utf8.size() && utf8[i + 1] == '\xBF' &&
                            (utf8[i + 2] == '\xBE' || utf8[i + 2] == '\xBF');
        return isNone ? 3 : 0;
    };
    QByteArray kept;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const qsizetype length = forbidden(i);
        if (length == 0)
            continue;
        kept.append(View(utf8).sliced(copied, i - copied));
        copied = i + length;
        i = copied - 1;
        ++count;
    }
    return copied == 0 ? utf8 : kept.append(View(utf8).sliced(copied));
}

/// Bytes of which some are UTF-8 and the others Latin-1.
QByteArray mixedToUtf8(const QByteArray &bytes)
{
    QByteArray utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (qsizetype i = 0; i < bytes.size();) {
        qsizetype length = 1;
        if (bytes[i] < 0) {
            const qsizetype longest = std::min<qsizetype>(4, bytes.size() - i);
            for (length = 2; length <= longest; ++length) {
                if (View(bytes).sliced(i, length).isValidUtf8())
                    break;
            }
            if (length > longest)
                length = 1;
        }
        if (length > 1 || bytes[i] >= 0)
            utf8.append(View(bytes).sliced(i, length));
        else
            utf8.append(QString(QLatin1Char(bytes[i])).toUtf8());
        i += length;
    }
    return utf8;
}

class NoEvents final : public EventHandler
{
public:
    void startElement(const char *, const char *const *) override {}
    void endElement() override {}
    void characters(QByteArrayView) override {}
    void cdataBlock(QByteArrayView) override {}
    void comment(QByteArrayView) override {}
};

/// Walks once through a text from "<" to "<", keeps count of the open elements and notes what must
/// be changed; the changes are made at the end.
class Mender
{
public:
    explicit Mender(const QByteArray &text) : m_text(text) {}

    /// False when the text cannot be mended.
    bool run();
    [[nodiscard]] QByteArray result() const;
    void countInto(Mending &mending) const;

private:
    enum class Kind { Ampersand, Bracket, Control, Tag, Stray };
    struct Change
    {
        qsizetype at;
        qsizetype length; ///< of what is replaced
        QByteArray text;
        Kind kind;
    };
    struct Element
    {
        View name;
        qsizetype start;   ///< of its tag
        qsizetype content; ///< the end of its tag
        qsizetype firstChild = -1;
    };
    struct Tag
    {
        View name;
        qsizetype end = -1;
        bool isEmpty = false;
        [[nodiscard]] bool isWhole() const { return end >= 0; }
    };
    /// A mark that ends something, looked for from one place to the next.
    struct Terminator
    {
        View mark;
        qsizetype next = 0; ///< where it was last found
    };

    /// Whether it is no part of what was cut off; end tags may be added right before that.
    [[nodiscard]] bool isKept(const Change &each) const
    {
        return m_cut < 0 || each.at < m_cut || (each.at == m_cut && each.length == 0);
    }
    void change(qsizetype at, qsizetype length, const QByteArray &text, Kind kind)
    {
        m_changes.push_back({at, length, text, kind});
    }
    [[nodiscard]] bool startsWith(qsizetype at, View text) const
    {
        return View(m_text).sliced(at).startsWith(text);
    }
    [[nodiscard]] bool isBlankBetween(qsizetype from, qsizetype to) const
    {
        return std::all_of(m_text.begin() + from, m_text.begin() + to, isBlank);
    }
    [[nodiscard]] qsizetype skipBlanks(qsizetype at) const;
    [[nodiscard]] View nameAt(qsizetype at) const;
    [[nodiscard]] Tag startTagAt(qsizetype at) const;
    [[nodiscard]] Tag endTagAt(qsizetype at) const;
    [[nodiscard]] qsizetype endOf(qsizetype at, Terminator &terminator) const;

    void takeText(qsizetype from, qsizetype to);
    void takeReferences(qsizetype from, qsizetype to);
    void takeReference(qsizetype at);
    qsizetype takeMarkup(qsizetype at);
    qsizetype takeSpecial(qsizetype at);
    qsizetype takeDocumentType(qsizetype at);
    qsizetype takeBracket(qsizetype at);
    void startElement(qsizetype at, const Tag &tag);
    void endElement(qsizetype at, const Tag &tag);
    void endUnopened(qsizetype at, const Tag &tag);
    void endMisnamed(qsizetype at, const Tag &tag);
    [[nodiscard]] int endTagsNamed(View name);
    void endEnclosing(std::size_t index, qsizetype at, const Tag &tag);
    void push(const Element &element);
    void pop(qsizetype end);
    void closeDownTo(std::size_t size, qsizetype at);
    [[nodiscard]] qsizetype endOfText(const Element &element, qsizetype at) const;
    [[nodiscard]] bool isContainer(std::size_t index) const;
    [[nodiscard]] bool isField(std::size_t index) const { return m_item && index > *m_item; }
    void closeAtEnd();

    const QByteArray &m_text;
    QHash<QByteArrayView, int> m_endTags; ///< how many there are of a name, once that was asked for
    std::vector<Change> m_changes;
    std::vector<Element> m_open;
    std::optional<std::size_t> m_item; ///< which open element is a station
    bool m_itemHasField = false;
    std::size_t m_filingFields = 0; ///< how many of them the station has
    bool m_hadRoot = false;
    bool m_failed = false;
    qsizetype m_cut = -1; ///< nothing is kept from here on; negative: all is
    QByteArray m_closing;
    bool m_keptStation = false;
    bool m_droppedStation = false;
    View m_lastName; ///< of the end tag read last
    qsizetype m_lastEnd = 0;
    Terminator m_comment{"-->"}, m_cdata{"]]>"}, m_instruction{"?>"};
};

qsizetype Mender::skipBlanks(qsizetype at) const
{
    while (at < m_text.size() && isBlank(m_text[at]))
        ++at;
    return at;
}

View Mender::nameAt(qsizetype at) const
{
    qsizetype end = at;
    if (end < m_text.size() && isNameStart(m_text[end])) {
        while (end < m_text.size() && isNamePart(m_text[end]))
            ++end;
    }
    return View(m_text).sliced(at, end - at);
}

Mender::Tag Mender::startTagAt(qsizetype at) const
{
    Tag tag{nameAt(at + 1)};
    qsizetype i = at + 1 + tag.name.size();
    if (tag.name.isEmpty())
        return tag;
    while (i < m_text.size()) {
        const qsizetype next = skipBlanks(i);
        if (startsWith(next, ">") || startsWith(next, "/>")) {
            tag.isEmpty = m_text[next] == '/';
            tag.end = next + (tag.isEmpty ? 2 : 1);
            return tag;
        }
        const qsizetype length = nameAt(next).size();
        const qsizetype equals = skipBlanks(next + length);
        if (next == i || length == 0 || !startsWith(equals, "="))
            return tag;
        const qsizetype open = skipBlanks(equals + 1);
        if (!startsWith(open, "\"") && !startsWith(open, "'"))
            return tag;
        i = open + 1;
        while (i < m_text.size() && m_text[i] != m_text[open] && m_text[i] != '<')
            ++i;
        if (i == m_text.size() || m_text[i] == '<')
            return tag;
        ++i;
    }
    return tag;
}

Mender::Tag Mender::endTagAt(qsizetype at) const
{
    Tag tag{nameAt(at + 2)};
    const qsizetype end = skipBlanks(at + 2 + tag.name.size());
    if (!tag.name.isEmpty() && startsWith(end, ">"))
        tag.end = end + 1;
    return tag;
}

/// The end of what begins at a place and ends with the mark; negative when it does not end.
qsizetype Mender::endOf(qsizetype at, Terminator &terminator) const
{
    if (terminator.next >= 0 && terminator.next < at)
        terminator.next = View(m_text).indexOf(terminator.mark, at);
    return terminator.next < 0 ? -1 : terminator.next + terminator.mark.size();
}

bool Mender::run()
{
    qsizetype i = m_text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    while (i < m_text.size() && !m_failed && m_cut < 0) {
        const qsizetype found = m_text.indexOf('<', i);
        const qsizetype bracket = found < 0 ? m_text.size() : found;
        takeText(i, bracket);
        i = bracket < m_text.size() ? takeMarkup(bracket) : bracket;
    }
    if (!m_failed && (!m_open.empty() || m_cut >= 0))
        closeAtEnd();
    return !m_failed && m_hadRoot;
}

void Mender::takeText(qsizetype from, qsizetype to)
{
    if (m_open.empty()) {
        // Before an XML declaration not even a blank may stand.
        const bool mayStay =
            isBlankBetween(from, to) && (from == to || m_hadRoot || !startsWith(to, "<?xml"));
        if (!mayStay)
            change(from, to - from, {}, Kind::Stray);
        return;
    }
    takeReferences(from, to);
    for (qsizetype end = endOf(from, m_cdata); end >= 0 && end <= to; end = endOf(end, m_cdata))
        change(end - 1, 1, "&gt;", Kind::Bracket);
}

void Mender::takeReferences(qsizetype from, qsizetype to)
{
    const View text = View(m_text).first(to);
    for (qsizetype i = text.indexOf('&', from); i >= 0; i = text.indexOf('&', i + 1))
        takeReference(i);
}

void Mender::takeReference(qsizetype at)
{
    constexpr qsizetype longest = 16;
    const View text = View(m_text).sliced(at + 1).first(std::min(longest, m_text.size() - at - 1));
    const View name = text.first(std::max<qsizetype>(text.indexOf(';'), 0));
    if (std::find(predefined.begin(), predefined.end(), name) != predefined.end())
        return;
    const bool isHex = name.startsWith("#x");
    const View digits = name.sliced(std::min<qsizetype>(isHex ? 2 : 1, name.size()));
    bool isNumber = false;
    uint number = 0;
    if (name.startsWith('#') && std::all_of(digits.begin(), digits.end(), isNamePart))
        number = digits.toByteArray().toUInt(&isNumber, isHex ? 16 : 10);
    if (!isNumber)
        change(at, 1, "&amp;", Kind::Ampersand);
    else if (!isAllowed(number))
        change(at, name.size() + 2, {}, Kind::Control);
}

/// Takes what begins with a "<" and gives where it ends.
qsizetype Mender::takeMarkup(qsizetype at)
{
    const char next = at + 1 < m_text.size() ? m_text[at + 1] : '\0';
    if (next == '!' || next == '?')
        return takeSpecial(at);
    const Tag tag = next == '/' ? endTagAt(at) : startTagAt(at);
    if (!tag.isWhole())
        return takeBracket(at);
    if (next == '/')
        endElement(at, tag);
    else
        startElement(at, tag);
    return tag.end;
}

qsizetype Mender::takeSpecial(qsizetype at)
{
    qsizetype end = -1;
    if (startsWith(at, "<!--"))
        end = endOf(at + 4, m_comment);
    else if (startsWith(at, "<![CDATA[") && !m_open.empty())
        end = endOf(at + 9, m_cdata);
    else if (startsWith(at, "<?") && !nameAt(at + 2).isEmpty())
        end = endOf(at + 2, m_instruction);
    else if (startsWith(at, "<!DOCTYPE") && !m_hadRoot)
        end = takeDocumentType(at);
    return end < 0 ? takeBracket(at) : end;
}

qsizetype Mender::takeDocumentType(qsizetype at)
{
    int depth = 0;
    for (qsizetype i = at; i < m_text.size(); ++i) {
        if (m_text[i] == '[')
            ++depth;
        else if (m_text[i] == ']')
            --depth;
        else if (m_text[i] == '>' && depth == 0)
            return i + 1;
    }
    m_failed = true;
    return -1;
}

/// Takes a "<" that begins nothing whole.
qsizetype Mender::takeBracket(qsizetype at)
{
    const bool isEnd = startsWith(at, "</");
    const View name = nameAt(at + (isEnd ? 2 : 1));
    const qsizetype afterName = at + (isEnd ? 2 : 1) + name.size();
    if (m_text.indexOf('<', at + 1) < 0) {
        const char next = at + 1 < m_text.size() ? m_text[at + 1] : '/';
        if (next == '/' || next == '!' || next == '?' || isNameStart(next)) {
            m_cut = at;
            return m_text.size();
        }
    } else if (startsWith(skipBlanks(afterName), "<")) {
        // Nothing but the ">" is missing.
        const bool isOpen = isEnd && !m_open.empty() && m_open.back().name == name;
        if (isOpen || (!isEnd && name == station)) {
            change(afterName, 0, ">", Kind::Tag);
            if (isEnd)
                endElement(at, {name, afterName});
            else
                startElement(at, {name, afterName});
            return afterName;
        }
    }
    // Between the elements of a list a text would be in the way.
    const bool isText = !m_open.empty() && !isContainer(m_open.size() - 1);
    change(at, 1, isText ? "&lt;" : "", Kind::Bracket);
    return at + 1;
}

/// Whether an element holds others and no text.
bool Mender::isContainer(std::size_t index) const
{
    const View name = m_open[index].name;
    return index == 0 || name == station || name == channel || isSection(name);
}

void Mender::startElement(qsizetype at, const Tag &tag)
{
    if (m_open.empty() && m_hadRoot) {
        m_failed = true;
        return;
    }
    // These never stand inside one of their kind, nor a channel list in anything but the root.
    if (tag.name == station && m_item)
        closeDownTo(*m_item, at);
    else if (tag.name == channel && m_open.size() > 1)
        closeDownTo(1, at);
    const auto section = std::find_if(m_open.begin(), m_open.end(),
                                      [](const Element &open) { return isSection(open.name); });
    if (isSection(tag.name) && section != m_open.end())
        closeDownTo(static_cast<std::size_t>(section - m_open.begin()), at);

    takeReferences(at, tag.end);
    if (!m_open.empty() && m_open.back().firstChild < 0)
        m_open.back().firstChild = at;
    push({tag.name, at, tag.end});
    if (tag.isEmpty)
        pop(tag.end);
}

void Mender::push(const Element &element)
{
    m_hadRoot = true;
    m_open.push_back(element);
    if (m_open.size() > EventParser::maxDepth)
        m_failed = true;
    if (element.name == station && !m_item) {
        m_item = m_open.size() - 1;
        m_itemHasField = false;
        m_filingFields = 0;
    }
}

void Mender::pop(qsizetype end)
{
    const std::size_t index = m_open.size() - 1;
    m_lastName = m_open.back().name;
    m_lastEnd = end;
    if (isField(index) && index == *m_item + 1) {
        m_itemHasField = true;
        if (std::find(filingFields.begin(), filingFields.end(), m_lastName) != filingFields.end())
            ++m_filingFields;
    }
    m_open.pop_back();
    if (m_item && index == *m_item)
        m_item.reset();
}

void Mender::endElement(qsizetype at, const Tag &tag)
{
    if (!m_open.empty() && m_open.back().name == tag.name) {
        pop(tag.end);
        return;
    }
    for (std::size_t index = m_open.size(); index-- > 0;) {
        if (m_open[index].name == tag.name) {
            endEnclosing(index, at, tag);
            return;
        }
    }
    endUnopened(at, tag);
}

/// An end tag of an element in which others are still open.
void Mender::endEnclosing(std::size_t index, qsizetype at, const Tag &tag)
{
    const Element &element = m_open[index];
    if (!isContainer(index) && endOfText(element, at) > element.content) {
        // What looked like tags is text.
        for (; m_open.size() > index + 1; m_open.pop_back())
            change(m_open.back().start, 1, "&lt;", Kind::Bracket);
    } else {
        closeDownTo(index + 1, at);
    }
    pop(tag.end);
}

/// An end tag of an element that is not open.
void Mender::endUnopened(qsizetype at, const Tag &tag)
{
    if (tag.name == m_lastName && isBlankBetween(m_lastEnd, at)) { // there twice
        change(at, tag.end - at, {}, Kind::Tag);
        return;
    }
    const bool isLeaf =
        !m_open.empty() && !isContainer(m_open.size() - 1) && m_open.back().firstChild < 0;
    if (!isLeaf) {
        m_failed = true;
        return;
    }
    const qsizetype next = m_text.indexOf('<', tag.end);
    if (next >= 0 && startsWith(next, "</") && endTagAt(next).name == m_open.back().name) {
        change(at, 1, "&lt;", Kind::Bracket); // text of that element
        return;
    }
    endMisnamed(at, tag);
}

/// Of a start and an end tag that differ, the one whose name is more often seen is right.
void Mender::endMisnamed(qsizetype at, const Tag &tag)
{
    Element &element = m_open.back();
    if (endTagsNamed(tag.name) > endTagsNamed(element.name)) {
        change(element.start + 1, element.name.size(), tag.name.toByteArray(), Kind::Tag);
        element.name = tag.name;
    } else {
        change(at + 2, tag.name.size(), element.name.toByteArray(), Kind::Tag);
    }
    pop(tag.end);
}

int Mender::endTagsNamed(View name)
{
    if (m_endTags.isEmpty()) {
        for (qsizetype at = m_text.indexOf("</"); at >= 0; at = m_text.indexOf("</", at + 2))
            ++m_endTags[nameAt(at + 2)];
    }
    return m_endTags.value(name);
}

/// Where the text ends that an element begins with, and which has ended by the given place.
qsizetype Mender::endOfText(const Element &element, qsizetype at) const
{
    qsizetype end = element.firstChild < 0 ? at : element.firstChild;
    while (end > element.content && isBlank(m_text[end - 1]))
        --end;
    return end;
}

/// Adds the end tags of the innermost elements, until so many are open. An element that holds text
/// ends with it, and what follows stands beside it; any other ends at the place.
void Mender::closeDownTo(std::size_t size, qsizetype at)
{
    while (m_open.size() > size) {
        const std::size_t index = m_open.size() - 1;
        const Element &element = m_open.back();
        const qsizetype textEnd = endOfText(element, at);
        const bool endsWithText =
            !isContainer(index) && (isField(index) || textEnd > element.content);
        const qsizetype end = endsWithText ? textEnd : at;
        change(end, 0, "</" + element.name.toByteArray() + '>', Kind::Tag);
        pop(end);
    }
}

/// The text ends too early: gives up the element that was cut, and closes those around it.
void Mender::closeAtEnd()
{
    if (m_cut < 0)
        m_cut = m_text.size();
    std::size_t kept = m_item ? *m_item + 1 : m_open.size();
    if (!m_item && kept > 1 && !isContainer(kept - 1) && m_open.back().firstChild < 0)
        --kept;
    const auto isDigital = [](const Element &element) { return element.name == sections[1]; };
    const std::size_t needed =
        std::any_of(m_open.begin(), m_open.end(), isDigital) ? filingFields.size() : 0;
    if (m_item && (!m_itemHasField || m_filingFields < needed)) {
        --kept;
        m_droppedStation = true;
    }
    m_keptStation = m_item && !m_droppedStation;
    if (kept < m_open.size())
        m_cut = m_open[kept].start;
    const View lineEnd = m_text.contains("\r\n") ? "\r\n" : "\n";
    for (; kept > 0; --kept)
        m_closing += "</" + m_open[kept - 1].name.toByteArray() + '>' + lineEnd.toByteArray();
    if (m_cut > 0 && m_text[m_cut - 1] != '\n' && !m_closing.isEmpty())
        m_closing.prepend(lineEnd.toByteArray());
}

QByteArray Mender::result() const
{
    std::vector<Change> changes = m_changes;
    std::stable_sort(changes.begin(), changes.end(),
                     [](const Change &a, const Change &b) { return a.at < b.at; });
    const qsizetype size = m_cut < 0 ? m_text.size() : m_cut;
    QByteArray output;
    output.reserve(m_text.size() + m_text.size() / 8);
    qsizetype copied = 0;
    for (const Change &each : changes) {
        if (!isKept(each) || each.at < copied)
            continue;
        output.append(View(m_text).sliced(copied, each.at - copied)).append(each.text);
        copied = each.at + each.length;
    }
    if (copied < size)
        output.append(View(m_text).sliced(copied, size - copied));
    return output.append(m_closing);
}

void Mender::countInto(Mending &mending) const
{
    for (const Change &each : m_changes) {
        if (!isKept(each))
            continue;
        switch (each.kind) {
        case Kind::Ampersand:
            ++mending.ampersands;
            break;
        case Kind::Bracket:
            ++mending.brackets;
            break;
        case Kind::Control:
            ++mending.controls;
            break;
        case Kind::Tag:
            ++mending.tags;
            break;
        case Kind::Stray:
            ++mending.strays;
            break;
        }
    }
    mending.endWasMissing = m_cut >= 0;
    mending.keptStation = m_keptStation;
    mending.droppedStation = m_droppedStation;
}

} // namespace

std::optional<MendedText> mendText(const QByteArray &utf8)
{
    MendedText mended;
    const QByteArray text = withoutControls(utf8, mended.mending.controls);
    Mender mender(text);
    if (!mender.run())
        return {};
    mended.utf8 = mender.result();
    mender.countInto(mended.mending);
    NoEvents events;
    EventParser parser(mended.utf8);
    return parser.parse(events) ? std::optional(mended) : std::nullopt;
}

QByteArray textToMend(const FileText &text)
{
    if (text.encoding() == TextEncoding::Utf8)
        return text.utf8();
    const QString decoded = text.toString();
    return text.encoding() == TextEncoding::Latin1 ? mixedToUtf8(decoded.toLatin1())
                                                   : decoded.toUtf8();
}

} // namespace quillet
