#include "screens/issues/menus/RowOptions.h"

void RowOptions::aim(int kind, const QString &key)
{
    setKind(PickerKind(kind));
    setKeys(store() ? store()->contextKeys(key) : QStringList());
}
