#include "shell/menubar/AltTap.h"

#include <utility>

void AltTap::keyPressed(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // On some systems the modifiers of a key press already include the pressed key.
    const bool isAlone = !(modifiers & ~Qt::KeyboardModifiers(Qt::AltModifier));
    m_isDown = key == Qt::Key_Alt && isAlone;
}

bool AltTap::keyReleased(Qt::Key key)
{
    return key == Qt::Key_Alt && std::exchange(m_isDown, false);
}
