#pragma once

#include "document/repair/Mending.h"

#include <QList>
#include <QString>

#include <optional>

namespace quillet {

struct ChannelList;

/// One thing that is wrong with a file that was read all the same.
struct FileFinding
{
    enum class Kind {
        Damaged,     ///< reading stopped before the end, at a line
        Latin1,      ///< the bytes are no UTF-8
        BinaryList,  ///< no text at all, let alone XML
        NoXML,       ///< text of another kind
        BadJSON,     ///< the JSON station list could not be decoded
        Declaration, ///< the letters are in UTF-8, but another encoding is declared
    };
    Kind kind = Kind::Damaged;
    int line = 0; ///< in the file, or of the JSON text
    int column = 0;
    std::optional<QString> lastStation = {}; ///< the last one that was read whole, if any
    qsizetype unread = 0;                    ///< stations that begin behind the damage
    QString declared = {};                   ///< the encoding declared, where that is wrong
    bool isJSONList = false;                 ///< damaged, and the stations are kept as JSON
    bool isLimit = false;                    ///< damaged only in that it goes beyond what is read
};

/// What is wrong with the file that the list was read from, at most one finding of a kind. A
/// file that is as it should be is not looked through again.
[[nodiscard]] QList<FileFinding> diagnose(const ChannelList &list);

/// The mended text of a damaged file; none when it is not damaged or the mended text would not give
/// all its stations back.
[[nodiscard]] std::optional<MendedText> repairedText(const ChannelList &list);

} // namespace quillet
