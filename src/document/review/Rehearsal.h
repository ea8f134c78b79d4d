#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillet {

struct ChannelList;

/// What would be lost of a list if its file held certain bytes and were opened again.
struct Rehearsal
{
    /// Stations that one thing happens to.
    struct Stations
    {
        qsizetype count = 0;
        QStringList names; ///< of the first few
    };

    bool isRefused = false; ///< the bytes could not be opened again
    Stations missing;       ///< no longer there
    Stations doubled;       ///< there twice
    Stations changed;       ///< with other content than they have
    Stations renumbered;    ///< with another number than they have
    qsizetype unread = 0;   ///< ITEM elements behind a fault of the file that was opened
    /// Numbers of a JSON list that would have another form, and values of members named again that
    /// would be gone.
    qsizetype rewrittenValues = 0;
    bool losesTail = false;         ///< what stands behind that fault
    bool losesSurroundings = false; ///< text before the first or after the last station
    bool losesExtras = false;       ///< comments, attributes or elements among the stations
    bool mixesEncodings = false;    ///< accented letters in another encoding than the file declares
    [[nodiscard]] bool isClean() const { return weight() == 0; }
    /// Compares two writings of a list: the higher, the more is lost.
    [[nodiscard]] qsizetype weight() const;
};

/// Reads the bytes as a second list and compares what comes out with what the list holds and with
/// what it was read from. No command deletes a station, so each that was read must be there once,
/// with the content it has now. Takes about as long as reading the file; decodes no name of the
/// list's stations.
[[nodiscard]] Rehearsal rehearse(const ChannelList &list, const QByteArray &bytes);

} // namespace quillet
