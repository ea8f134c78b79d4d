#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// Between the bytes of a file and text.
namespace quillet {

enum class TextEncoding { Utf8, Utf16, Latin1 };

struct DecodedText
{
    QString text;
    TextEncoding encoding = TextEncoding::Utf8; ///< what the bytes were read as
};

/// Decodes bytes: as UTF-16 when the first byte is 0xFF or 0x00 (byte-order mark honoured, else
/// little-endian), as UTF-8 otherwise; when that fails as ISO 8859-1, which always succeeds. The
/// mark of UTF-16 is no part of the text; U+FEFF at the start of UTF-8 stays in it. A big-endian
/// mark (0xFE first) is not taken for UTF-16; this is deliberate. None when there are no bytes.
[[nodiscard]] std::optional<DecodedText> decodeText(QByteArrayView bytes);

/// The text of decodeText.
[[nodiscard]] std::optional<QString> getAsString(QByteArrayView bytes);

/// Another name of getAsString.
[[nodiscard]] std::optional<QString> getAsText(QByteArrayView bytes);

/// Decodes valid UTF-8 and keeps U+FEFF at its start, which QString::fromUtf8 drops.
[[nodiscard]] QString textFromUtf8(QByteArrayView utf8);

/// Encodes text as UTF-8. Text that UTF-8 cannot hold (half a surrogate pair) is encoded as UTF-16
/// with byte-order mark.
[[nodiscard]] QByteArray getAsData(QStringView text);

/// Whether lines end in CR LF, as told by the first four line-end characters of one kind. True for
/// a text with no line end, or a single one of any kind.
[[nodiscard]] bool usesCRLF(QStringView text);

/// Splits text at CR, LF and CR LF. A trailing line end makes no empty last line; an empty text is
/// one empty line.
[[nodiscard]] QStringList linesArray(QStringView text);
/// Hands out the same lines one after another, until one is answered with false.
void forEachLine(QStringView text, const std::function<bool(QStringView)> &takeLine);

} // namespace quillet
