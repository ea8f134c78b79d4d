#include "document/repair/CharacterMending.h"

#include "document/repair/TextChanges.h"
#include "xml/XMLCharacters.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using View = QByteArrayView;

constexpr std::array<View, 5> predefined{"amp", "lt", "gt", "quot", "apos"};
/// Of a reference without its "&"; a longer text is none.
constexpr qsizetype longestReference = 16;

/// How many bytes the forbidden character has that begins at a place; 0 when none does.
qsizetype forbiddenLength(const QByteArray &utf8, qsizetype at)
{
    const auto c = static_cast<unsigned char>(utf8[at]);
    if (c < 0x20)
        return isXMLCharacter(c) ? 0 : 1;
    const View rest = View(utf8).sliced(at);
    const bool isNone = c == 0xEF && (rest.startsWith("\xEF\xBF\xBE") || // U+FFFE
                                      rest.startsWith("\xEF\xBF\xBF"));  // U+FFFF
    return isNone ? 3 : 0;
}

void mendReference(const QByteArray &text, qsizetype at, TextChanges &changes)
{
    const View rest = View(text).sliced(at + 1);
    const View start = rest.first(std::min(longestReference, rest.size()));
    const View name = start.first(std::max<qsizetype>(start.indexOf(';'), 0));
    if (std::find(predefined.begin(), predefined.end(), name) != predefined.end())
        return;
    const bool isHex = name.startsWith("#x");
    const View digits = name.sliced(std::min<qsizetype>(isHex ? 2 : 1, name.size()));
    bool isNumber = false;
    uint number = 0;
    if (name.startsWith('#') && std::all_of(digits.begin(), digits.end(), isXMLNamePart))
        number = digits.toByteArray().toUInt(&isNumber, isHex ? 16 : 10);
    if (!isNumber)
        changes.escape(at, "&amp;", TextChanges::Kind::Ampersand);
    else if (!isXMLCharacter(number))
        changes.remove(at, name.size() + 2, TextChanges::Kind::Control);
}

} // namespace

QByteArray withoutControls(const QByteArray &utf8, qsizetype &count)
{
    QByteArray kept;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const qsizetype length = forbiddenLength(utf8, i);
        if (length == 0)
            continue;
        kept.append(View(utf8).sliced(copied, i - copied));
        copied = i + length;
        i = copied - 1;
        ++count;
    }
    return copied == 0 ? utf8 : kept.append(View(utf8).sliced(copied));
}

void mendReferences(const QByteArray &text, qsizetype from, qsizetype to, TextChanges &changes)
{
    const View searched = View(text).first(to);
    for (qsizetype at = searched.indexOf('&', from); at >= 0; at = searched.indexOf('&', at + 1))
        mendReference(text, at, changes);
}

} // namespace quillet
