#pragma once

#include "app/help/HelpBrowser.h"

#include <memory>
#include <optional>

namespace quillet {

/// The folder of the program's resources in the language of its texts, or else in English; none
/// when it was not installed with the program.
[[nodiscard]] std::optional<QString> resourceFolder();

/// The module with the help window; none when a package left it out.
[[nodiscard]] std::optional<QString> helpModule();

/// Loads the module with the help window and makes the window; null when the module is not there or
/// cannot be loaded. The services must outlive the window.
[[nodiscard]] std::unique_ptr<HelpBrowser> loadHelpBrowser(SystemServices &services);

} // namespace quillet
