#pragma once

#include "cli/ExitStatus.h"
#include "xml/Array.h"
#include "xml/Dictionary.h"
#include "xml/Value.h"

#include <QString>
#include <QStringList>

#include <optional>

/// What the reading commands tell as JSON: one object a line for each file, which begins with the
/// name and version of its shape, the file and the status it alone would end the tool with. Members
/// may be added; when one goes or means something else, the version counts up.
namespace quillet {

class Console;
class Invocation;

inline constexpr qint64 jsonVersion = 1;

/// The object of a file, to be filled.
[[nodiscard]] Dictionary jsonReport(const char *command, const QString &file,
                                    ExitStatus status = ExitStatus::Done);
void writeJson(const Dictionary &report, Console &console);

/// Of a file that nothing can be told of but why, where the call asks for JSON. Answers the status.
ExitStatus reportFailure(const QString &file, const QString &reason, ExitStatus status,
                         const Invocation &invocation, Console &console);

/// Null for none.
[[nodiscard]] Value jsonText(const std::optional<QString> &text);
[[nodiscard]] Value jsonTexts(const QStringList &texts);
[[nodiscard]] inline Value jsonNumber(std::size_t number)
{
    return Value(static_cast<qint64>(number));
}

} // namespace quillet
