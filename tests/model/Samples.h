#pragma once

#include "model/UserCalendar.h"

#include <QDateTime>

/// Records that several tests of the model need.
namespace Samples {

UserCalendar paris();
UserCalendar newYork();

/// A wall-clock time in Paris.
QDateTime parisTime(const QDate &day, const QTime &time = QTime(0, 0));

} // namespace Samples
