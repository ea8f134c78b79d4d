#include "document/repair/StationSpans.h"

#include "xml/EventParser.h"
#include "xml/TreeBuilder.h"

namespace quillet {

namespace {

class SpanFinder final : public EventHandler
{
public:
    SpanFinder(EventParser &parser, const std::vector<QByteArray> &path, WithNodes withNodes)
        : m_parser(parser), m_path(path)
    {
        XMLDictionaryParser::Settings settings = XMLDictionaryParser::sharedInstance().settings;
        settings.nodeNameMode = XMLDictionaryParser::NodeNameMode::NameNever;
        if (withNodes == WithNodes::Yes)
            m_builder.emplace(settings, parser.bytes());
    }

    void startElement(const char *name, const char *const *attributes) override
    {
        const bool isOnPath = m_depth == m_onPath && m_depth < m_path.size() &&
                              (m_path[m_depth].isEmpty() || m_path[m_depth] == name);
        ++m_depth;
        if (isOnPath)
            m_onPath = m_depth;
        if (builds())
            m_builder->startElement(name, attributes);
        if (!isOnPath || m_depth < m_path.size())
            return;
        // The parser is inside the start tag, behind all attributes, whose values hold no "<".
        const QByteArray &text = m_parser.bytes();
        ElementSpan span;
        span.name = name;
        span.whole.start = text.lastIndexOf('<', m_parser.position());
        const qsizetype tagEnd = text.indexOf('>', m_parser.position()) + 1;
        span.whole.end = span.content.start = span.content.end = tagEnd;
        spans.push_back(std::move(span));
    }

    void endElement() override
    {
        if (builds())
            m_builder->endElement();
        if (m_onPath == m_depth) {
            if (m_depth == m_path.size())
                close(spans.back());
            --m_onPath;
        }
        --m_depth;
    }

    void characters(QByteArrayView text) override
    {
        if (builds())
            m_builder->characters(text);
    }
    void cdataBlock(QByteArrayView bytes) override
    {
        if (builds())
            m_builder->cdataBlock(bytes);
    }
    void comment(QByteArrayView text) override
    {
        if (builds())
            m_builder->comment(text);
    }

    std::vector<ElementSpan> spans;

private:
    /// Inside an element at the end of the path.
    [[nodiscard]] bool builds() const { return m_builder && m_onPath == m_path.size(); }

    void close(ElementSpan &span)
    {
        if (m_builder)
            span.node = m_builder->takeRoot();
        const QByteArray &text = m_parser.bytes();
        span.whole.end = m_parser.position();
        span.isClosed = true;
        const bool hasEndTag = span.whole.end > span.content.start;
        span.content.end =
            hasEndTag ? text.lastIndexOf("</", span.whole.end - 1) : span.content.start;
    }

    EventParser &m_parser;
    const std::vector<QByteArray> &m_path;
    std::size_t m_depth = 0;
    std::size_t m_onPath = 0; ///< how many of the open elements follow the path
    std::optional<TreeBuilder> m_builder;
};

} // namespace

std::vector<ElementSpan> elementSpans(const QByteArray &utf8, const std::vector<QByteArray> &path,
                                      WithNodes withNodes)
{
    EventParser parser(utf8);
    SpanFinder finder(parser, path, withNodes);
    parser.parse(finder);
    if (!finder.spans.empty() && !finder.spans.back().isClosed) {
        ElementSpan &open = finder.spans.back();
        open.whole.end = open.content.end = utf8.size();
    }
    return std::move(finder.spans);
}

} // namespace quillet
