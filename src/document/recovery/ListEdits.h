#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>
#include <optional>

namespace quillet {

struct ChannelList;
struct ListDifference;
struct TakenList;

/// What was edited in a list since its bytes were read: by each station's place in the file, the
/// order of each of the eight lists and the entries that are not as they were read. With those
/// bytes it brings the list back, to the last field. A value that shares the entries with the list,
/// so that taking it costs little; it may be handed to another thread. Holds nothing of undoing.
class ListEdits
{
public:
    /// Called where the list is edited. The work is left to encoded().
    [[nodiscard]] static ListEdits of(const ChannelList &list);
    /// None when any of the bytes is damaged, and when a newer program made them.
    [[nodiscard]] static std::optional<ListEdits> decoded(QByteArrayView bytes);

    /// On any thread; takes about as long as reading the file. Null when the list is not one that
    /// can be brought back, which editing cannot make it.
    [[nodiscard]] QByteArray encoded() const;
    /// Whether a station holds anything else than the file tells, even if only reading has given it
    /// another number. Takes about as long as encoded().
    [[nodiscard]] bool changesStations() const;
    /// Makes the edits in a list that was just read from the same bytes. False when it was not, and
    /// then it stays as it is.
    [[nodiscard]] bool applyTo(ChannelList &fresh) const;

private:
    explicit ListEdits(std::shared_ptr<const TakenList> taken);
    explicit ListEdits(std::shared_ptr<const ListDifference> difference);
    [[nodiscard]] std::shared_ptr<const ListDifference> difference() const;

    // One of them.
    std::shared_ptr<const TakenList> m_taken;
    std::shared_ptr<const ListDifference> m_difference;
};

} // namespace quillet
