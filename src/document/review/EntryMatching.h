#pragma once

#include "document/review/EntryKeys.h"
#include "xml/Value.h"

#include <vector>

namespace quillet {

/// How the entries of stations that are expected are found again among others.
struct EntryMatches
{
    std::vector<std::size_t> missing; ///< indexes of those expected
    std::vector<std::size_t> changed; ///< the same: there, but not as expected
    std::vector<std::size_t> doubled; ///< the same: there once more, perhaps not as expected
    std::vector<Dictionary> surplus;  ///< there, but like none of those expected
    /// Of each one expected the index of the one that is there; empty when they are in order. Means
    /// nothing unless all are.
    std::vector<std::size_t> places;

    [[nodiscard]] bool areAll() const
    {
        return missing.empty() && changed.empty() && doubled.empty() && surplus.empty();
    }
};

/// Compares entries as the file's texts: a text is the same without the blanks around it, and an
/// empty one is as good as none. Fast when both lists are equal.
[[nodiscard]] EntryMatches matchEntries(const std::vector<Dictionary> &expected,
                                        const std::vector<Dictionary> &actual,
                                        const EntryKeys &keys);

} // namespace quillet
