#pragma once

namespace quillet {

/// Loads the program's texts into the application object.
void installTranslations();

} // namespace quillet
