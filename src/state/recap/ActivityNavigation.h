#pragma once

#include "model/ActivityPeriod.h"

/// The enumerations of recaps.
namespace Recap {
Q_NAMESPACE

/// Whose activity a recap tells.
enum class People { Me, Team };
Q_ENUM_NS(People)

} // namespace Recap

/// Where the controls of a recap lead. The future is never reached.

/// The period before.
ActivityPeriod previousPeriod(ActivityPeriod period);
/// The period after; the current one is the last.
ActivityPeriod nextPeriod(ActivityPeriod period);
/// As many months back as it was weeks, and the reverse.
ActivityPeriod withRange(ActivityPeriod period, ActivityRange range);

ActivityPeriod withPeople(ActivityPeriod period, Recap::People people);

/// Whether there is a period after this one that is not in the future.
bool hasNextPeriod(const ActivityPeriod &period);
