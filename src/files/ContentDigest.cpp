#include "files/ContentDigest.h"

#include "files/FileNames.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <array>
#include <bit>
#include <cstring>

namespace quillet::contentdigest {

namespace {

constexpr int digitsOfSum = 16;
constexpr int digitsOfOthers = 4;
constexpr int digitsOfSHA256 = 64;

/// Each step can be taken back, so a word that differs makes the sum another one whatever follows.
quint64 sumOf(QByteArrayView bytes)
{
    auto sum = static_cast<quint64>(bytes.size());
    const auto add = [&sum](const char *word) {
        sum = std::rotl(sum ^ qFromLittleEndian<quint64>(word), 29) * 0x9E3779B97F4A7C15;
    };
    qsizetype place = 0;
    for (; place + 8 <= bytes.size(); place += 8)
        add(bytes.data() + place);
    std::array<char, 8> rest{};
    if (place < bytes.size())
        std::memcpy(rest.data(), bytes.data() + place,
                    static_cast<std::size_t>(bytes.size() - place));
    add(rest.data());
    return sum ^ (sum >> 32);
}

QByteArray hexadecimal(quint64 number, int digits)
{
    return QByteArray::number(number, 16).rightJustified(digits, '0');
}

} // namespace

QByteArray digestOf(QByteArrayView bytes, quint32 others)
{
    return hexadecimal(sumOf(bytes), digitsOfSum) + hexadecimal(others, digitsOfOthers);
}

bool isDigest(const QByteArray &text)
{
    const QString digits = QString::fromLatin1(text);
    return isHexNumber(digits, digitsOfSum + digitsOfOthers) || isHexNumber(digits, digitsOfSHA256);
}

bool isOf(const QByteArray &bytes, const QByteArray &digest)
{
    if (digest.size() == digitsOfSHA256)
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() == digest;
    return digestOf(bytes).first(digitsOfSum) == digest.first(qMin(digest.size(), digitsOfSum));
}

} // namespace quillet::contentdigest
