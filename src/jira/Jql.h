#pragma once

#include "model/Enums.h"
#include "model/dates/UserCalendar.h"

#include <QString>

/// The queries of all lists, in Jira's query language (JQL).
namespace Jql {

/// The user's assigned issues that are open or were changed within 14 days; the latest change first.
QString myIssues();
/// The issues that the user viewed; the latest view first.
QString recent();
/// The issues that the user created; the newest first.
QString reported();
/// The issues in a view of a project. The key is inserted without escaping.
QString project(const QString &key, ProjectView view);
/// The same view without sprints, for a site or project that has none. Empty for `All`, whose query uses no sprints.
QString projectWithoutSprints(const QString &key, ProjectView view);
/// The issues that the user changed in the period, those that changed while assigned to the user, and those that the
/// user created in it.
QString personalRecap(const DateInterval &period, const QTimeZone &zone);
/// The issues that were changed or created in the period.
QString teamRecap(const DateInterval &period, const QTimeZone &zone);
/// The issues that contain these words; the last one may be the beginning of a word. The latest change first.
QString textSearch(const QString &words);

} // namespace Jql
