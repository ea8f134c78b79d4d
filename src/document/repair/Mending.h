#pragma once

#include <QByteArray>

namespace quillet {

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

} // namespace quillet
