#pragma once

#include "document/review/Rehearsal.h"
#include "framework/Prompts.h"

#include <optional>
#include <vector>

namespace quillet {

/// The question that is asked before a save that loses something.
struct SaveReview
{
    enum class Answer { SaveRepaired, SaveAnyway, Cancel };
    enum class Kind {
        List,
        JSONList, ///< also offers to have all of its kind repaired from then on
        Export,   ///< which has one form only
    };

    Alert alert;
    std::vector<Answer> answers; ///< of the alert's buttons
};

/// Says in plain words what the plain writing loses and offers the ways there are, the best one
/// first. `repaired` is what a repaired writing would lose; none when there is no better one.
[[nodiscard]] SaveReview reviewOfSave(const QString &fileName, const Rehearsal &plain,
                                      const std::optional<Rehearsal> &repaired,
                                      SaveReview::Kind kind);

} // namespace quillet
