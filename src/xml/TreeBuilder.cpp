#include "xml/TreeBuilder.h"

#include "support/TextConversion.h"
#include "xml/NodeViews.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quillet {

namespace {

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace

TreeBuilder::TreeBuilder(const XMLDictionaryParser::Settings &settings, QByteArrayView source)
    : m_settings(settings), m_source(source), m_nameKey(nameFor(nodekey::name.toString())),
      m_textKey(nameFor(nodekey::text.toString())),
      m_commentsKey(nameFor(nodekey::comments.toString())),
      m_attributesKey(nameFor(nodekey::attributes.toString()))
{
}

inline TreeBuilder::AddressSlot &TreeBuilder::slotOf(const char *name, Addresses &addresses)
{
    constexpr std::size_t probes = 4; // so that hardly any two names need the same one
    const auto address = reinterpret_cast<quintptr>(name);
    const std::size_t first = (address * 0x9E3779B97F4A7C15) >> 48;
    for (std::size_t i = 0; i < probes; ++i) {
        AddressSlot &slot = addresses[(first + i) % addresses.size()];
        if (slot.address == name || !slot.address)
            return slot;
    }
    return addresses[first % addresses.size()];
}

inline TreeBuilder::Name &TreeBuilder::nameAt(const char *name)
{
    AddressSlot &slot = slotOf(name, m_namesByAddress);
    if (slot.address != name)
        slot = {name, &nameFor(textFromUtf8(name))};
    return *slot.name;
}

TreeBuilder::Name &TreeBuilder::prefixedNameAt(const char *name)
{
    AddressSlot &slot = slotOf(name, m_attributesByAddress);
    if (slot.address != name)
        slot = {name, &nameFor(nodekey::attributePrefix + textFromUtf8(name))};
    return *slot.name;
}

TreeBuilder::Name &TreeBuilder::nameFor(const QString &text)
{
    Name *&known = m_namesByText[text];
    if (!known) {
        known = &m_names.emplace_back();
        known->text = text;
    }
    return *known;
}

Value *TreeBuilder::find(OpenElement &element, Name &name)
{
    return name.place.element == element.id ? &element.values[name.place.position] : nullptr;
}

void TreeBuilder::append(OpenElement &element, Name &name, Value value)
{
    if (element.values.capacity() == 0)
        element.values.reserve(element.name->lastNames.size());
    element.outerPlaces.push_back(name.place);
    name.place = {element.id, element.values.size()};
    element.names.push_back(&name);
    element.values.push_back(std::move(value));
}

void TreeBuilder::insert(OpenElement &element, Name &name, Value value)
{
    if (Value *present = find(element, name))
        *present = std::move(value);
    else
        append(element, name, std::move(value));
}

void TreeBuilder::remove(OpenElement &element, Name &name)
{
    if (name.place.element != element.id)
        return;
    const std::size_t position = name.place.position;
    name.place = element.outerPlaces[position];
    if (position + 1 < element.names.size()) {
        element.names[position] = nullptr;
        element.hasGaps = true;
        return;
    }
    element.names.pop_back();
    element.values.pop_back();
    element.outerPlaces.pop_back();
}

void TreeBuilder::closeGaps(OpenElement &element)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < element.names.size(); ++i) {
        if (!element.names[i])
            continue;
        element.names[kept] = element.names[i];
        element.outerPlaces[kept] = element.outerPlaces[i];
        element.values[kept++] = std::move(element.values[i]);
    }
    element.names.resize(kept);
    element.outerPlaces.resize(kept);
    element.values.resize(kept);
    element.hasGaps = false;
}

void TreeBuilder::addAttributes(OpenElement &element, const char *const *attributes)
{
    using Mode = XMLDictionaryParser::AttributesMode;
    Dictionary all;
    for (; attributes && attributes[0]; attributes += 2) {
        QString value = m_texts.text(attributes[1]);
        switch (m_settings.attributesMode) {
        case Mode::AttributesPrefixed:
            insert(element, prefixedNameAt(attributes[0]), std::move(value));
            break;
        case Mode::AttributesInDictionary:
            all.insert(textFromUtf8(attributes[0]), std::move(value));
            break;
        case Mode::AttributesMerged:
            insert(element, nameAt(attributes[0]), std::move(value));
            break;
        case Mode::AttributesDropped:
            break;
        }
    }
    if (!all.isEmpty())
        insert(element, m_attributesKey, all);
}

