#pragma once

#include "xml/EventParser.h"
#include "xml/Value.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillet {

/// Turns XML text into a tree of node dictionaries. An element becomes a dictionary of its children
/// by name (an array where a name occurs more than once), of its attributes and, under "__text",
/// its text; a child with nothing but text becomes that text, a child with nothing at all is
/// dropped. The parse stops at the first error and keeps the tree built so far.
class XMLDictionaryParser
{
public:
    enum class AttributesMode {
        AttributesPrefixed = 0,     ///< one key, "_" and the name, for each attribute
        AttributesInDictionary = 1, ///< all under "__attributes"
        AttributesMerged = 2,       ///< one key, the bare name, for each attribute
        AttributesDropped = 3,
    };
    enum class NodeNameMode {
        NameRootOnly = 0, ///< the root has its name under "__name"
        NameAlways = 1,
        NameNever = 2,
    };
    struct Settings
    {
        bool collapseTextNodes = true;
        bool stripEmptyNodes = true;
        bool trimWhiteSpace = true;
        bool alwaysUseArrays = false;
        bool preserveComments = false;
        bool wrapRootNode = false; ///< a one-key dictionary, root name to root node, is the result
        AttributesMode attributesMode = AttributesMode::AttributesPrefixed;
        NodeNameMode nodeNameMode = NodeNameMode::NameRootOnly;
    };

    /// The template whose settings the dictionaryWithXML... functions copy.
    [[nodiscard]] static XMLDictionaryParser &sharedInstance();

    Settings settings;

    /// Each returns the tree; none when no element had started, the file cannot be read, or the
    /// string cannot be encoded as UTF-8. `data` is UTF-8, whatever an XML declaration in it says.
    [[nodiscard]] std::optional<Dictionary> dictionaryWithParser(EventParser &parser);
    [[nodiscard]] std::optional<Dictionary> dictionaryWithData(const QByteArray &data);
    /// The same of data that is known to be a plain text, as isPlainText() tells.
    [[nodiscard]] std::optional<Dictionary> dictionaryWithPlainData(const QByteArray &data);
    [[nodiscard]] std::optional<Dictionary> dictionaryWithString(QStringView string);
    [[nodiscard]] std::optional<Dictionary> dictionaryWithFile(const QString &path);

    /// The error that ended the last parse early; none when it came to the end.
    [[nodiscard]] const std::optional<ParseError> &firstError() const { return m_firstError; }

    /// The elements that were open where the last parse ended, the root first.
    [[nodiscard]] const QStringList &openElements() const { return m_openElements; }

private:
    [[nodiscard]] std::optional<Dictionary> read(const QByteArray &data, bool isPlain);

    std::optional<ParseError> m_firstError;
    QStringList m_openElements;
};

/// Parse with the settings of the shared instance.
[[nodiscard]] std::optional<Dictionary> dictionaryWithXMLParser(EventParser &parser);
[[nodiscard]] std::optional<Dictionary> dictionaryWithXMLData(const QByteArray &data);
[[nodiscard]] std::optional<Dictionary> dictionaryWithXMLString(QStringView string);
[[nodiscard]] std::optional<Dictionary> dictionaryWithXMLFile(const QString &path);

} // namespace quillet
