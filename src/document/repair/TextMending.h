#pragma once

#include <QByteArray>

#include <optional>

namespace quillet {

class FileText;

/// What was mended in a text.
struct Mending
{
    qsizetype ampersands = 0; ///< that began no reference, escaped
    qsizetype brackets = 0; ///< "<" that began no tag, and "]]>": escaped, or removed between tags
    qsizetype controls = 0; ///< characters that no XML text may hold, removed
    qsizetype tags = 0;     ///< end tags that were missing, wrong or too many
    qsizetype strays = 0;   ///< texts before the first or after the last tag, removed
    bool endWasMissing = false;  ///< the text was cut after its last whole field and then closed
    bool keptStation = false;    ///< the cut went through a station, whose whole fields were kept
    bool droppedStation = false; ///< with the cut went a station of which too little was left
};

struct MendedText
{
    QByteArray utf8;
    Mending mending;
};

/// Makes damaged text parse to its end and keeps everything of it that is whole. A station that was
/// cut is kept with its whole fields, unless it could not be filed any more. None when the damage
/// is of another kind, or nothing can be told of what was meant. Takes time in proportion to the
/// length.
[[nodiscard]] std::optional<MendedText> mendText(const QByteArray &utf8);

/// The text of a file, in UTF-8, as it should be mended. Where it was read as Latin-1 because of
/// some bytes that are no UTF-8, only those are taken for Latin-1 here.
[[nodiscard]] QByteArray textToMend(const FileText &text);

} // namespace quillet