inline TreeBuilder::OpenElement &TreeBuilder::open(Name &name)
{
    if (m_depth == m_stack.size())
        m_stack.emplace_back();
    OpenElement &element = m_stack[m_depth++];
    element.name = &name;
    element.id = ++m_lastId;
    return element;
}

void TreeBuilder::startElement(const char *name, const char *const *attributes)
{
    using Mode = XMLDictionaryParser::NodeNameMode;
    endText();
    const bool isRoot = m_depth == 0;
    if (isRoot && m_settings.wrapRootNode)
        open(m_nameKey);
    OpenElement &element = open(nameAt(name));
    if (m_settings.nodeNameMode == Mode::NameAlways ||
        (m_settings.nodeNameMode == Mode::NameRootOnly && isRoot))
        append(element, m_nameKey, element.name->text);
    if (attributes)
        addAttributes(element, attributes);
}

void TreeBuilder::endElement(const ElementText *text)
{
    OpenElement &element = top();
    Name &name = *element.name;
    if (m_depth > 1 && element.values.empty() && m_settings.collapseTextNodes &&
        m_settings.stripEmptyNodes) {
        --m_depth;
        closeLeaf(top(), name, takeText());
        return;
    }
    endText();
    Dictionary node = makeNode(element);
    if (text)
        node.rememberText(*text);
    --m_depth;
    if (m_depth > 0)
        closeElement(top(), name, std::move(node));
    else
        m_root = std::move(node);
}

void TreeBuilder::addElement(const char *name, Dictionary node)
{
    endText();
    attach(top(), nameAt(name), std::move(node));
}

/// Whether a run may not begin with this piece of text, because trimming takes it away again.
bool TreeBuilder::isBlankToDrop(QByteArrayView text) const
{
    return m_settings.trimWhiteSpace && m_run.isEmpty() &&
           std::all_of(text.begin(), text.end(), isBlank);
}

void TreeBuilder::characters(QByteArrayView text)
{
    if (isBlankToDrop(text))
        return;
    const std::less<> before;
    const bool isInSource = !before(text.data(), m_source.data()) &&
                            !before(m_source.data() + m_source.size(), text.data() + text.size());
    if (m_run.isEmpty() && isInSource) {
        m_run = text;
    } else if (isInSource && m_run.data() + m_run.size() == text.data()) {
        m_run = {m_run.data(), m_run.size() + text.size()};
    } else {
        if (m_run.data() != m_pieces.constData())
            m_pieces = m_run.toByteArray();
        m_pieces.append(text);
        m_run = m_pieces;
    }
}

void TreeBuilder::cdataBlock(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        characters(bytes);
}

void TreeBuilder::comment(QByteArrayView text)
{
    if (!m_settings.preserveComments || m_depth == 0)
        return;
    const QString comment = textFromUtf8(text);
    Value *comments = find(top(), m_commentsKey);
    if (comments && comments->array())
        comments->array()->append(comment);
    else
        insert(top(), m_commentsKey, Array{comment});
}

/// Closes the run of text collected since the last element boundary and returns it, trimmed if that
/// is wanted; empty when there was none.
QString TreeBuilder::takeText()
{
    if (m_run.isEmpty())
        return {};
    QByteArrayView run = std::exchange(m_run, {});
    if (!m_settings.trimWhiteSpace)
        return m_texts.text(run);
    while (!run.isEmpty() && isBlank(run.back()))
        run.chop(1);
    while (!run.isEmpty() && isBlank(run.front()))
        run = run.sliced(1);
    const QString text = m_texts.text(run);
    const auto isBlankBeyondAscii = [](QChar c) { return c.unicode() >= 0x80 && c.isSpace(); };
    const bool hasBlanks =
        !text.isEmpty() && (isBlankBeyondAscii(text.front()) || isBlankBeyondAscii(text.back()));
    return hasBlanks ? text.trimmed() : text;
}

