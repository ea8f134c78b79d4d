#pragma once

#include "document/list/StationLists.h"

#include <vector>

namespace quillet {

/// Lets the names of stations be read without being kept: reference lists go by the names that were
/// kept, which are those that somebody has seen. Of stations whose names were not read when this is
/// made, they are not afterwards either. The stations must outlive it.
class UnkeptNames
{
public:
    explicit UnkeptNames(const StationList &stations) { add(stations); }
    explicit UnkeptNames(const StationLists &lists)
    {
        for (const auto &those : {lists.tvStations(), lists.radioStations()}) {
            for (const StationListPtr &list : those) {
                if (list)
                    add(*list);
            }
        }
    }
    ~UnkeptNames()
    {
        for (LGStation *station : m_unread)
            station->setName({});
    }
    Q_DISABLE_COPY_MOVE(UnkeptNames)

private:
    void add(const StationList &stations)
    {
        for (const StationPtr &station : stations) {
            if (station->name().isEmpty())
                m_unread.push_back(station.get());
        }
    }

    std::vector<LGStation *> m_unread;
};

} // namespace quillet
