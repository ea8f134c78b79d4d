#pragma once

#include "model/StationSource.h"
#include "xml/Value.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace quillet {

struct ChannelList;
struct TakenList;

/// What tells an edited list from the tree that its bytes give, in numbers and texts alone.
/// Stations are told by their places on the roll. Entries are compared with those of the tree and
/// not with those of the list just read, for reading gives stations without a number one.
struct ListDifference
{
    /// Neighbours on the roll that are neighbours in a list.
    struct Run
    {
        quint32 first = 0;
        quint32 count = 0;
    };
    struct Station
    {
        quint32 place = 0;
        /// Whether the fields are all there are, in their order; else they are those that changed
        /// and then those that were added at the end.
        bool isWhole = false;
        std::vector<std::pair<QString, Value>> fields;
        /// The name that it keeps, where that is another than the file tells.
        std::optional<QString> nameRead;
        std::optional<std::optional<QString>> nameAsMade; ///< see LGStation::RememberedName
        bool changesRadio = false; ///< it is one where the file tells none, or the reverse
    };
    /// The text behind the last station: the end of the file's or, where it is not, all of it.
    struct Footer
    {
        qint64 bytesAtEnd = 0; ///< of the text in UTF-8
        std::optional<QString> text;
    };

    QByteArray origin; ///< a digest of the bytes and of the places of the stations in them
    quint32 stationCount = 0;
    std::array<qint64, 3> headerLengths{}; ///< of ATV, DTV and JSON
    std::optional<Footer> footer;
    std::vector<Station> stations;
    QByteArray namesRead; ///< by places on the roll: 1 where a name was read, else 0
    std::array<std::vector<Run>, std::size_t{2} * stationSourceCount> lists;

    [[nodiscard]] static ListDifference of(const TakenList &list);
    /// Whether all places are there and no list is longer than edits can make it.
    [[nodiscard]] bool isSound() const;
    /// False when it is none of this list's; then that stays as it is. Must be sound.
    [[nodiscard]] bool applyTo(ChannelList &fresh) const;
};

} // namespace quillet
