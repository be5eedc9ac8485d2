#pragma once

#include "model/ActivityPeriod.h"

/// The enumerations of recaps.
namespace Recap {
Q_NAMESPACE

/// Whose activity a recap shows.
enum class People { Me, Team };
Q_ENUM_NS(People)

} // namespace Recap

/// The periods that the controls of a recap select. They are never in the future.

/// The previous period.
ActivityPeriod previousPeriod(ActivityPeriod period);
/// The next period; for the current period, the current period itself.
ActivityPeriod nextPeriod(ActivityPeriod period);
/// The period with another range and the same offset: three weeks ago becomes three months ago, and the reverse.
ActivityPeriod withRange(ActivityPeriod period, ActivityRange range);

ActivityPeriod withPeople(ActivityPeriod period, Recap::People people);

/// Whether there is a next period that is not in the future.
bool hasNextPeriod(const ActivityPeriod &period);
