#pragma once

#include <QString>

#include <limits>

namespace quillet {

class Array;
class Dictionary;

/// The indented, multi-line listing that logs and the info panel show: a header with the type word,
/// then one line an entry, indented by four blanks a level. A dictionary's keys are sorted without
/// regard to case.
/// Level 0 is the outermost. A text longer than `enough` may end early: what is nested deeply takes
/// far more room here than in a file.
[[nodiscard]] QString formattedDescription(const Dictionary &dictionary, int level = 0,
                                           qsizetype enough = std::numeric_limits<int>::max());
[[nodiscard]] QString formattedDescription(const Array &array, int level = 0,
                                           qsizetype enough = std::numeric_limits<int>::max());

/// The outermost level under its short name.
template<typename Container>
[[nodiscard]] QString fd(const Container &container)
{
    return formattedDescription(container);
}

} // namespace quillet
