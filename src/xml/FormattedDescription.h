#pragma once

#include <QString>

namespace quillet {

class Array;
class Dictionary;

/// The indented, multi-line listing that logs and the info panel show: a header with the type word,
/// then one line an entry, indented by four blanks a level. A dictionary's keys are sorted without
/// regard to case.
/// Level 0 is the outermost.
[[nodiscard]] QString formattedDescription(const Dictionary &dictionary, int level = 0);
[[nodiscard]] QString formattedDescription(const Array &array, int level = 0);

/// The outermost level under its short name.
template<typename Container>
[[nodiscard]] QString fd(const Container &container)
{
    return formattedDescription(container);
}

} // namespace quillet
