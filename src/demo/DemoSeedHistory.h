#pragma once

#include "model/ActivityEvent.h"
#include "model/Issue.h"

#include <QList>

namespace DemoSeed {

/// A change log that explains how the issue came to its present status: its creation by the reporter, then status
/// changes by the assignee (or the reporter, when nobody is assigned) up to its last change.
QList<ActivityEvent> history(const Issue &issue);

} // namespace DemoSeed
