#include "shell/AltTap.h"

#include <utility>

void AltTap::keyPressed(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // Some systems count the key that goes down among the modifiers already.
    const bool isAlone = !(modifiers & ~Qt::KeyboardModifiers(Qt::AltModifier));
    m_isDown = key == Qt::Key_Alt && isAlone;
}

bool AltTap::keyReleased(Qt::Key key)
{
    return key == Qt::Key_Alt && std::exchange(m_isDown, false);
}
