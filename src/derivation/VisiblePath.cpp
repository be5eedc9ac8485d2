#include "derivation/VisiblePath.h"

VisiblePath::VisiblePath(const QStringList &keys)
    : m_access{keys.size(), [keys](qsizetype place) { return keys[place]; },
               [keys](const QString &key) { return keys.indexOf(key); }}
{
}
