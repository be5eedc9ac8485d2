#pragma once

#include "model/Enums.h"
#include "model/UserCalendar.h"

#include <QString>

/// The queries behind every list, in Jira's query language.
namespace Jql {

/// What is assigned to the user: open, or changed within 14 days; last change first.
QString myIssues();
/// What the user viewed; last view first.
QString recent();
/// What the user created; newest first.
QString reported();
/// The issues of a project in one of its views. The key is put in as it stands.
QString project(const QString &key, ProjectView view);
/// The view without sprints, for a site or project that has none. Empty for `All`, which needs none.
QString projectWithoutSprints(const QString &key, ProjectView view);
/// What the user moved in the period, what moved while it was theirs, and what they created in it.
QString personalRecap(const DateInterval &period, const QTimeZone &zone);
/// What moved or was created in the period.
QString teamRecap(const DateInterval &period, const QTimeZone &zone);
/// Issues with these words, the last of which may be only the beginning of one; last change first.
QString textSearch(const QString &words);

} // namespace Jql
