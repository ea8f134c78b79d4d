#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace quillet::bench {

class Lists;
class Medians;

/// A process that is measured from its start to its window, or to its end when it has none.
struct Start
{
    std::string name; ///< of the row
    QString program;
    QStringList arguments;
};

/// The program without a list and with some, the tool, and what each is compared with.
[[nodiscard]] std::vector<Start> starts(const Lists &lists);

/// Starts all of them several times, in turn, so that a busy moment of the machine meets all alike,
/// and adds the process time of each start that succeeds.
void measure(const std::vector<Start> &starts, Medians &medians);

} // namespace quillet::bench
