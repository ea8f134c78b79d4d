#pragma once

#include "document/list/StationLists.h"
#include "document/review/Rehearsal.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace quillet {

struct ChannelList;

/// The forms that a list may be saved in, and what each would lose.
struct SaveForms
{
    QByteArray plain;
    Rehearsal ofPlain;
    QByteArray repaired;
    /// None where the repaired form was not made, or keeps no more than the plain one.
    std::optional<Rehearsal> ofRepaired;
};

/// Writes the list in the plain form and rehearses that; where it loses something, the same in the
/// repaired form, if that may be written. `isStopped`, if any, is asked between these steps: once
/// it says so the rest is left out, and the forms mean nothing. Takes up to twice as long as
/// reading the file for each form.
[[nodiscard]] SaveForms saveForms(const ChannelList &list, const StationListPtr &shown,
                                  bool mayRepair, const std::function<bool()> &isStopped = {});

} // namespace quillet
