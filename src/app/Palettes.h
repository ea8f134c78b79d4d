#pragma once

namespace quillet {

/// Gives the application a dark palette or a light one, whatever the desktop's colours are.
void useDarkPalette();
void useLightPalette();

} // namespace quillet
