#pragma once

#include <QString>

namespace quillet {

/// Loads the program's texts into the application object: in the given language ("de", "pt_BR"), or
/// in the system's when it is empty. What a language lacks is shown in English.
void installTranslations(const QString &language = {});

} // namespace quillet
