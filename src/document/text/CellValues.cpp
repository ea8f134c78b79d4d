#include "document/text/CellValues.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct MarkWord
{
    QStringView word; ///< case folded
    bool isSet;
};

/// What cells of a mark hold, also as capitals become small ones in a language without Turkish
/// rules.
constexpr std::array markWords{
    MarkWord{u"1", true},
    MarkWord{u"0", false},
    MarkWord{u"x", true},
    MarkWord{u"\u2713", true},
    MarkWord{u"\u2714", true},
    MarkWord{u"\u2611", true},
    MarkWord{u"\u2612", true},
    MarkWord{u"\u2610", false},
    MarkWord{u"true", true},
    MarkWord{u"false", false},
    MarkWord{u"yes", true},
    MarkWord{u"no", false},
    MarkWord{u"wahr", true},
    MarkWord{u"falsch", false},
    MarkWord{u"ja", true},
    MarkWord{u"nein", false},
    MarkWord{u"verdadero", true},
    MarkWord{u"falso", false},
    MarkWord{u"s\u00ED", true},
    MarkWord{u"si", true},
    MarkWord{u"vrai", true},
    MarkWord{u"faux", false},
    MarkWord{u"oui", true},
    MarkWord{u"non", false},
    MarkWord{u"vero", true},
    MarkWord{u"s\u00EC", true},
    MarkWord{u"waar", true},
    MarkWord{u"onwaar", false},
    MarkWord{u"nee", false},
    MarkWord{u"prawda", true},
    MarkWord{u"fa\u0142sz", false},
    MarkWord{u"tak", true},
    MarkWord{u"nie", false},
    MarkWord{u"do\u011Fru", true},
    MarkWord{u"yanl\u0131\u015F", false},
    MarkWord{u"evet", true},
    MarkWord{u"yanli\u015F", false},
    MarkWord{u"hay\u0131r", false},
    MarkWord{u"hayir", false},
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Between groups of three digits; all of them but blanks and the apostrophe may as well be
/// decimal.
bool isGroupSign(QChar c)
{
    return c.isSpace() || c == u'\'' || c == u'\u2019';
}

bool isDecimalSign(QChar c)
{
    return c == u'.' || c == u',';
}

struct Decimal
{
    qint64 whole = 0;
    QString fraction = {}; ///< without zeros at its end
};

/// Digits with signs between groups of three, and a fraction.
std::optional<Decimal> decimalOf(QStringView text)
{
    constexpr qsizetype longest = 40, mostDigits = 15, group = 3;
    text = text.trimmed();
    if (text.isEmpty() || text.size() > longest || !isDigit(text.front()) || !isDigit(text.back()))
        return {};
    QString digits, fraction;
    QList<qsizetype> signs; // where they stand, counted in digits
    QString used;
    for (const QChar c : text) {
        if (isDigit(c)) {
            digits += c;
        } else if (isDecimalSign(c) || isGroupSign(c)) {
            signs.append(digits.size());
            used += c;
        } else {
            return {};
        }
    }
    // The last sign begins a fraction unless there are three digits behind it and it may group; a
    // sign that is another than those before it does so whatever follows.
    const bool isOther = used.size() > 1 && used.back() != used.front();
    const qsizetype behind = signs.isEmpty() ? 0 : digits.size() - signs.back();
    if (!signs.isEmpty() && isDecimalSign(used.back()) && (behind != group || isOther)) {
        fraction = digits.sliced(signs.takeLast());
        digits.chop(fraction.size());
        used.chop(1);
    }
    qsizetype expected = digits.size();
    for (qsizetype i = signs.size() - 1; i >= 0; --i) {
        expected -= group;
        if (signs[i] != expected || expected <= 0 || used[i] != used.front())
            return {};
    }
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    const bool isPadded = digits.startsWith(u'0') && digits.size() > 1;
    if (digits.size() > mostDigits || (!signs.isEmpty() && (signs.front() > group || isPadded)))
        return {};
    return Decimal{digits.toLongLong(), fraction};
}

} // namespace

std::optional<qint64> wholeNumberOf(QStringView cell)
{
    const std::optional<Decimal> number = decimalOf(cell);
    return number && number->fraction.isEmpty() ? std::optional(number->whole) : std::nullopt;
}

std::optional<bool> markOf(QStringView cell)
{
    constexpr qsizetype longest = 12;
    cell = cell.trimmed();
    if (cell.size() > longest)
        return {};
    const QString folded = cell.toString().toCaseFolded();
    const auto *const found =
        std::find_if(markWords.begin(), markWords.end(),
                     [&folded](const MarkWord &row) { return row.word == folded; });
    if (found != markWords.end())
        return found->isSet;
    const std::optional<qint64> number = wholeNumberOf(cell);
    return number && *number <= 1 ? std::optional(*number == 1) : std::nullopt;
}

std::optional<qint64> frequencyOf(QStringView cell)
{
    constexpr qint64 highestInKilohertz = 3'000, highestInMegahertz = 31'000, kilo = 1'000;
    constexpr qsizetype kiloDigits = 3;
    constexpr QStringView unit = u"MHz";
    cell = cell.trimmed();
    if (!cell.endsWith(unit, Qt::CaseInsensitive))
        return wholeNumberOf(cell);
    cell.chop(unit.size());
    // Nobody groups the digits of a frequency: three behind a sign are a fraction.
    cell = cell.trimmed();
    const auto sign = std::find_if(cell.begin(), cell.end(), isDecimalSign);
    const QStringView whole = cell.first(sign - cell.begin());
    const QStringView fraction =
        sign == cell.end() ? QStringView() : cell.sliced(sign - cell.begin() + 1);
    const std::optional<qint64> megahertz = wholeNumberOf(whole);
    if (!megahertz || fraction.size() > kiloDigits ||
        !std::all_of(fraction.begin(), fraction.end(), isDigit))
        return {};
    if (fraction.isEmpty() && *megahertz >= highestInKilohertz && *megahertz < highestInMegahertz)
        return megahertz;
    return *megahertz * kilo + fraction.toString().leftJustified(kiloDigits, u'0').toLongLong();
}

} // namespace quillet
