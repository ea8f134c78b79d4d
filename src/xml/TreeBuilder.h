#pragma once

#include "xml/EventParser.h"
#include "xml/TextCache.h"
#include "xml/Value.h"
#include "xml/XMLDictionaryParser.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <deque>
#include <optional>
#include <vector>

namespace quillet {

/// Turns the events of one parse into a tree of node dictionaries under the settings of an
/// XMLDictionaryParser. Lives for one parse. An open element is a plain list of keys and values; it
/// becomes a Dictionary when it closes, sharing its keys with the element of that name before it.
class TreeBuilder final : public EventHandler
{
public:
    /// `source` is the text being parsed, which must stay alive as long as the builder.
    TreeBuilder(const XMLDictionaryParser::Settings &settings, QByteArrayView source);

    void startElement(const char *name, const char *const *attributes) override;
    void endElement() override { endElement(nullptr); }
    void characters(QByteArrayView text) override;
    void cdataBlock(QByteArrayView bytes) override;
    void comment(QByteArrayView text) override;

    /// The same of an element whose text is known; null: it is not.
    void endElement(const ElementText *text);

    /// Adds a whole element, which holds child elements and nothing else, to the innermost open
    /// one.
    void addElement(const char *name, Dictionary node);

    /// The names of the elements that are open, the root first.
    [[nodiscard]] QStringList openElements() const;

    /// Ends the build and hands out the tree. Elements still open hang in it as they are, not
    /// collapsed. None when no element had started.
    [[nodiscard]] std::optional<Dictionary> takeRoot();

private:
    /// Which open element holds a key, and at which of its positions.
    struct KeyPlace
    {
        quint64 element = 0;
        std::size_t position = 0;
    };
    /// A key, made once for all places where it occurs.
    struct Name
    {
        QString text;
        KeyPlace place; ///< in the innermost open element that has the key
        // The keys of the last closed element of this name.
        std::vector<const Name *> lastNames;
        Dictionary::Keys lastKeys;
    };
    struct AddressSlot
    {
        const char *address = nullptr;
        Name *name = nullptr;
    };
    struct OpenElement
    {
        Name *name = nullptr;
        quint64 id = 0;
        std::vector<Name *> names;         ///< null where one was removed
        std::vector<KeyPlace> outerPlaces; ///< of the names, before this element had them
        std::vector<Value> values;
        bool hasGaps = false; ///< some were removed
    };

    using Addresses = std::array<AddressSlot, 1024>;

    static AddressSlot &slotOf(const char *name, Addresses &addresses);
    Name &nameAt(const char *name);
    /// With the prefix of attributes.
    Name &prefixedNameAt(const char *name);
    Name &nameFor(const QString &text);
    OpenElement &open(Name &name);
    OpenElement &top() { return m_stack[m_depth - 1]; }
    /// Whether a single child of the innermost element stands in an array; the root in its wrapper
    /// does not.
    [[nodiscard]] bool usesArrays() const
    {
        return m_settings.alwaysUseArrays && (m_depth > 1 || !m_settings.wrapRootNode);
    }

    static Value *find(OpenElement &element, Name &name);
    static void append(OpenElement &element, Name &name, Value value);
    static void insert(OpenElement &element, Name &name, Value value);
    static void remove(OpenElement &element, Name &name);
    static void closeGaps(OpenElement &element);

    void addAttributes(OpenElement &element, const char *const *attributes);
    [[nodiscard]] bool isBlankToDrop(QByteArrayView text) const;
    QString takeText();
    void endText();
    static Dictionary makeNode(OpenElement &element);
    void attach(OpenElement &parent, Name &name, Value child) const;
    void closeLeaf(OpenElement &parent, Name &name, QString text) const;
    void closeElement(OpenElement &parent, Name &tag, Dictionary node);

    XMLDictionaryParser::Settings m_settings;
    QByteArrayView m_source;
    /// A wrapper of the root lies at the bottom and stays open. Grows only: closed elements keep
    /// their memory for reuse.
    std::vector<OpenElement> m_stack;
    std::size_t m_depth = 0;
    quint64 m_lastId = 0;
    QByteArrayView m_run; ///< the text run collected so far: a part of the source, or m_pieces
    QByteArray m_pieces;
    std::optional<Dictionary> m_root;
    std::deque<Name> m_names;
    Addresses m_namesByAddress{}; ///< the parser gives a name by one address
    Addresses m_attributesByAddress{};
    QHash<QString, Name *> m_namesByText;
    TextCache m_texts;
    Name &m_nameKey;
    Name &m_textKey;
    Name &m_commentsKey;
    Name &m_attributesKey;
};

} // namespace quillet
