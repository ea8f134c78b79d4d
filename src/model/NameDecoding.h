#pragma once

#include <QByteArrayView>
#include <QString>

/// How sets store station names.
namespace quillet {

/// The text of a name given as pairs of hexadecimal digits, each with or without "0x" before it;
/// one character of code point 0 to 255 a pair. Anything between the pairs is skipped.
[[nodiscard]] QString decodeHexName(QStringView hex);

/// Recovers UTF-8 text whose bytes were stored as one character each. Text whose first character is
/// U+00BF or below is returned as it is; only the first character is looked at.
[[nodiscard]] QString decodeUtf8Envelope(const QString &text);
/// The same of a text that is given in UTF-8.
[[nodiscard]] QString decodeUtf8Envelope(QByteArrayView utf8);

} // namespace quillet
