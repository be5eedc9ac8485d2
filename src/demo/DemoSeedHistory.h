#pragma once

#include "model/ActivityEvent.h"
#include "model/Issue.h"

#include <QList>

namespace DemoSeed {

/// A change log that is consistent with the issue's current status: the creation by the reporter, then status changes
/// by the assignee (or by the reporter if nobody is assigned) up to the date of the last change.
QList<ActivityEvent> history(const Issue &issue);

} // namespace DemoSeed
