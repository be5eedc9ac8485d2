#pragma once

#include "model/Issue.h"
#include "model/dates/UserCalendar.h"

/// Sample issues with their histories, for the tests of recaps.
namespace Sample {

/// The French locale and the time zone of Paris.
UserCalendar paris();
/// 29 October 2026, 14:32 in Paris, a Thursday.
QDateTime now();
/// An instant in October 2026, in Paris time.
QDateTime october(int day, int hour = 12, int minute = 0);

JiraUser user(const QString &id, const QString &name);
ActivityEvent statusEvent(const std::optional<QString> &from, const QString &to, int day = 27,
                          const std::optional<JiraUser> &author = {});
ActivityEvent assigneeEvent(const std::optional<QString> &to, int day = 27,
                            const std::optional<JiraUser> &author = {});
ActivityEvent createdEvent(int day = 26, const std::optional<JiraUser> &author = {});

/// An issue with this history. Its project is that of the key, and its title is "Titre" and the number in the key.
Issue issue(const QString &key, const QList<ActivityEvent> &activity = {});

} // namespace Sample
