#pragma once

/// The families that are compiled into the program, so that its look does not depend on the user's fonts.
namespace Fonts {

/// Registers them (Inter and JetBrains Mono under names of our own, so that no font of the system takes their place),
/// makes Inter at 13 pixels the application's font and chooses how Qt Quick draws text: by the font engine at scale 1,
/// where it is crispest, by distance fields above. Call it once, after the application object and before the first
/// window; later calls do nothing. False if a font of the program could not be read.
bool load();

} // namespace Fonts
