#pragma once

#include <Qt>

/// Detects a press and release of Alt with nothing in between, which shows the menu bar.
class AltTap
{
public:
    void keyPressed(Qt::Key key, Qt::KeyboardModifiers modifiers);
    /// True if this release completes the tap.
    bool keyReleased(Qt::Key key);
    /// Reports any other event, such as a click or the loss of the focus, which cancels the tap.
    void interrupt() { m_isDown = false; }

private:
    bool m_isDown = false;
};
