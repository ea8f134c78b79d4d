#pragma once

#include "xml/ParseLimits.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// Where and why a parse stopped. Lines and columns count from 1; a column of 0 is unknown.
struct ParseError
{
    int line = 0;
    int column = 0;
    QString message;
    qsizetype offset = 0; ///< in bytes of the text that was parsed; about where the fault was seen
    bool isLimit = false; ///< the text goes beyond what is read, and may be right for all that
};

/// What an EventParser reports, in document order. All text is UTF-8. One run of characters may
/// come in several pieces. Names are null-terminated and the same pointer for the same name
/// throughout a parse.
class EventHandler
{
public:
    virtual ~EventHandler() = default;

    /// `attributes` is a null-terminated list of names and values in turn, or null.
    virtual void startElement(const char *name, const char *const *attributes) = 0;
    virtual void endElement() = 0;
    virtual void characters(QByteArrayView text) = 0;
    virtual void cdataBlock(QByteArrayView bytes) = 0;
    virtual void comment(QByteArrayView text) = 0;
};

/// A streaming, non-validating XML parser over UTF-8 bytes, without namespace processing. The
/// encoding named in the XML declaration is not believed; a byte-order mark is skipped. It stops at
/// the first error and reports no events after it. An element whose start tag the text breaks off
/// in is not reported. Besides malformed XML an error is: what goes beyond the limits of
/// ParseLimits, and a reference to any entity but the five predefined ones. A document type
/// declaration is read past; nothing it names is ever opened or expanded.
class EventParser
{
public:
    static constexpr int maxDepth = limit::depth;

    /// The bytes must be followed by a null, as those that a QByteArray owns are.
    explicit EventParser(QByteArray utf8) : m_bytes(std::move(utf8)) {}

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

    /// Runs the whole parse. Returns whether it came to the end without an error. Throws
    /// std::bad_alloc when the library has no memory left.
    bool parse(EventHandler &handler);

    /// How many bytes the parse has consumed, for a handler to ask: at the end of an element those
    /// up to and including its end tag, at its start those inside its start tag, behind all
    /// attributes.
    [[nodiscard]] qsizetype position() const;

    /// The error that stopped the last parse; none when there was none.
    [[nodiscard]] const std::optional<ParseError> &error() const { return m_error; }

private:
    struct Callbacks;

    void runParser(QByteArrayView utf8);
    void setCrowdedError(qsizetype tag);

    QByteArray m_bytes;
    const char *m_start = nullptr; ///< of the bytes that are being parsed
    EventHandler *m_handler = nullptr;
    void *m_context = nullptr;
    int m_depth = 0;
    unsigned m_elements = 0;
    bool m_isMemoryShort = false; ///< the library found
    std::optional<ParseError> m_error;
};

} // namespace quillet
