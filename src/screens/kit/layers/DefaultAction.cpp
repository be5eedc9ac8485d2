#include "screens/kit/layers/DefaultAction.h"

bool DefaultAction::takes(const QKeyEvent &press)
{
    const bool isReturn = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    if (!isReturn || (press.modifiers() & ~Qt::KeypadModifier) != Qt::ControlModifier)
        return false;
    if (m_isEnabled)
        Q_EMIT triggered();
    return true;
}
