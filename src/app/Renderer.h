#pragma once

/// Chooses how Qt Quick draws, before the first window: the software renderer where the machine has no graphics hardware,
/// where it is several times quicker than OpenGL emulated on the processor. A choice that the user made through Qt's own
/// variables stands.
void chooseRenderer();