void TreeBuilder::endText()
{
    if (m_run.isEmpty())
        return;
    const QString run = takeText();
    if (run.isEmpty() || m_depth == 0)
        return;
    Value *text = find(top(), m_textKey);
    if (!text)
        append(top(), m_textKey, run);
    else if (Array *runs = text->array())
        runs->append(run);
    else
        *text = Array{*text, run};
}

Dictionary TreeBuilder::makeNode(OpenElement &element)
{
    if (element.hasGaps)
        closeGaps(element);
    if (element.values.empty())
        return {};
    Name &tag = *element.name;
    if (!tag.lastKeys || !std::equal(element.names.begin(), element.names.end(),
                                     tag.lastNames.begin(), tag.lastNames.end())) {
        tag.lastNames.assign(element.names.begin(), element.names.end());
        tag.lastKeys.reset(new KeyTable);
        for (const Name *name : tag.lastNames)
            tag.lastKeys->append(name->text);
    }
    for (std::size_t i = element.names.size(); i-- > 0;)
        element.names[i]->place = element.outerPlaces[i];
    element.names.clear();
    element.outerPlaces.clear();
    element.values.shrink_to_fit();
    return {tag.lastKeys, std::exchange(element.values, {})};
}

void TreeBuilder::attach(OpenElement &parent, Name &name, Value child) const
{
    if (Value *present = find(parent, name)) {
        if (Array *siblings = present->array())
            siblings->append(std::move(child));
        else
            *present = Array{*present, std::move(child)};
    } else if (usesArrays()) {
        append(parent, name, Array{std::move(child)});
    } else {
        append(parent, name, std::move(child));
    }
}

/// Closes an element that has nothing but, perhaps, text: the common case, made without a
/// dictionary. The outcome is that of attaching a node and then replacing or removing it.
void TreeBuilder::closeLeaf(OpenElement &parent, Name &name, QString text) const
{
    if (!text.isEmpty()) {
        attach(parent, name, std::move(text));
    } else if (Value *present = find(parent, name)) {
        if (!present->array())
            *present = Array{*present};
    } else if (usesArrays()) {
        append(parent, name, Array{});
    }
}

void TreeBuilder::closeElement(OpenElement &parent, Name &tag, Dictionary node)
{
    if (hasChildNodes(node) || hasAttributes(node) || hasComments(node)) {
        attach(parent, tag, std::move(node));
        return;
    }
    // A name noted in the node itself goes before the name it was opened with; where a child of
    // that name is no text, the element is not found again and stays.
    const Value *noted = node.find(nodekey::name);
    if (noted && !noted->string()) {
        attach(parent, tag, std::move(node));
        return;
    }
    Name &name = noted ? nameFor(*noted->string()) : tag;
    const std::optional<QString> text = innerText(node);
    if (!text && !m_settings.stripEmptyNodes && !m_settings.collapseTextNodes)
        node.insert(m_textKey.text, QString(QLatin1String("")));
    attach(parent, tag, node);

    Value *place = find(parent, name);
    Array *siblings = place ? place->array() : nullptr;
    if (text && m_settings.collapseTextNodes) {
        if (siblings && !siblings->isEmpty())
            siblings->replaceLast(*text);
        else
            insert(parent, name, *text);
    } else if (!text && m_settings.stripEmptyNodes) {
        if (siblings && !siblings->isEmpty())
            siblings->removeLast();
        else
            remove(parent, name);
    }
}

QStringList TreeBuilder::openElements() const
{
    QStringList names;
    for (std::size_t i = m_settings.wrapRootNode ? 1 : 0; i < m_depth; ++i)
        names.append(m_stack[i].name->text);
    return names;
}

std::optional<Dictionary> TreeBuilder::takeRoot()
{
    while (m_depth > 0) {
        Name &name = *top().name;
        Dictionary node = makeNode(top());
        --m_depth;
        if (m_depth > 0)
            attach(top(), name, std::move(node));
        else
            m_root = std::move(node);
    }
    return std::exchange(m_root, std::nullopt);
}

} // namespace quillet
