#include "document/compare/StationMerge.h"

#include "document/compare/StationContent.h"
#include "document/compare/StationIdentity.h"

#include <utility>

namespace quillet {

namespace {

MergeConflict::Side sideOf(const StationPtr &station)
{
    if (!station)
        return {};
    return {station, toldName(*station), station->progNum()};
}

/// Whether a record has other fields than another one, besides those that editing changes. Records
/// of different variants cannot be told apart by that.
bool haveOtherFields(const LGStation &a, const LGStation &b)
{
    return isOfLegacyFormat(a) == isOfLegacyFormat(b) && !haveSameUnedited(a, b);
}

/// Whether theirs changed the station, be it only by hand: a number that others pushed is none.
bool isChanged(const StationTriple &triple, const PlaceChange &place)
{
    const LGStation &base = *triple.base, &theirs = *triple.theirs;
    return place.isMoved || place.isGiven || toldName(base) != toldName(theirs) ||
           base.isSkipped() != theirs.isSkipped() || base.isBlocked() != theirs.isBlocked() ||
           haveOtherFields(base, theirs);
}

} // namespace

void StationMerge::report(Kind kind, const StationTriple &triple, const StationPtr &rival)
{
    m_conflicts.push_back({kind, m_isTV, m_source, sideOf(triple.base), sideOf(triple.ours),
                           sideOf(triple.theirs), sideOf(rival)});
}

void StationMerge::add(const StationTriple &triple, const PlaceChange &place)
{
    if (!triple.base) {
        addAdded(triple);
    } else if (!triple.theirs) {
        if (triple.ours)
            report(Kind::RemovedThere, triple);
    } else if (triple.isCommon()) {
        addCommon(triple, place);
    } else if (!isChanged(triple, place) && !triple.isTheirsElsewhere) {
        return;
    } else if (!triple.ours) {
        report(Kind::RemovedHere, triple);
    } else if (!haveSameContent(*triple.ours, *triple.theirs)) {
        report(triple.isElsewhere() ? Kind::Elsewhere : Kind::Unsure, triple);
    }
}

void StationMerge::addAdded(const StationTriple &triple)
{
    if (!triple.theirs)
        return;
    if (!triple.ours) {
        report(Kind::OnlyTheirs, triple);
        return;
    }
    const LGStation &ours = *triple.ours, &theirs = *triple.theirs;
    if (ours.progNum() != theirs.progNum())
        report(Kind::Number, triple);
    if (toldName(ours) != toldName(theirs))
        report(Kind::Name, triple);
    if (ours.isSkipped() != theirs.isSkipped())
        report(Kind::Skipped, triple);
    if (ours.isBlocked() != theirs.isBlocked())
        report(Kind::Locked, triple);
    if (haveOtherFields(ours, theirs))
        report(Kind::Fields, triple);
}

void StationMerge::addCommon(const StationTriple &triple, const PlaceChange &place)
{
    const LGStation &base = *triple.base, &ours = *triple.ours, &theirs = *triple.theirs;
    if (place.isConflict)
        report(Kind::Place, triple);
    else if (place.isNumberConflict)
        report(Kind::Number, triple);
    else if (place.rival)
        report(Kind::NumberTaken, triple, place.rival);

    TakeOverPlan::Fields taken{triple.ours, {}, {}, {}};
    const QString name = toldName(theirs), ownName = toldName(ours), baseName = toldName(base);
    if (name != baseName && name != ownName) {
        if (ownName == baseName && !name.isEmpty() && mayRename(m_source))
            taken.name = name;
        else
            report(Kind::Name, triple);
    }
    // What has but two states cannot be changed to different ones.
    if (theirs.isSkipped() != base.isSkipped() && theirs.isSkipped() != ours.isSkipped())
        taken.skipped = theirs.isSkipped();
    if (theirs.isBlocked() != base.isBlocked() && theirs.isBlocked() != ours.isBlocked())
        taken.locked = theirs.isBlocked();
    if (haveOtherFields(base, theirs) && !haveSameUnedited(ours, theirs))
        report(Kind::Fields, triple);
    if (taken.name || taken.skipped || taken.locked)
        m_fields.push_back(std::move(taken));
}

} // namespace quillet
