#pragma once

#include "document/text/CodePages.h"

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

/// Whether bytes are of one byte a letter. No mark and no other form of text is known in them.
[[nodiscard]] bool isOfCodePage(QByteArrayView bytes);

/// Goes by a mark, else takes text with a zero beside most letters for UTF-16, what is valid as
/// that for UTF-8, and anything else for that of the page. The mark is no part of the text, and
/// behind it what is not valid is U+FFFD.
[[nodiscard]] QString decoded(QByteArrayView bytes, CodePage page = CodePage::Western);

} // namespace quillet
