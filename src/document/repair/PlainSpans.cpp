#include "document/repair/PlainSpans.h"

#include "xml/PlainScanner.h"
#include "xml/PlainText.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// Walks the tags of a text without faults in which every "<" begins one.
class TagWalker
{
public:
    TagWalker(const QByteArray &text, const std::vector<QByteArray> &path)
        : m_text(text), m_path(path)
    {
    }

    [[nodiscard]] std::vector<ElementSpan> spans()
    {
        for (qsizetype at = m_text.indexOf('<'); at >= 0; at = m_text.indexOf('<', at + 1)) {
            const char kind = m_text[at + 1];
            if (kind == '/')
                leave(at, m_text.indexOf('>', at) + 1);
            else if (kind != '?') // of the declaration
                enter(at);
        }
        return std::move(m_spans);
    }

private:
    void enter(qsizetype tag)
    {
        const auto endsName = [](char c) {
            return c == '>' || c == '/' || c == ' ' || c == '\t' || c == '\r' || c == '\n';
        };
        const char *const start = m_text.begin() + tag + 1;
        const QByteArrayView name(start, std::find_if(start, m_text.end(), endsName));
        const qsizetype end = endOfTag(tag + 1 + name.size());
        if (m_depth == m_onPath && m_depth < m_path.size() &&
            (m_path[m_depth].isEmpty() || m_path[m_depth] == name)) {
            ++m_onPath;
            if (m_onPath == m_path.size())
                m_spans.push_back({.name = name.toByteArray(),
                                   .whole = {tag, end},
                                   .content = {end, end},
                                   .isClosed = true,
                                   .node = {}});
        }
        ++m_depth;
        if (m_text[end - 2] == '/')
            leave(end, end);
    }

    /// The element that is open, by an end tag if it has one.
    void leave(qsizetype tag, qsizetype end)
    {
        if (m_onPath == m_depth) {
            if (m_depth == m_path.size()) {
                m_spans.back().content.end = tag;
                m_spans.back().whole.end = end;
            }
            --m_onPath;
        }
        --m_depth;
    }

    /// Behind the ">" that is in no value of an attribute.
    [[nodiscard]] qsizetype endOfTag(qsizetype at) const
    {
        for (; m_text[at] != '>'; ++at) {
            if (m_text[at] == '"' || m_text[at] == '\'')
                at = m_text.indexOf(m_text[at], at + 1);
        }
        return at + 1;
    }

    const QByteArray &m_text;
    const std::vector<QByteArray> &m_path;
    std::vector<ElementSpan> m_spans;
    std::size_t m_depth = 0;
    std::size_t m_onPath = 0; ///< how many of the open elements follow the path
};

} // namespace

std::optional<std::vector<ElementSpan>> plainElementSpans(const QByteArray &utf8,
                                                          const std::vector<QByteArray> &path)
{
    const XMLDictionaryParser::Settings &settings = XMLDictionaryParser::sharedInstance().settings;
    if (!PlainScanner::suits(settings) || !isPlainText(utf8) || !PlainScanner(utf8).tree(settings))
        return {};
    return TagWalker(utf8, path).spans();
}

} // namespace quillet
