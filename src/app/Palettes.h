#pragma once

namespace quillet {

/// Gives the application a dark palette or a light one, whatever the desktop's colours are.
void useDarkPalette();
void useLightPalette();

/// Gives what is disabled, framed or a hint colours that are seen, where the desktop's have a black
/// ground: Qt reckons those from the ground's, and nothing is darker than that.
void mendPalette();

} // namespace quillet
