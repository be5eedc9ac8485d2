#include "platform/Wording.h"

QString Wording::localized(const QString &macText)
{
    return macText;
}
