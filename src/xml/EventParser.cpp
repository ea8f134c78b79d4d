#include "xml/EventParser.h"

#include "support/TextConversion.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

namespace quillet {

namespace {

#if LIBXML_VERSION >= 21200
using LibraryError = const xmlError *;
#else
using LibraryError = xmlError *;
#endif

struct ContextDeleter
{
    void operator()(xmlParserCtxt *context) const
    {
        xmlFreeDoc(context->myDoc); // holds the declarations of a document type, if there was one
        context->myDoc = nullptr;
        xmlFreeParserCtxt(context);
    }
};

/// Sends what the library has to say on this thread to a function, instead of standard error, for
/// as long as it lives.
class ErrorsGoTo
{
public:
    ErrorsGoTo(xmlStructuredErrorFunc function, void *data)
        : m_function(xmlStructuredError), m_data(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(data, function);
    }
    ~ErrorsGoTo() { xmlSetStructuredErrorFunc(m_data, m_function); }
    Q_DISABLE_COPY_MOVE(ErrorsGoTo)

private:
    xmlStructuredErrorFunc m_function;
    void *m_data;
};

/// What the library made, unless it had no memory for it.
template<typename T>
T *made(T *object)
{
    return object ? object : throw std::bad_alloc();
}

const char *text(const xmlChar *characters)
{
    return reinterpret_cast<const char *>(characters);
}

} // namespace

/// The library's callbacks; each gets the EventParser as its user data.
struct EventParser::Callbacks
{
    static EventParser &parser(void *data) { return *static_cast<EventParser *>(data); }

    static xmlParserCtxt *context(EventParser &self)
    {
        return static_cast<xmlParserCtxt *>(self.m_context);
    }

    static void stop(EventParser &self, const QString &message, bool isLimit)
    {
        const xmlParserInput *input = context(self)->input;
        if (!self.m_error)
            self.m_error = ParseError{input->line, input->col, message, self.position(), isLimit};
        xmlStopParser(context(self));
    }

    /// Every name is in the library's dictionary, which gets slow with very many.
    static void countName(EventParser &self)
    {
        constexpr unsigned interval = 64;
        if (++self.m_elements % interval == 0 && xmlDictSize(context(self)->dict) > limit::names)
            stop(self, QStringLiteral("More than %1 different names").arg(limit::names), true);
    }

    /// The library reports an element before it looks whether its start tag ends: where the text
    /// breaks off in the tag, the name or attributes may have been cut.
    static bool isTagClosed(const xmlChar *at)
    {
        return at[0] == '>' || (at[0] == '/' && at[1] == '>');
    }

    static void startElement(void *data, const xmlChar *name, const xmlChar **attributes)
    {
        EventParser &self = parser(data);
        if (!isTagClosed(context(self)->input->cur))
            return; // the error follows
        if (++self.m_depth > maxDepth) {
            stop(self, QStringLiteral("Elements are nested more than %1 deep").arg(maxDepth), true);
            return;
        }
        self.m_handler->startElement(text(name), reinterpret_cast<const char **>(attributes));
        countName(self);
    }

    static void endElement(void *data, const xmlChar *)
    {
        EventParser &self = parser(data);
        --self.m_depth;
        self.m_handler->endElement();
    }

    static void characters(void *data, const xmlChar *characters, int length)
    {
        parser(data).m_handler->characters({text(characters), length});
    }

    static void cdataBlock(void *data, const xmlChar *bytes, int length)
    {
        parser(data).m_handler->cdataBlock({text(bytes), length});
    }

    static void comment(void *data, const xmlChar *comment)
    {
        parser(data).m_handler->comment(text(comment));
    }

    static void processingInstruction(void *data, const xmlChar *, const xmlChar *)
    {
        countName(parser(data));
    }

    /// Called at the "[" of a document type declaration, if it has one.
    static void internalSubset(void *data, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        EventParser &self = parser(data);
        const xmlParserInput *input = context(self)->input;
        if (*input->cur != '[')
            return;
        if (!limit::isSubsetShort({text(input->cur + 1), text(input->end)}))
            stop(self, QStringLiteral("The document type declaration is too long"), true);
    }

    static xmlEntity *getEntity(void *, const xmlChar *name)
    {
        return xmlGetPredefinedEntity(name);
    }

    /// Called for an entity that getEntity does not know.
    static void reference(void *data, const xmlChar *name)
    {
        stop(parser(data),
             QStringLiteral("Entity '%1' is not expanded").arg(QLatin1String(text(name))), false);
    }

