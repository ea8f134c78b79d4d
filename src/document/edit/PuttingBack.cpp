#include "document/edit/PuttingBack.h"

namespace quillet {

namespace {

/// The order of the fields counts as well: in it they are written.
bool areSame(const Dictionary &a, const Dictionary &b)
{
    const Dictionary::Keys keysOfA = a.keys(), keysOfB = b.keys();
    return a == b &&
           (keysOfA == keysOfB || (keysOfA && keysOfB && keysOfA->hasSameOrder(*keysOfB)));
}

} // namespace

StationList putBack(StationList &stations, const std::vector<StationState> &states,
                    EditRecord &record)
{
    StationList ordered, changed;
    ordered.reserve(states.size());
    for (const auto &[station, state] : states)
        ordered.push_back(station);
    record.reorder(OrderChange::between(stations, ordered));
    stations = std::move(ordered);
    for (const auto &[station, state] : states) {
        if (areSame(station->entry(), state->entry()))
            continue;
        record.replaceContent(station, state);
        changed.push_back(station);
    }
    return changed;
}

} // namespace quillet
