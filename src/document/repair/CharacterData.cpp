#include "document/repair/CharacterData.h"

#include "xml/PlainText.h"
#include "xml/XMLCharacters.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace quillet {

namespace {

/// What a reference to a character stands for, given without its "&" and ";"; empty when it means
/// nothing.
QByteArray characterOf(QByteArrayView reference)
{
    bool isNumber = reference.startsWith('#');
    if (!isNumber)
        return {};
    const bool isHexadecimal = reference.startsWith("#x");
    const QByteArrayView digits = reference.sliced(isHexadecimal ? 2 : 1);
    const char32_t code = digits.toUInt(&isNumber, isHexadecimal ? 16 : 10);
    return isNumber && isXMLCharacter(code) ? QString::fromUcs4(&code, 1).toUtf8() : QByteArray();
}

} // namespace

std::optional<CharacterData> CharacterData::decode(const QByteArray &content)
{
    CharacterData data;
    data.m_stretches.push_back({0, 0});
    const char *at = content.begin();
    while (true) {
        const char *next = endOfPlainRun(at, content.end());
        while (next != content.end() && *next == ']')
            next = endOfPlainRun(next + 1, content.end());
        if (at == content.begin() && next == content.end()) {
            data.m_text = content; // shared
            return data;
        }
        data.m_text.append(at, next - at);
        if (next == content.end())
            return data;
        if (*next == '<')
            return {};
        if (*next == '\r') { // as any end of a line it is read as a line feed
            data.m_text.append('\n');
            at = next + 1 + (next + 1 != content.end() && next[1] == '\n' ? 1 : 0);
        } else {
            const char *const end = std::find(next, content.end(), ';');
            const qsizetype predefined = predefinedReference(next, content.end());
            const QByteArray meaning = predefined > 0 ? decodedPlainText({next, predefined})
                                                      : characterOf({next + 1, end});
            if (end == content.end() || meaning.isEmpty())
                return {};
            data.m_text.append(meaning);
            at = end + 1;
        }
        data.m_stretches.push_back({data.m_text.size(), at - content.begin()});
    }
}

qsizetype CharacterData::inContent(qsizetype at) const
{
    const auto behind = std::upper_bound(
        m_stretches.begin(), m_stretches.end(), at,
        [](qsizetype place, const Stretch &stretch) { return place < stretch.inText; });
    const Stretch &stretch = *std::prev(behind);
    return stretch.inContent + at - stretch.inText;
}

} // namespace quillet
