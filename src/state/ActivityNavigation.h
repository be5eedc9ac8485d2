#pragma once

#include "model/ActivityPeriod.h"

/// Where the controls of a recap lead. The future is never reached.

/// The period before.
ActivityPeriod previousPeriod(ActivityPeriod period);
/// The period after; the current one is the last.
ActivityPeriod nextPeriod(ActivityPeriod period);
/// As many months back as it was weeks, and the reverse.
ActivityPeriod withRange(ActivityPeriod period, ActivityRange range);

/// Whose activity a recap tells.
enum class ActivityPeople { Me, Team };

ActivityPeriod withPeople(ActivityPeriod period, ActivityPeople people);

/// Whether there is a period after this one that is not in the future.
bool hasNextPeriod(const ActivityPeriod &period);
