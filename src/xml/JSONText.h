#pragma once

#include <QByteArray>

namespace quillet {

/// A text in JSON, in UTF-8. Bytes that may be read behind it, whatever they are, spare copying a
/// long one.
struct JSONText
{
    JSONText(const QByteArray &text) : utf8(text) {}
    JSONText(const char *text) : utf8(text) {}
    JSONText(QByteArrayView text, qsizetype readable = 0) : utf8(text), readableBehind(readable) {}

    QByteArrayView utf8;
    qsizetype readableBehind = 0;
};

} // namespace quillet
