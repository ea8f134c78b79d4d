#pragma once

#include "document/repair/Mending.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// What was mended in the text of a repaired copy, until that is saved.
struct Repair
{
    Mending mending;
    QString fileName; ///< of the damaged file
};

/// What belongs to a list as a document beside its edits, as it is kept in case the program ends
/// too early.
struct DocumentState
{
    bool usesTV = true;
    int source = 0;             ///< 0 to 3
    bool savesRepaired = false; ///< it was saved in the repaired form once
    std::optional<Repair> repair{};

    /// The state and the edits in one.
    [[nodiscard]] QByteArray encodedWith(const QByteArray &edits) const;
    /// Takes them apart; none when they are no such bytes.
    [[nodiscard]] static std::optional<DocumentState> decoded(const QByteArray &bytes,
                                                              QByteArray &edits);
};

} // namespace quillet
