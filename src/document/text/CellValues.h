#pragma once

#include <QStringView>

#include <optional>

/// What the cells of spreadsheets mean.
namespace quillet {

/// A whole number from 0 on, as the spreadsheets of all countries write it: "5", "5,00", "1.234",
/// "1 234". None for anything else.
[[nodiscard]] std::optional<qint64> wholeNumberOf(QStringView cell);

/// Whether a mark is set: digits, signs, and the words of the program's languages. None for
/// anything else.
[[nodiscard]] std::optional<bool> markOf(QStringView cell);

/// A frequency as the table shows it ("514.5 MHz"), or as a file has it, in the unit of files: MHz
/// for satellites, kHz for the others. None for anything else.
[[nodiscard]] std::optional<qint64> frequencyOf(QStringView cell);

} // namespace quillet
