#pragma once

#include "xml/PlainNames.h"
#include "xml/ReadTexts.h"
#include "xml/TextFinder.h"
#include "xml/TreeBuilder.h"
#include "xml/XMLDictionaryParser.h"

#include <QExplicitlySharedDataPointer>

#include <optional>
#include <vector>

namespace quillet {

/// Reads the XML that sets write, and nothing else: elements with ASCII names, plain attributes,
/// text with the five predefined references. Whatever is otherwise (a comment, a CDATA section, a
/// character reference, a fault) makes it give up, and EventParser is asked about the whole text;
/// so it knows no errors. What it takes becomes the very tree that EventParser's events would make.
/// Elements that hold nothing but texts, or attributes and a text, are only noted where these
/// stand. Lives for one text.
class PlainScanner
{
public:
    /// Whether it makes trees of that kind.
    [[nodiscard]] static bool suits(const XMLDictionaryParser::Settings &settings);

    /// Of what isPlainText() says is one.
    explicit PlainScanner(const QByteArray &utf8);

    /// The tree; none when the text is another one than it takes.
    [[nodiscard]] std::optional<Dictionary> tree(const XMLDictionaryParser::Settings &settings);

private:
    using Name = PlainName;
    using Joint = PlainName::Joint;
    struct Attribute
    {
        Name *name;
        QByteArrayView value;
    };
    bool skipDeclaration();
    bool readAttributes(const Name &element, const char *&at);
    bool readElement(TreeBuilder &builder);
    void startElement(const Name &name, TreeBuilder &builder);
    bool readText(TreeBuilder &builder);
    bool readEndTag(TreeBuilder &builder);

    [[nodiscard]] Name *fieldAt(const char *&at);
    [[nodiscard]] std::optional<Joint> jointAt(const Name *before, const char *&at);
    bool noteText(Name &field, const char *&at, bool &isInLines);
    bool noteFields(Name &element, const char *&at, bool &isInLines);
    bool noteElement(Name &element, const char *start, TreeBuilder &builder);
    bool noteAttributed(Name &element, const char *tag, const char *start, TreeBuilder &builder);
    void noteKeys(Name &element, bool hasText) const;
    [[nodiscard]] ReadElement elementFrom(const char *tag, bool isInLines) const;
    void addNoted(const Name &element, const Dictionary::Keys &keys, std::size_t first,
                  const ReadElement &place, TreeBuilder &builder) const;

    QExplicitlySharedDataPointer<ReadTexts> m_texts;
    const char *m_start;
    const char *m_at;
    const char *m_end;
    TextFinder m_finder;
    PlainNames m_names;
    Name *m_last = nullptr; ///< the element that began last
    struct OpenElement
    {
        const Name *name;
        const char *tag; ///< where it starts
    };
    std::vector<OpenElement> m_open;
    std::vector<Attribute> m_attributes; ///< of the start tag that was read last
    bool m_notesAttributes = false;
    quint64 m_elements = 0;       ///< that were looked at for fields
    std::vector<Name *> m_fields; ///< of the one that is looked at
};

} // namespace quillet
