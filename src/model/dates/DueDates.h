#pragma once

#include "model/Issue.h"

/// The issue should have been done before `today`: its due date is over, and it is not closed.
bool isOverdue(const Issue &issue, const QDate &today);
