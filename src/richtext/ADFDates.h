#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"

namespace ADF {

/// The day of a date node in the user's time zone, in the short form of the user's language ("31 oct. 2026"). The
/// attribute `timestamp` is a number of milliseconds since 1970, or a text with such a number. Empty if it is absent,
/// not a number, or beyond the years that a date can have.
QString dateText(const ADFNode &node, const UserCalendar &calendar);

} // namespace ADF
