#include "platform/Compositor.h"

bool composesWindows(QScreen *)
{
    return true;
}
