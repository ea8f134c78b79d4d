#include "xml/PlainScanner.h"

#include "support/TextConversion.h"
#include "xml/PlainText.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <limits>

namespace quillet {

namespace {

// What goes beyond these may be right, but no set writes it.
constexpr std::size_t deepest = 64;
constexpr qsizetype longestName = 200;
constexpr std::size_t mostNames = 2000;
constexpr std::size_t mostAttributes = 50;
constexpr qsizetype bytesPerText = 24; ///< about as many as a field of a station takes

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool startsName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isOfName(char c)
{
    return startsName(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

const char *skipBlanks(const char *at) // the null behind the text is none
{
    while (isBlank(*at))
        ++at;
    return at;
}

/// A view of a text, which must stand before a null.
bool standsAt(const char *at, const char *end, const QByteArray &text)
{
    return end - at >= text.size() &&
           std::memcmp(at, text.constData(), static_cast<std::size_t>(text.size())) == 0;
}

bool isBeyondAscii(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

/// The bytes of one that nobody else may change or free.
QByteArray owned(QByteArray bytes)
{
    const bool isOwned = bytes.isNull() || bytes.data_ptr().d_ptr();
    return isOwned ? bytes : QByteArray(bytes.constData(), bytes.size());
}

} // namespace

bool PlainScanner::suits(const XMLDictionaryParser::Settings &settings)
{
    // How elements become nodes is up to the builder, but for those that are noted.
    using Mode = XMLDictionaryParser::NodeNameMode;
    return settings.collapseTextNodes && settings.stripEmptyNodes && settings.trimWhiteSpace &&
           !settings.alwaysUseArrays && !settings.wrapRootNode &&
           settings.nodeNameMode != Mode::NameAlways;
}

PlainScanner::PlainScanner(const QByteArray &utf8)
    : m_texts(new ReadTexts(owned(utf8))), m_start(m_texts->utf8().constData()), m_at(m_start),
      m_end(m_start + m_texts->utf8().size())
{
}

std::optional<Dictionary> PlainScanner::tree(const XMLDictionaryParser::Settings &settings)
{
    const QByteArray &utf8 = m_texts->utf8();
    if (utf8.size() >= std::numeric_limits<qint32>::max() || !skipDeclaration() ||
        !isPlainText(utf8))
        return {};
    m_texts->reserve(static_cast<std::size_t>(utf8.size() / bytesPerText));
    TreeBuilder builder(settings, utf8);
    if (!readElement(builder))
        return {};
    while (!m_open.empty()) {
        if (!readText(builder))
            return {};
        if (m_at[1] == '/' ? !readEndTag(builder) : !readElement(builder))
            return {};
    }
    if (skipBlanks(m_at) != m_end)
        return {};
    return builder.takeRoot();
}

/// A byte-order mark and a declaration of this encoding, up to the root.
bool PlainScanner::skipDeclaration()
{
    const auto take = [this](QByteArrayView text) {
        const bool isThere = QByteArrayView(m_at, m_end - m_at).startsWith(text);
        m_at += isThere ? text.size() : 0;
        return isThere;
    };
    const auto takeOneOf = [&take](std::initializer_list<QByteArrayView> texts) {
        return std::any_of(texts.begin(), texts.end(), take);
    };
    take("\xEF\xBB\xBF");
    if (take("<?xml")) {
        if (!takeOneOf({" version=\"1.0\"", " version='1.0'"}))
            return false;
        takeOneOf({" encoding=\"UTF-8\"", " encoding='UTF-8'", " encoding=\"utf-8\""});
        takeOneOf({" standalone=\"yes\"", " standalone=\"no\""});
        take(" ");
        if (!take("?>"))
            return false;
        m_at = skipBlanks(m_at);
    }
    return *m_at == '<';
}

/// Goes behind a name; null when there is none that is taken.
PlainScanner::Name *PlainScanner::readName(const char *&at)
{
    const char *const start = at;
    if (!startsName(*at))
        return nullptr;
    while (isOfName(*at))
        ++at;
    const QByteArrayView text(start, at - start);
    const auto known = m_namesByText.constFind(text);
    if (known != m_namesByText.cend())
        return *known;
    if (text.size() > longestName || m_names.size() == mostNames)
        return nullptr;
    Name &name = m_names.emplace_back();
    name.text = text.toByteArray();
    name.startTag = '<' + name.text + '>';
    name.endTag = "</" + name.text + '>';
    m_namesByText.insert(name.text, &name);
    return &name;
}

/// Goes to the end of a start tag. What reading would replace in a value is not taken.
bool PlainScanner::readAttributes(const char *&at)
{
    m_attributeNames.clear();
    m_attributeValues.clear();
    for (;;) {
        const char *const start = std::exchange(at, skipBlanks(at));
        if (*at == '>' || *at == '/')
            break;
        Name *name = at == start ? nullptr : readName(at);
        const bool isKnown = std::find(m_attributeNames.begin(), m_attributeNames.end(), name) !=
                             m_attributeNames.end();
        if (!name || isKnown || name->text.startsWith("xml") ||
            m_attributeNames.size() == mostAttributes || at[0] != '=' ||
            (at[1] != '"' && at[1] != '\''))
            return false;
        const char quote = at[1];
        const char *const value = at += 2;
        while (*at != quote) {
            if (at == m_end || *at == '<' || *at == '&' || (isBlank(*at) && *at != ' '))
                return false;
            ++at;
        }
        m_attributeNames.push_back(name);
        m_attributeValues.emplace_back(value, at - value);
        ++at;
    }
    m_attributes.clear();
    for (std::size_t i = 0; i < m_attributeNames.size(); ++i) {
        m_attributes.push_back(m_attributeNames[i]->text.constData());
        m_attributes.push_back(m_attributeValues[i].constData());
    }
    m_attributes.push_back(nullptr);
    return true;
}

/// Reads an element that can be noted, or else the start of one.
bool PlainScanner::readElement(TreeBuilder &builder)
{
    const char *at = m_at + 1;
    Name *name = readName(at);
    if (!name)
        return false;
    if (*at == '>') {
        ++at;
        if (!m_open.empty() && noteElement(*name, at, builder))
            return true;
        m_attributes = {nullptr};
    } else if (!readAttributes(at)) {
        return false;
    } else if (*at == '/') {
        if (at[1] != '>')
            return false;
        m_at = at + 2;
        builder.startElement(name->text.constData(), m_attributes.data());
        builder.endElement();
        return true;
    } else {
        ++at;
    }
    if (m_open.size() == deepest)
        return false;
    m_at = at;
    m_open.push_back(name);
    builder.startElement(name->text.constData(), m_attributes.data());
    return true;
}

/// Goes to the tag behind a text.
bool PlainScanner::readText(TreeBuilder &builder)
{
    bool isEncoded = false;
    const char *const end = endOfText(m_at, isEncoded);
    if (!end)
        return false;
    const QByteArrayView text(m_at, end - m_at);
    if (!std::all_of(text.begin(), text.end(), isBlank)) {
        if (isEncoded)
            builder.characters(decodedPlainText(text));
        else
            builder.characters(text);
    }
    m_at = end;
    return true;
}

bool PlainScanner::readEndTag(TreeBuilder &builder)
{
    const QByteArray &tag = m_open.back()->endTag;
    if (!standsAt(m_at, m_end, tag))
        return false;
    m_at += tag.size();
    m_open.pop_back();
    builder.endElement();
    return true;
}

/// Where the tag behind a text begins; null when there is none, or the text is not taken.
const char *PlainScanner::endOfText(const char *at, bool &isEncoded) const
{
    for (;;) {
        at = endOfPlainRun(at, m_end);
        if (at == m_end)
            return nullptr;
        if (*at == '<')
            return at;
        qsizetype length = 1;
        if (*at == '&')
            length = predefinedReference(at, m_end);
        else if (*at == ']' && at[1] == ']' && at[2] == '>')
            return nullptr;
        if (length == 0)
            return nullptr;
        isEncoded = isEncoded || *at != ']';
        at += length;
    }
}

/// A text without the blanks around it, if those are of ASCII.
std::optional<PlainScanner::Content> PlainScanner::content(const char *from, const char *to,
                                                           bool isEncoded) const
{
    const char *start = from;
    const char *end = to;
    while (start != end && isAsciiBlank(*start))
        ++start;
    while (start != end && isAsciiBlank(end[-1]))
        --end;
    if (start != end && (isBeyondAscii(*start) || isBeyondAscii(end[-1]))) {
        const QString text = textFromUtf8({start, end - start});
        if (text.front().isSpace() || text.back().isSpace())
            return {};
    }
    const ReadText text{.start = offset(start),
                        .size = static_cast<quint32>(end - start) & 0x7FFFFFFF,
                        .isEncoded = isEncoded};
    return Content{text, start != from || end != to};
}

/// The name of a field whose start tag has no attributes. Goes behind that tag, or to the slash of
/// one that has no end tag. Null when it is otherwise.
PlainScanner::Name *PlainScanner::fieldAt(const char *&at, Name *expected)
{
    if (expected && standsAt(at, m_end, expected->startTag)) {
        at += expected->startTag.size();
        return expected;
    }
    Name *name = readName(++at);
    if (!name || name->text.startsWith('_')) // a key that attributes or reserved ones have
        return nullptr;
    if (*at == '>')
        ++at;
    else if (at[0] != '/' || at[1] != '>')
        return nullptr;
    return name;
}

/// Notes the fields of an element up to its end tag; false when it holds anything else, or two
/// fields of one name.
bool PlainScanner::noteFields(Name &element, const char *&at, bool &isInLines)
{
    const quint64 number = ++m_elements;
    Name **expected = &element.firstField;
    for (;;) {
        const char *const tag = skipBlanks(at);
        isInLines = isInLines && tag - at == 2 && *at == '\r';
        at = tag;
        if (*at != '<')
            return false;
        if (at[1] == '/')
            return true;
        Name *field = fieldAt(at, *expected);
        if (!field || std::exchange(field->element, number) == number)
            return false;
        *expected = field;
        expected = &field->next;
        if (*at == '/' && at[-1] != '>') {
            at += 2;
            isInLines = false;
            continue;
        }
        bool isEncoded = false;
        const char *const end = endOfText(at, isEncoded);
        if (!end || !standsAt(end, m_end, field->endTag))
            return false;
        const std::optional<Content> found = content(at, end, isEncoded);
        if (!found)
            return false;
        isInLines = isInLines && !isEncoded && !found->isTrimmed && found->text.size > 0;
        at = end + field->endTag.size();
        if (found->text.size > 0) {
            m_texts->add(found->text);
            m_fields.push_back(field);
        }
    }
}

/// Notes an element whose start tag, without attributes, ends here; false when it cannot be.
bool PlainScanner::noteElement(Name &element, const char *start, TreeBuilder &builder)
{
    const std::size_t first = m_texts->count();
    const char *at = start;
    bool isInLines = true;
    m_fields.clear();
    const bool isNoted = noteFields(element, at, isInLines) && !m_fields.empty() &&
                         standsAt(at, m_end, element.endTag);
    if (!isNoted) {
        m_texts->truncate(first);
        return false;
    }
    if (!element.keys || element.fields != m_fields) {
        element.fields = m_fields;
        element.keys.reset(new KeyTable);
        for (const Name *field : m_fields)
            element.keys->append(QString::fromLatin1(field->text));
    }
    m_at = at + element.endTag.size();
    const char *const whole = start - element.startTag.size();
    const ReadElement place{.start = offset(whole),
                            .size = static_cast<quint32>(m_at - whole) & 0x7FFFFFFF,
                            .isInLines = isInLines};
    builder.addElement(element.text.constData(),
                       {element.keys, NotedTexts{m_texts, static_cast<quint32>(first), place}});
    return true;
}

} // namespace quillet
