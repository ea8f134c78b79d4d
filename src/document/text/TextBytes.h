#pragma once

#include <QByteArray>
#include <QString>

/// Between the bytes of a text that goes to other programs, or comes from them, and the text. The
/// owner's files are read by support/TextConversion instead.
namespace quillet {

enum class TextForm {
    MarkedUtf8, ///< which spreadsheets need to know it
    Utf8,
    MarkedUtf16,
    Windows1252,
};

struct EncodedText
{
    QByteArray bytes;
    qsizetype lost = 0; ///< characters that the form cannot hold, in whose place stands "?"
};

[[nodiscard]] EncodedText encoded(QStringView text, TextForm form);

/// Goes by a mark, else takes text with a zero beside most letters for UTF-16, what is valid as
/// that for UTF-8, and anything else for Windows-1252. The mark is no part of the text.
[[nodiscard]] QString decoded(QByteArrayView bytes);

} // namespace quillet
