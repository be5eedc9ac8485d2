#pragma once

/// Chooses the renderer of Qt Quick; must be called before the first window is created. Chooses the software renderer
/// if the machine has no graphics hardware, because it is then several times faster than OpenGL emulated on the
/// processor. A renderer that the user has set through Qt's environment variables is kept.
void chooseRenderer();
