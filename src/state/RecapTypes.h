#pragma once

#include "state/recap/ActivityHeaderData.h"
#include "state/recap/ActivityNavigation.h"

#include <QtQml/qqml.h>

/// The QML names of the types of a recap.
namespace RecapTypes {

struct ActivityHeaderDataValue
{
    Q_GADGET
    QML_FOREIGN(ActivityHeaderData)
    QML_VALUE_TYPE(activityHeaderData)
};

struct StatPillValue
{
    Q_GADGET
    QML_FOREIGN(StatPill)
    QML_VALUE_TYPE(statPill)
};

} // namespace RecapTypes

namespace RecapEnums {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Recap)
QML_NAMED_ELEMENT(Recap)
} // namespace RecapEnums
