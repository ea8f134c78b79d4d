#pragma once

#include <QString>

namespace quillet {

/// A station's name as it is drawn and searched for: without the control codes that broadcasters
/// put into it (ETSI EN 300 468, Annex A: the selector of a character table at the start, emphasis
/// on and off) and without any other control character. A line break is a blank. Names without any
/// are returned as they are.
[[nodiscard]] QString cleanName(const QString &name);

/// What a table or a line of text surely keeps of a name: the clean one, without blanks around it
/// and with one between its words.
[[nodiscard]] QString plainName(const QString &name);

} // namespace quillet
