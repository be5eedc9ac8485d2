#include "screens/issues/Words.h"

#include "platform/Wording.h"

QString Words::localized(const QString &macText)
{
    return Wording::localized(macText);
}
