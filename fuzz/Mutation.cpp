#include "Mutation.h"

#include <array>

namespace quillet::fuzzing {

namespace {

constexpr std::array pieces{
    "<",
    ">",
    "/",
    "&",
    "&amp;",
    "&lt;",
    "&#13;",
    "]]>",
    "\r",
    "\n",
    "\r\n",
    "\t",
    " ",
    "\"",
    "'",
    "=",
    "<!---->",
    "<![CDATA[",
    "<?p?>",
    "\xC2\xA0",
    "\xC3",
    "\xE2\x80\xA8",
    "\xEF\xBF\xBE",
    "\x01",
    "<ITEM>",
    "</ITEM>",
    "<prNum>",
    "</prNum>",
    "<a/>",
    "<_a>",
    "<__name>",
    " a=\"b\"",
    "</",
    "/>",
    ":",
    "\xF0\x9F\x98\x80",
    "",
    "\xEF\xBB\xBF",
};

qsizetype below(qsizetype limit, std::mt19937 &random)
{
    return limit <= 0 ? 0 : static_cast<qsizetype>(random() % static_cast<quint64>(limit));
}

void change(QByteArray &text, std::mt19937 &random)
{
    constexpr qsizetype longest = 60;
    const qsizetype at = below(text.size() + 1, random);
    const qsizetype length = below(std::min(longest, text.size() - at) + 1, random);
    switch (random() % 5) {
    case 0:
        if (at < text.size())
            text[at] = static_cast<char>(random());
        break;
    case 1:
        text.remove(at, length);
        break;
    case 2:
        text.insert(below(text.size() + 1, random), text.mid(at, length));
        break;
    case 3:
        text.replace(at, std::min<qsizetype>(length, 2), pieces.at(random() % pieces.size()));
        break;
    default:
        text.insert(at, pieces.at(random() % pieces.size()));
    }
}

} // namespace

QByteArray mutated(QByteArray text, std::mt19937 &random)
{
    for (auto changes = 1 + random() % 4; changes > 0; --changes)
        change(text, random);
    return text;
}

} // namespace quillet::fuzzing
