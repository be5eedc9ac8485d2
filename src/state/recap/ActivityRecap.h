#pragma once

#include "model/ActivityPeriod.h"
#include "state/recap/ActivitySummary.h"

/// Whether the lines of a report name the assignees.
enum class ReportNames { Hidden, Shown };

/// One line of a report: a list item with the issue's key and title, the detail if there is one, and the first name of
/// the assignee where names are shown.
QString reportLine(const Issue &issue, const std::optional<QString> &detail, ReportNames names);

/// The first and the last status of an issue in the period, such as "À faire → En revue"; nothing if its status did not
/// change. An unknown first status is shown as "?".
std::optional<QString> movement(const Issue &issue, const StatusLookup &statuses);

/// The recap of a period as Markdown, ready to be pasted.
QString activityReport(const ActivitySummary &summary, const ActivityPeriod &period,
                       const StatusLookup &statuses, const QDateTime &now,
                       const UserCalendar &calendar);
