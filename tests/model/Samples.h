#pragma once

#include "model/dates/UserCalendar.h"

#include <QDateTime>

/// Sample records that several tests of the model use.
namespace Samples {

UserCalendar paris();
UserCalendar newYork();

/// A wall-clock time in Paris.
QDateTime parisTime(const QDate &day, const QTime &time = QTime(0, 0));

} // namespace Samples
