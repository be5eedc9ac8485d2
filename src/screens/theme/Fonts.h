#pragma once

/// The font families that are compiled into the program, so that its appearance does not depend on the user's fonts.
namespace Fonts {

/// Registers the families (Inter and JetBrains Mono, renamed so that no system font replaces them), makes Inter at 13
/// pixels the application's font, and chooses how Qt Quick draws text: with the font engine at scale 1, where the
/// result is sharpest, and with distance fields at higher scales. Call it once, after the application object and before
/// the first window is created. Later calls do nothing. False if a font of the program could not be read.
bool load();

} // namespace Fonts
