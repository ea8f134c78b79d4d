#pragma once

#include "cli/CommandTable.h"
#include "cli/OptionTexts.h"

#include <QString>
#include <QStringList>

/// What the completions of all shells say of the tables of commands and options.
namespace quillet {

/// What an option takes.
enum class ValueKind { None, Text, File, Choice, List };

[[nodiscard]] ValueKind valueKind(const OptionFacts &facts);
/// "none", "text", "file", "choice" or "list".
[[nodiscard]] QString nameOf(ValueKind kind);

/// The beginning of the description, for a row of a menu.
[[nodiscard]] QString hintOf(const OptionFacts &facts);
[[nodiscard]] std::vector<OptionFacts> factsOf(OptionSet options);

/// How files are called that the operands usually are, each as in "csv tsv"; of any number of them
/// the last one stands for those that follow.
[[nodiscard]] QStringList suffixesOf(const Command &command);

[[nodiscard]] QString bashCompletions();
[[nodiscard]] QString zshCompletions();
[[nodiscard]] QString fishCompletions();

} // namespace quillet
