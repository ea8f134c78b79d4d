#pragma once

#include "document/compare/MergeConflict.h"
#include "document/compare/StationTriples.h"
#include "document/compare/TakeOver.h"

#include <vector>

namespace quillet {

/// What theirs did to the place and the number of a station.
struct PlaceChange
{
    bool isMoved = false;
    bool isConflict = false;       ///< ours has moved it elsewhere
    bool isGiven = false;          ///< it has a number that only a person gives
    bool isNumberConflict = false; ///< so it has in ours, another one
    StationPtr rival = {};         ///< another station of ours that has that number
};

/// Merges a station's fields and finds what stands against that.
class StationMerge
{
public:
    StationMerge(bool isTV, int source) : m_isTV(isTV), m_source(source) {}

    void add(const StationTriple &triple, const PlaceChange &place);

    /// What the stations of ours are given.
    [[nodiscard]] const std::vector<TakeOverPlan::Fields> &fields() const { return m_fields; }
    [[nodiscard]] const std::vector<MergeConflict> &conflicts() const { return m_conflicts; }

private:
    using Kind = MergeConflict::Kind;

    void addCommon(const StationTriple &triple, const PlaceChange &place);
    void addAdded(const StationTriple &triple);
    void report(Kind kind, const StationTriple &triple, const StationPtr &rival = {});

    bool m_isTV;
    int m_source;
    std::vector<TakeOverPlan::Fields> m_fields;
    std::vector<MergeConflict> m_conflicts;
};

} // namespace quillet
