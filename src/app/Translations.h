#pragma once

#include <QString>

namespace quillet {

/// Loads the program's texts into the application object: in the given language ("de", "pt_BR"), or
/// in the system's when it is empty. What a language lacks is shown in English. Takes the place of
/// the texts loaded before; what is on show keeps the ones it was made with.
void installTranslations(const QString &language = {});

} // namespace quillet
