#include "state/recap/ActivityNavigation.h"

#include <algorithm>

namespace {

ActivityPeriod at(ActivityPeriod period, int offset)
{
    period.offset = std::min(offset, 0);
    return period;
}

} // namespace

ActivityPeriod previousPeriod(ActivityPeriod period)
{
    return at(period, period.offset - 1);
}

ActivityPeriod nextPeriod(ActivityPeriod period)
{
    return at(period, period.offset + 1);
}

ActivityPeriod withRange(ActivityPeriod period, ActivityRange range)
{
    period.range = range;
    return at(period, period.offset);
}

ActivityPeriod withPeople(ActivityPeriod period, Recap::People people)
{
    period.teamWide = people == Recap::People::Team;
    return at(period, period.offset);
}

bool hasNextPeriod(const ActivityPeriod &period)
{
    return period.offset < 0;
}
