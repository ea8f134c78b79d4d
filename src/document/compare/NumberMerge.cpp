#include "document/compare/NumberMerge.h"

#include <QSet>

#include <algorithm>
#include <optional>

namespace quillet {

namespace {

/// Raises every number that is not above its predecessor, but for those that may be shared.
std::vector<qint64> raised(std::vector<qint64> numbers, const QSet<qint64> &shared)
{
    qint64 last = 0;
    for (qint64 &number : numbers) {
        number = std::max(number, last);
        if (number == last && !shared.contains(number))
            ++number;
        last = number;
    }
    return numbers;
}

/// The numbers for the stations that were given none, ascending: those that either side has in use,
/// but for those that either has freed. None if these are not as many.
std::optional<std::vector<qint64>> numbersInUse(const std::vector<MergedNumber> &each)
{
    QSet<qint64> base, ours, theirs;
    qsizetype count = 0;
    for (const MergedNumber &number : each) {
        if (number.isGiven)
            continue;
        ++count;
        base.insert(number.base);
        ours.insert(number.ours);
        theirs.insert(number.theirs);
    }
    const QSet<qint64> inUse = (ours & theirs) + (ours - base) + (theirs - base);
    if (inUse.size() != count)
        return {};
    std::vector<qint64> numbers(inUse.begin(), inUse.end());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// Counts on from what was given.
std::vector<qint64> counted(const std::vector<MergedNumber> &each)
{
    std::vector<qint64> numbers;
    numbers.reserve(each.size());
    qint64 last = 0;
    for (const MergedNumber &number : each) {
        last = !number.isGiven ? last + 1 : std::max(last + 1, number.wanted);
        numbers.push_back(last);
    }
    return numbers;
}

/// Deals numbers out to the stations that were given none.
std::vector<qint64> dealtOut(const std::vector<MergedNumber> &each, std::vector<qint64> wanted,
                             bool mayShare)
{
    std::optional<std::vector<qint64>> numbers = mayShare ? std::nullopt : numbersInUse(each);
    if (!numbers) {
        numbers.emplace();
        for (const MergedNumber &number : each) {
            if (!number.isGiven)
                numbers->push_back(number.wanted);
        }
        std::sort(numbers->begin(), numbers->end());
    }
    std::size_t next = 0;
    for (std::size_t i = 0; i < each.size(); ++i) {
        if (!each[i].isGiven)
            wanted[i] = (*numbers)[next++];
    }
    return wanted;
}

} // namespace

std::vector<qint64> mergedNumbers(const std::vector<MergedNumber> &each, Numbering numbering,
                                  const QSet<qint64> &shared)
{
    if (numbering == Numbering::Counted)
        return counted(each);
    std::vector<qint64> wanted;
    wanted.reserve(each.size());
    for (const MergedNumber &number : each)
        wanted.push_back(number.wanted);
    if (numbering == Numbering::Free || raised(wanted, shared) == wanted)
        return wanted;
    return raised(dealtOut(each, wanted, numbering == Numbering::Shared), shared);
}

} // namespace quillet