    /// Some of the library's loops go on after an error, so that each further one stops it again.
    /// It may go on after those that leave the text well-formed.
    static void error(void *data, LibraryError error)
    {
        EventParser &self = parser(data);
        if (error->code == XML_ERR_NO_MEMORY) {
            self.m_isMemoryShort = true;
            xmlStopParser(context(self));
            return;
        }
        if (error->domain != XML_FROM_PARSER || error->level < XML_ERR_ERROR)
            return;
        if (!self.m_error)
            self.m_error = ParseError{error->line, error->int2,
                                      textFromUtf8(error->message).trimmed(), self.position()};
        if (error->level == XML_ERR_FATAL)
            xmlStopParser(context(self));
    }
};

bool EventParser::parse(EventHandler &handler)
{
    m_handler = &handler;
    m_depth = 0;
    m_elements = 0;
    m_isMemoryShort = false;
    m_error.reset();
    m_start = m_bytes.constData();
    const qsizetype crowdedTag = limit::crowdedTag(m_bytes);
    if (m_bytes.size() > std::numeric_limits<int>::max()) {
        m_error = {1, 0, QStringLiteral("The text is longer than 2 GB"), 0, true};
    } else if (crowdedTag < 0) {
        runParser(m_bytes);
    } else {
        const QByteArray before = m_bytes.first(crowdedTag);
        m_start = before.constData();
        runParser(before);
        if (!m_error || m_error->offset >= crowdedTag)
            setCrowdedError(crowdedTag);
    }
    m_handler = nullptr;
    return !m_error;
}

void EventParser::setCrowdedError(qsizetype tag)
{
    const QByteArrayView before = QByteArrayView(m_bytes).first(tag);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    const auto column = tag - before.lastIndexOf('\n');
    m_error = {static_cast<int>(lines) + 1, static_cast<int>(column),
               QStringLiteral("An element has more than %1 attributes").arg(limit::attributes), tag,
               true};
}

/// The bytes must be followed by a null.
void EventParser::runParser(QByteArrayView utf8)
{
    if (utf8.startsWith("\xEF\xBB\xBF"))
        utf8 = utf8.sliced(3);
    const std::unique_ptr<xmlParserCtxt, ContextDeleter> context(made(xmlNewParserCtxt()));
    xmlSAXHandler sax{};
    sax.startElement = Callbacks::startElement;
    sax.endElement = Callbacks::endElement;
    sax.characters = Callbacks::characters;
    sax.ignorableWhitespace = Callbacks::characters;
    sax.cdataBlock = Callbacks::cdataBlock;
    sax.comment = Callbacks::comment;
    sax.processingInstruction = Callbacks::processingInstruction;
    sax.internalSubset = Callbacks::internalSubset;
    sax.getEntity = Callbacks::getEntity;
    sax.reference = Callbacks::reference;
    context->userData = this;
    // "Huge" lifts the limit on the length of a text node; declared entities, which it would also
    // let grow without limit, are never expanded here. "No entities" is needed all the same:
    // without it an ampersand in an attribute's value is reported as "&#38;".
    xmlCtxtUseOptions(context.get(),
                      XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT);
    *context->sax = sax;
    context->encoding = made(xmlStrdup(reinterpret_cast<const xmlChar *>("UTF-8")));
    m_context = context.get();

    // Pointed at the bytes themselves, which end in a null; the library would copy the whole text.
    xmlParserInput *input = made(xmlNewInputStream(context.get()));
    input->base = reinterpret_cast<const xmlChar *>(utf8.data());
    input->cur = input->base;
    input->end = input->base + utf8.size();
    inputPush(context.get(), input);
    {
        const ErrorsGoTo here(Callbacks::error, this);
        xmlParseDocument(context.get());
    }
    m_context = nullptr;
    if (m_isMemoryShort || context->errNo == XML_ERR_NO_MEMORY)
        throw std::bad_alloc();
    if (!m_error && !context->wellFormed)
        m_error = ParseError{1, 0, QStringLiteral("The text is not well-formed XML")};
}

qsizetype EventParser::position() const
{
    const auto *context = static_cast<const xmlParserCtxt *>(m_context);
    if (!context || !context->input)
        return 0;
    return reinterpret_cast<const char *>(context->input->cur) - m_start;
}

} // namespace quillet
