#pragma once

#include <Qt>

/// Tells when Alt was pressed and released with nothing in between, which asks for the menu bar.
class AltTap
{
public:
    void keyPressed(Qt::Key key, Qt::KeyboardModifiers modifiers);
    /// True when this release ends a tap.
    bool keyReleased(Qt::Key key);
    /// Something else happened: a click, the loss of the focus.
    void interrupt() { m_isDown = false; }

private:
    bool m_isDown = false;
};
