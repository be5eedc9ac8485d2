#include "desktop/StartupNotification.h"

void useStartupId(const QByteArray & /*id*/, quint32 /*time*/) {}
