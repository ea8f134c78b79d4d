#pragma once

#include "document/edit/ListStretch.h"
#include "model/LGStation.h"

#include <utility>
#include <vector>

namespace quillet {

/// How the stations of one stretch of a list came to stand elsewhere in it: enough to put them back
/// and to move them again. Small where blocks of stations stay together.
class OrderChange
{
public:
    OrderChange() = default; ///< none
    /// What makes the first list the second, which holds no others of the stations.
    [[nodiscard]] static OrderChange between(const StationList &before, const StationList &after);

    /// A change of that stretch, which is then described from its first place on: stations come
    /// from those old places in turn, which may lie elsewhere.
    explicit OrderChange(const ListStretch &before) : m_before(before) {}
    void take(std::size_t oldPlace, std::size_t count = 1);
    /// Names a station that stood there and stands nowhere any more.
    void lose(std::size_t oldPlace, StationPtr station);

    [[nodiscard]] bool isEmpty() const { return m_before.isEmpty() && m_count == 0; }
    /// The stretch once the change is made.
    [[nodiscard]] ListStretch after() const { return {m_before.first, m_before.first + m_count}; }
    [[nodiscard]] const ListStretch &before() const { return m_before; }
    void redo(StationList &list) const;
    void undo(StationList &list) const;
    /// Of the memory that it holds.
    [[nodiscard]] std::size_t byteCount() const;

private:
    /// Neighbours that stay neighbours.
    struct Block
    {
        quint32 first;
        quint32 count;
    };

    ListStretch m_before;
    std::size_t m_count = 0;     ///< of stations in the stretch afterwards
    std::vector<Block> m_blocks; ///< the old places, in the new order
    std::vector<std::pair<std::size_t, StationPtr>> m_lost;
};

} // namespace quillet
