#pragma once

#include <QString>

#include <map>
#include <optional>
#include <string>

namespace quillet::bench {

/// How many instructions the rows take, as scripts/instructions has counted and written them: lines
/// of a number and a name.
class Instructions
{
public:
    /// Whether the file could be read.
    [[nodiscard]] bool read(const QString &file);
    /// None for a row that is not in the file.
    [[nodiscard]] std::optional<double> of(const std::string &row) const;

private:
    std::map<std::string, double> m_counts;
};

} // namespace quillet::bench
