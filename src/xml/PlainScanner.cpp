#include "xml/PlainScanner.h"

#include "xml/NodeViews.h"
#include "xml/PlainText.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace quillet {

namespace {

// What goes beyond these may be right, but no set writes it.
constexpr std::size_t deepest = 64;
constexpr std::size_t mostAttributes = 50;
constexpr qsizetype bytesPerText = 33; ///< or a few more, in the lists of sets

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

const char *skipBlanks(const char *at) // the null behind the text is none
{
    while (isBlank(*at))
        ++at;
    return at;
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
      m_end(m_start + m_texts->utf8().size()), m_finder(m_start, m_end), m_names(m_end)
{
}

std::optional<Dictionary> PlainScanner::tree(const XMLDictionaryParser::Settings &settings)
{
    const QByteArray &utf8 = m_texts->utf8();
    if (utf8.size() >= std::numeric_limits<qint32>::max() || !skipDeclaration())
        return {};
    m_texts->expect(static_cast<std::size_t>(utf8.size() / bytesPerText));
    m_notesAttributes =
        settings.attributesMode == XMLDictionaryParser::AttributesMode::AttributesPrefixed;
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

/// Goes to the end of a start tag. What reading would replace in a value is not taken.
bool PlainScanner::readAttributes(const Name &element, const char *&at)
{
    m_attributes.clear();
    for (;;) {
        const char *const start = std::exchange(at, skipBlanks(at));
        if (*at == '>' || *at == '/')
            return true;
        const std::size_t index = m_attributes.size();
        Name *expected = index < element.attributes.size() ? element.attributes[index] : nullptr;
        Name *name = at == start ? nullptr : m_names.read(at, expected);
        const bool isKnown = std::any_of(m_attributes.begin(), m_attributes.end(),
                                         [name](const auto &each) { return each.name == name; });
        if (!name || isKnown || name->isOfXML || index == mostAttributes || at[0] != '=' ||
            (at[1] != '"' && at[1] != '\''))
            return false;
        const char quote = at[1];
        const char *const value = at += 2;
        while (*at != quote) {
            if (at == m_end || *at == '<' || *at == '&' || (isBlank(*at) && *at != ' '))
                return false;
            ++at;
        }
        m_attributes.push_back({name, {value, at - value}});
        ++at;
    }
}

/// Reads an element that can be noted, or else the start of one.
bool PlainScanner::readElement(TreeBuilder &builder)
{
    const char *at = m_at + 1;
    Name *name = m_names.read(at, m_last ? m_last->following : nullptr);
    if (!name || !readAttributes(*name, at))
        return false;
    if (m_last)
        m_last->following = name;
    m_last = name;
    const bool isEmpty = *at == '/';
    if (isEmpty && *++at != '>')
        return false;
    const char *const start = at + 1;
    if (!m_open.empty() && !isEmpty) {
        const bool isPlain = start - m_at == name->startTag.size();
        if (isPlain ? noteElement(*name, start, builder)
                    : noteAttributed(*name, m_at, start, builder))
            return true;
    }
    const char *const tag = std::exchange(m_at, start);
    startElement(*name, builder);
    if (isEmpty) {
        builder.endElement();
        return true;
    }
    m_open.push_back({name, tag});
    return m_open.size() <= deepest;
}

void PlainScanner::startElement(const Name &name, TreeBuilder &builder)
{
    std::vector<QByteArray> values; // each followed by a null
    std::vector<const char *> attributes;
    values.reserve(m_attributes.size());
    for (const auto &[attribute, value] : m_attributes) {
        attributes.push_back(attribute->text.constData());
        attributes.push_back(values.emplace_back(value.toByteArray()).constData());
    }
    attributes.push_back(nullptr);
    builder.startElement(name.text.constData(), attributes.data());
}

/// Goes to the tag behind a text.
bool PlainScanner::readText(TreeBuilder &builder)
{
    bool isEncoded = false;
    const char *const end = m_finder.endOf(m_at, isEncoded);
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
    const auto [name, tag] = m_open.back();
    if (!standsAt(m_at, m_end, name->endTag))
        return false;
    m_at += name->endTag.size();
    m_open.pop_back();
    const ElementText text{m_texts, elementFrom(tag, false)};
    builder.endElement(m_open.empty() ? nullptr : &text); // the root holds more than its text tells
    return true;
}

/// The name of a field whose start tag has no attributes. Goes behind that tag, or to the slash of
/// one that has no end tag. Null when it is otherwise.
PlainScanner::Name *PlainScanner::fieldAt(const char *&at)
{
    Name *name = m_names.read(++at, nullptr);
    if (!name || name->text.startsWith('_')) // a key that attributes or reserved ones have
        return nullptr;
    if (*at == '>')
        ++at;
    else if (at[0] != '/' || at[1] != '>')
        return nullptr;
    return name;
}

/// Goes to the next text of a field, over those that have no end tag, or else to the end tag of the
/// element. None when anything else stands there, or two fields of one name.
std::optional<PlainScanner::Joint> PlainScanner::jointAt(const Name *before, const char *&at)
{
    const char *const start = at;
    if (before && !standsAt(at, m_end, before->endTag))
        return {};
    at += before ? before->endTag.size() : 0;
    for (bool isDirect = true;; isDirect = false) {
        const char *const tag = skipBlanks(at);
        const bool isInLines = isDirect && tag - at == 2 && *at == '\r';
        at = tag;
        if (*at != '<')
            return {};
        if (at[1] == '/')
            return Joint{{}, nullptr, isInLines};
        Name *field = fieldAt(at);
        if (!field || field->element == m_elements)
            return {};
        if (at[-1] == '>')
            return Joint{{start, isDirect ? at : start}, field, isInLines};
        field->element = m_elements;
        at += 2;
    }
}

/// Notes the fields of an element up to its end tag; false when it holds anything else, or two
/// fields of one name.
bool PlainScanner::noteFields(Name &element, const char *&at, bool &isInLines)
{
    ++m_elements;
    Joint *joint = &element.first;
    for (Name *field = nullptr;; joint = &field->next) {
        if (!joint->bytes.isEmpty() && standsAt(at, m_end, joint->bytes)) {
            at += joint->bytes.size();
        } else {
            const std::optional<Joint> found = jointAt(field, at);
            if (!found)
                return false;
            *joint = *found;
        }
        isInLines = isInLines && joint->isInLines;
        field = joint->field;
        if (!field)
            return true;
        if (std::exchange(field->element, m_elements) == m_elements)
            return false;
        if (!noteText(*field, at, isInLines))
            return false;
    }
}

/// Notes the text of a field, if there is one, up to the next tag; false when it is not taken.
bool PlainScanner::noteText(Name &field, const char *&at, bool &isInLines)
{
    const char *const start = at;
    if (m_finder.skipWord(at)) {
        m_texts->add(m_finder.between(start, at, false));
        m_fields.push_back(&field);
        return true;
    }
    const std::optional<TextFinder::Content> found = m_finder.contentAt(at);
    if (!found)
        return false;
    const ReadText &text = found->text;
    isInLines = isInLines && !text.isEncoded() && !found->isTrimmed && text.size() > 0;
    if (text.size() > 0) {
        m_texts->add(text);
        m_fields.push_back(&field);
    }
    return true;
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
    addNoted(element, element.keys, first, elementFrom(whole, isInLines), builder);
    return true;
}

/// The same for one that has attributes and, perhaps, a text.
bool PlainScanner::noteAttributed(Name &element, const char *tag, const char *start,
                                  TreeBuilder &builder)
{
    const auto isNoted = [](const Attribute &attribute) {
        return !attribute.name->text.startsWith('_') && TextFinder::hasPlainEnds(attribute.value);
    };
    if (!m_notesAttributes || m_attributes.empty() ||
        !std::all_of(m_attributes.begin(), m_attributes.end(), isNoted))
        return false;
    const char *end = start;
    ReadText text;
    if (m_finder.skipWord(end))
        text = m_finder.between(start, end, false);
    else if (const auto content = m_finder.contentAt(end))
        text = content->text;
    else
        return false;
    if (!standsAt(end, m_end, element.endTag))
        return false;
    const std::size_t first = m_texts->count();
    const bool hasText = text.size() > 0;
    bool haveSameKeys = element.attributedKeys && element.hasText == hasText &&
                        element.attributes.size() == m_attributes.size();
    for (std::size_t i = 0; i < m_attributes.size(); ++i) {
        const auto &[name, value] = m_attributes[i];
        haveSameKeys = haveSameKeys && element.attributes[i] == name;
        m_texts->add(m_finder.between(value.begin(), value.end(), false));
    }
    if (hasText)
        m_texts->add(text);
    if (!haveSameKeys)
        noteKeys(element, hasText);
    m_at = end + element.endTag.size();
    addNoted(element, element.attributedKeys, first, elementFrom(tag, false), builder);
    return true;
}

/// Those of an element with the attributes that were read last.
void PlainScanner::noteKeys(Name &element, bool hasText) const
{
    element.attributes.clear();
    element.hasText = hasText;
    element.attributedKeys.reset(new KeyTable);
    for (const Attribute &attribute : m_attributes) {
        element.attributes.push_back(attribute.name);
        element.attributedKeys->append(nodekey::attributePrefix +
                                       QString::fromLatin1(attribute.name->text));
    }
    if (hasText)
        element.attributedKeys->append(nodekey::text.toString());
}

/// One that ends here.
ReadElement PlainScanner::elementFrom(const char *tag, bool isInLines) const
{
    return {.start = m_finder.offset(tag),
            .size = static_cast<quint32>(m_at - tag) & 0x7FFFFFFF,
            .isInLines = isInLines};
}

void PlainScanner::addNoted(const Name &element, const Dictionary::Keys &keys, std::size_t first,
                            const ReadElement &place, TreeBuilder &builder) const
{
    builder.addElement(element.text.constData(),
                       {keys, NotedTexts{{m_texts, place}, static_cast<quint32>(first)}});
}

} // namespace quillet
