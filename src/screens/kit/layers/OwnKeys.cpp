#include "screens/kit/layers/OwnKeys.h"

#include <memory>

OwnKeys *OwnKeys::qmlAttachedProperties(QObject *item)
{
    // The item owns the attached object.
    return std::make_unique<OwnKeys>(item).release();
}

bool OwnKeys::walksRows(const QObject &item)
{
    const auto *own = qobject_cast<OwnKeys *>(
        qmlAttachedPropertiesObject<OwnKeys>(const_cast<QObject *>(&item), false));
    return own && own->m_walksRows;
}
