#include "model/CleanName.h"

#include <algorithm>

namespace quillet {

namespace {

// Selectors of a character table. The others of 0x01 to 0x1F stand alone.
constexpr char16_t iso8859Selector = 0x10;      ///< two bytes follow, the number of the part
constexpr char16_t encodingTypeSelector = 0x1F; ///< one byte follows, the identifier

constexpr char16_t lastSelector = 0x1F;

/// The control codes of two-byte character tables are those of 0x80 to 0x9F in this row.
constexpr char16_t twoByteRow = 0xE000;

char16_t controlCode(QChar c)
{
    const char16_t u = c.unicode();
    return u >= (twoByteRow | 0x80) && u <= (twoByteRow | 0x9F) ? u & 0xFF : u;
}

bool isLineBreak(char16_t code)
{
    return code == u'\t' || code == u'\n' || code == u'\r' || code == 0x85 || code == 0x8A ||
           code == 0x2028 || code == 0x2029;
}

bool isControl(char16_t code)
{
    return code < 0x20 || (code >= 0x7F && code <= 0x9F);
}

bool staysOut(QChar c)
{
    if (c >= u' ' && c < u'\x7F') // most of them
        return false;
    const char16_t code = controlCode(c);
    return isControl(code) || isLineBreak(code);
}

qsizetype selectorLength(const QString &name)
{
    const char16_t first = name.front().unicode();
    if (first > lastSelector)
        return 0;
    if (first == encodingTypeSelector)
        return qMin<qsizetype>(2, name.size());
    qsizetype length = 1;
    while (first == iso8859Selector && length < 3 && length < name.size() &&
           name[length].unicode() < 0x20)
        ++length;
    return length;
}

} // namespace

QString cleanName(const QString &name)
{
    if (std::none_of(name.begin(), name.end(), staysOut))
        return name;
    QString clean;
    clean.reserve(name.size());
    bool isBroken = false; // since the last letter
    for (qsizetype i = selectorLength(name); i < name.size(); ++i) {
        if (staysOut(name[i])) {
            isBroken = isBroken || isLineBreak(controlCode(name[i]));
            continue;
        }
        if (isBroken && !clean.isEmpty() && !clean.back().isSpace() && !name[i].isSpace())
            clean += u' ';
        isBroken = false;
        clean += name[i];
    }
    return clean;
}

QString plainName(const QString &name)
{
    return cleanName(name).simplified();
}

} // namespace quillet
