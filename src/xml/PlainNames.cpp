#include "xml/PlainNames.h"

#include "xml/PlainText.h"

namespace quillet {

namespace {

// What goes beyond these may be right, but no set writes it.
constexpr qsizetype longestName = 200;
constexpr std::size_t mostNames = 2000;
static_assert(2 * mostNames < std::size_t{1} << PlainNames::bitsOfPlaces);

bool startsName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isOfName(char c)
{
    return startsName(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

} // namespace

PlainName *PlainNames::read(const char *&at, PlainName *expected)
{
    if (expected && standsAt(at, m_end, expected->text) && !isOfName(at[expected->text.size()])) {
        at += expected->text.size();
        return expected;
    }
    const char *const start = at;
    if (!startsName(*at))
        return nullptr;
    quint32 hash = 0;
    for (; isOfName(*at); ++at)
        hash = hash * 31 + static_cast<unsigned char>(*at);
    const QByteArrayView text(start, at - start);
    std::size_t place = (hash * 0x9E3779B9U) >> (32 - bitsOfPlaces);
    while (m_places[place] && m_places[place]->text != text)
        place = (place + 1) % m_places.size();
    if (m_places[place])
        return m_places[place];
    if (text.size() > longestName || m_names.size() == mostNames)
        return nullptr;
    PlainName &name = m_names.emplace_back();
    name.text = text.toByteArray();
    name.startTag = '<' + name.text + '>';
    name.endTag = "</" + name.text + '>';
    name.isOfXML = name.text.startsWith("xml");
    return m_places[place] = &name;
}

} // namespace quillet
