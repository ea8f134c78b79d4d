#pragma once

#include "support/TextConversion.h"
#include "support/Utf8Builder.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// The whole text of a file. Text in UTF-8 is kept as the bytes that were read, which take less
/// room and time than decoding them all; what is asked for is decoded then. Positions and lengths
/// count UTF-16 units, whatever the text is kept as.
class FileText
{
public:
    FileText() = default;
    /// None when there are no bytes, or nothing but a byte-order mark of UTF-16.
    [[nodiscard]] static std::optional<FileText> decode(const QByteArray &bytes);

    [[nodiscard]] TextEncoding encoding() const { return m_encoding; }
    /// Whether it came in UTF-8 and isPlainText().
    [[nodiscard]] bool isPlain() const { return m_isPlain; }
    [[nodiscard]] QString toString() const;
    /// The text in UTF-8: the bytes themselves when they came in it.
    [[nodiscard]] QByteArray utf8() const;

    /// A place in the text, which means something to this text alone.
    struct Place
    {
        qsizetype offset = -1;
        [[nodiscard]] bool isValid() const { return offset >= 0; }
    };
    /// The first occurrence of an ASCII text at or after a place, by default the start.
    [[nodiscard]] Place find(QLatin1String ascii, Place from = {0}) const;
    /// How many UTF-16 units stand before the place, or from one place to a later one.
    [[nodiscard]] qsizetype lengthBefore(Place place) const { return lengthBetween({0}, place); }
    [[nodiscard]] qsizetype lengthBetween(Place from, Place to) const;
    [[nodiscard]] QString textFrom(Place place) const;

    /// Appends the first `length` UTF-16 units, or all when there are fewer.
    void appendFirst(qsizetype length, Utf8Builder &output) const;
    void appendFirst(qsizetype length, QString &output) const;
    /// The bytes that were decoded.
    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }
    /// The first so many bytes or UTF-16 units, whichever the text is kept in; all when it is
    /// shorter.
    [[nodiscard]] QString start(qsizetype length) const;
    /// About as many bytes as the text takes in UTF-8.
    [[nodiscard]] qsizetype size() const;

private:
    TextEncoding m_encoding = TextEncoding::Utf8;
    bool m_isPlain = false;
    QByteArray m_bytes; ///< the text itself, when it came in UTF-8
    QString m_text;     ///< the text, when it came otherwise
};

/// The encoding that the text's XML declaration names, as it stands there; none without one.
[[nodiscard]] std::optional<QString> declaredEncoding(const FileText &text);

/// Whether the text is UTF-8 with letters beyond ASCII while its declaration names another
/// encoding, so that a reader that believes it shows them wrongly.
[[nodiscard]] bool contradictsDeclaration(const FileText &text);

} // namespace quillet
