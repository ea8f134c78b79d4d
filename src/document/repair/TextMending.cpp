#include "document/repair/TextMending.h"

#include "document/repair/CharacterMending.h"
#include "document/repair/TagMending.h"
#include "document/repair/TextChanges.h"
#include "document/repair/TextScanner.h"
#include "model/FileWords.h"
#include "xml/EventParser.h"
#include "xml/XMLCharacters.h"

namespace quillet {

namespace {

using Kind = TextChanges::Kind;

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

class NoEvents final : public EventHandler
{
public:
    void startElement(const char *, const char *const *) override {}
    void endElement() override {}
    void characters(QByteArrayView) override {}
    void cdataBlock(QByteArrayView) override {}
    void comment(QByteArrayView) override {}
};

/// Walks once through a text from "<" to "<", tells texts from tags and from what is neither, and
/// notes what must be changed; the changes are made at the end.
class Mender
{
public:
    explicit Mender(const QByteArray &text) : m_scanner(text) {}

    /// False when the text cannot be mended.
    bool run();
    [[nodiscard]] QByteArray result() const { return m_changes.appliedTo(m_scanner.text()); }
    void countInto(Mending &mending) const
    {
        m_changes.countInto(mending);
        m_tags.countInto(mending);
    }

    Q_DISABLE_COPY_MOVE(Mender)

private:
    [[nodiscard]] bool hasFailed() const { return m_hasFailed || m_tags.hasFailed(); }

    void takeText(qsizetype from, qsizetype to);
    qsizetype takeMarkup(qsizetype at);
    qsizetype takeSpecial(qsizetype at);
    qsizetype takeDocumentType(qsizetype at);
    qsizetype takeBracket(qsizetype at);
    qsizetype takeUnclosedTag(qsizetype at, bool isEnd, const ScannedTag &tag);

    TextScanner m_scanner;
    TextChanges m_changes;
    TagMending m_tags{m_scanner, m_changes};
    Terminator m_comment{"-->"}, m_cdata{"]]>"}, m_instruction{"?>"};
    bool m_hasFailed = false;
};

bool Mender::run()
{
    const qsizetype size = m_scanner.size();
    qsizetype i = m_scanner.startsWith(0, byteOrderMark) ? byteOrderMark.size() : 0;
    while (i < size && !hasFailed() && !m_changes.isCut()) {
        const qsizetype found = m_scanner.nextBracket(i);
        const qsizetype bracket = found < 0 ? size : found;
        takeText(i, bracket);
        i = bracket < size ? takeMarkup(bracket) : bracket;
    }
    if (!hasFailed() && (!m_tags.open().isEmpty() || m_changes.isCut()))
        m_tags.closeAtEnd();
    return !hasFailed() && m_tags.hadRoot();
}

void Mender::takeText(qsizetype from, qsizetype to)
{
    if (m_tags.open().isEmpty()) {
        // Before an XML declaration not even a blank may stand.
        const bool mayStay = m_scanner.isBlankBetween(from, to) &&
                             (from == to || m_tags.hadRoot() || !m_scanner.startsWith(to, "<?xml"));
        if (!mayStay)
            m_changes.remove(from, to - from, Kind::Stray);
        return;
    }
    const QByteArray &text = m_scanner.text();
    mendReferences(text, from, to, m_changes);
    for (qsizetype end = m_cdata.endAfter(text, from); end >= 0 && end <= to;
         end = m_cdata.endAfter(text, end))
        m_changes.escape(end - 1, "&gt;");
}

/// Takes what begins with a "<" and gives where it ends.
qsizetype Mender::takeMarkup(qsizetype at)
{
    const char next = m_scanner.at(at + 1, '\0');
    if (next == '!' || next == '?')
        return takeSpecial(at);
    const ScannedTag tag = next == '/' ? m_scanner.endTagAt(at) : m_scanner.startTagAt(at);
    if (!tag.isWhole())
        return takeBracket(at);
    if (next == '/') {
        m_tags.endElement(at, tag);
    } else {
        m_tags.startElement(at, tag);
        mendReferences(m_scanner.text(), at, tag.end, m_changes);
    }
    return tag.end;
}

qsizetype Mender::takeSpecial(qsizetype at)
{
    const QByteArray &text = m_scanner.text();
    qsizetype end = -1;
    if (m_scanner.startsWith(at, "<!--"))
        end = m_comment.endAfter(text, at + 4);
    else if (m_scanner.startsWith(at, "<![CDATA[") && !m_tags.open().isEmpty())
        end = m_cdata.endAfter(text, at + 9);
    else if (m_scanner.startsWith(at, "<?") && !m_scanner.nameAt(at + 2).isEmpty())
        end = m_instruction.endAfter(text, at + 2);
    else if (m_scanner.startsWith(at, "<!DOCTYPE") && !m_tags.hadRoot())
        end = takeDocumentType(at);
    return end < 0 ? takeBracket(at) : end;
}

qsizetype Mender::takeDocumentType(qsizetype at)
{
    const QByteArray &text = m_scanner.text();
    int depth = 0;
    for (qsizetype i = at; i < text.size(); ++i) {
        if (text[i] == '[')
            ++depth;
        else if (text[i] == ']')
            --depth;
        else if (text[i] == '>' && depth == 0)
            return i + 1;
    }
    m_hasFailed = true;
    return -1;
}

/// Takes a "<" that begins nothing whole.
qsizetype Mender::takeBracket(qsizetype at)
{
    const OpenElements &open = m_tags.open();
    const bool isEnd = m_scanner.startsWith(at, "</");
    const qsizetype nameStart = at + (isEnd ? 2 : 1);
    const QByteArrayView name = m_scanner.nameAt(nameStart);
    const ScannedTag unclosed{name, nameStart + name.size()};
    if (m_scanner.nextBracket(at + 1) < 0) {
        const char next = m_scanner.at(at + 1, '/');
        if (next == '/' || next == '!' || next == '?' || isXMLNameStart(next)) {
            m_changes.cut(at);
            return m_scanner.size();
        }
    } else if (m_scanner.startsWith(m_scanner.skipBlanks(unclosed.end), "<")) {
        const bool isOpen = isEnd && !open.isEmpty() && open.last().name == name;
        if (isOpen || (!isEnd && name == fileword::item.bytes()))
            return takeUnclosedTag(at, isEnd, unclosed);
    }
    // Between the elements of a list a text would be in the way.
    const bool isText = !open.isEmpty() && !open.isContainer(open.count() - 1);
    m_changes.escape(at, isText ? "&lt;" : "");
    return at + 1;
}

/// Takes a tag of which nothing but the ">" is missing.
qsizetype Mender::takeUnclosedTag(qsizetype at, bool isEnd, const ScannedTag &tag)
{
    m_changes.insert(tag.end, ">", Kind::Tag);
    if (isEnd)
        m_tags.endElement(at, tag);
    else
        m_tags.startElement(at, tag);
    return tag.end;
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

} // namespace quillet
