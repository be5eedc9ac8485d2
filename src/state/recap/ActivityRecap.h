#pragma once

#include "model/ActivityPeriod.h"
#include "state/recap/ActivitySummary.h"

/// Whether the lines of a report name the assignees.
enum class ReportNames { Hidden, Shown };

/// One line of a report: a list item with the issue's key and title, the detail if there is one, and the first name of
/// the assignee where names are shown.
QString reportLine(const Issue &issue, const std::optional<QString> &detail, ReportNames names);

/// From where to where an issue went in the period, such as "À faire → En revue", without the steps between; nothing
/// when its status did not change. An unknown start shows as "?".
std::optional<QString> movement(const Issue &issue, const StatusLookup &statuses);

/// The recap of a period as Markdown, ready to be pasted.
QString activityReport(const ActivitySummary &summary, const ActivityPeriod &period,
                       const StatusLookup &statuses, const QDateTime &now,
                       const UserCalendar &calendar);
