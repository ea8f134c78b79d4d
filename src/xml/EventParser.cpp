#include "xml/EventParser.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <limits>
#include <memory>

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

const char *text(const xmlChar *characters)
{
    return reinterpret_cast<const char *>(characters);
}

} // namespace

/// The library's callbacks; each gets the EventParser as its user data.
struct EventParser::Callbacks
{
    static EventParser &parser(void *data) { return *static_cast<EventParser *>(data); }

    static void stop(EventParser &self, const QString &message)
    {
        auto *context = static_cast<xmlParserCtxt *>(self.m_context);
        if (!self.m_error)
            self.m_error =
                ParseError{context->input->line, context->input->col, message, self.position()};
        xmlStopParser(context);
    }

    static void startElement(void *data, const xmlChar *name, const xmlChar **attributes)
    {
        EventParser &self = parser(data);
        if (++self.m_depth > maxDepth) {
            stop(self, QStringLiteral("Elements are nested more than %1 deep").arg(maxDepth));
            return;
        }
        self.m_handler->startElement(text(name), reinterpret_cast<const char **>(attributes));
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

    static xmlEntity *getEntity(void *, const xmlChar *name)
    {
        return xmlGetPredefinedEntity(name);
    }

    /// Called for an entity that getEntity does not know.
    static void reference(void *data, const xmlChar *name)
    {
        stop(parser(data),
             QStringLiteral("Entity '%1' is not expanded").arg(QLatin1String(text(name))));
    }

    static void error(void *data, LibraryError error)
    {
        EventParser &self = parser(data);
        if (self.m_error || error->domain != XML_FROM_PARSER || error->level < XML_ERR_ERROR)
            return;
        self.m_error = ParseError{error->line, error->int2,
                                  QString::fromUtf8(error->message).trimmed(), self.position()};
    }
};

bool EventParser::parse(EventHandler &handler)
{
    m_handler = &handler;
    m_depth = 0;
    m_error.reset();

    QByteArrayView bytes(m_bytes.constData(), m_bytes.size());
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes = bytes.sliced(3);
    if (bytes.size() > std::numeric_limits<int>::max()) {
        m_error = ParseError{1, 0, QStringLiteral("The text is longer than 2 GB")};
        return false;
    }

    const std::unique_ptr<xmlParserCtxt, ContextDeleter> context(xmlNewParserCtxt());
    xmlSAXHandler sax{};
    sax.startElement = Callbacks::startElement;
    sax.endElement = Callbacks::endElement;
    sax.characters = Callbacks::characters;
    sax.ignorableWhitespace = Callbacks::characters;
    sax.cdataBlock = Callbacks::cdataBlock;
    sax.comment = Callbacks::comment;
    sax.getEntity = Callbacks::getEntity;
    sax.reference = Callbacks::reference;
    context->userData = this;
    // "Huge" lifts the limit on the length of a text node; declared entities, which it would also
    // let grow without limit, are never expanded here. "No entities" is needed all the same:
    // without it an ampersand in an attribute's value is reported as "&#38;".
    xmlCtxtUseOptions(context.get(),
                      XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT);
    *context->sax = sax;
    context->encoding = xmlStrdup(reinterpret_cast<const xmlChar *>("UTF-8"));
    m_context = context.get();

    // Pointed at the bytes themselves, which end in a null; the library would copy the whole text.
    xmlParserInput *input = xmlNewInputStream(context.get());
    input->base = reinterpret_cast<const xmlChar *>(bytes.data());
    input->cur = input->base;
    input->end = input->base + bytes.size();
    inputPush(context.get(), input);
    {
        const ErrorsGoTo here(Callbacks::error, this);
        xmlParseDocument(context.get());
    }

    m_context = nullptr;
    m_handler = nullptr;
    if (!m_error && !context->wellFormed)
        m_error = ParseError{1, 0, QStringLiteral("The text is not well-formed XML")};
    return !m_error;
}

qsizetype EventParser::position() const
{
    const auto *context = static_cast<const xmlParserCtxt *>(m_context);
    if (!context || !context->input)
        return 0;
    return reinterpret_cast<const char *>(context->input->cur) - m_bytes.constData();
}

} // namespace quillet
