#pragma once

#include "document/order/StationIndex.h"
#include "model/LGStation.h"

#include <QString>

#include <optional>

namespace quillet {

/// The stations of the list that match the text, in list order. A station without the field never
/// matches.
[[nodiscard]] StationList extractElemsWithServiceID(const QString &id, const StationList &list);
[[nodiscard]] StationList extractElemsWithTransportID(const QString &id, const StationList &list);
[[nodiscard]] StationList extractElemsWithOnID(const QString &id, const StationList &list);
/// Compares names as they are cached, without regard to case: a station whose name was never asked
/// for has the empty one.
[[nodiscard]] StationList extractElemsWithName(const QString &name, const StationList &list);

/// Stations waiting to be matched, each once, however often it stands in its list. Answers what
/// narrowing the stations left in it by the functions above would, without walking them.
class StationPool
{
public:
    using Match = StationIndex::Match;
    using Found = StationIndex::Found;

    explicit StationPool(StationList stations);

    [[nodiscard]] bool isEmpty() const { return m_left == 0; }
    [[nodiscard]] Match find(const QString &service);
    [[nodiscard]] Match find(const QString &service, const QString &transport);
    [[nodiscard]] Match find(const QString &service, const QString &transport,
                             const QString &network);
    [[nodiscard]] Match findName(const QString &name);

    /// Takes a found station out.
    [[nodiscard]] StationPtr take(std::size_t index);
    /// Takes out all that are left, in their order.
    [[nodiscard]] StationList takeAll();

private:
    StationIndex &index(std::optional<StationIndex> &made, const StationIndex::Key &key) const;

    StationList m_stations; ///< null where one was taken
    std::size_t m_left = 0;
    QString m_wanted; ///< a name without its case
    // Made when first needed.
    std::optional<StationIndex> m_byService;
    std::optional<StationIndex> m_byTransport; ///< service and transport stream
    std::optional<StationIndex> m_byNetwork;   ///< service, transport stream and network
    std::optional<StationIndex> m_byName;
};

} // namespace quillet
