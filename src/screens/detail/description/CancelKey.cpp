#include "screens/detail/description/CancelKey.h"

bool CancelKey::takes(const QKeyEvent &press)
{
    if (press.key() != Qt::Key_Escape || press.modifiers() != Qt::NoModifier)
        return false;
    Q_EMIT triggered();
    return true;
}
