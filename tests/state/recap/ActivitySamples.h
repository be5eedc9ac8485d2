#pragma once

#include "model/Issue.h"
#include "model/dates/UserCalendar.h"

/// Made-up issues and their histories, for the tests of recaps.
namespace Sample {

/// French, in Paris.
UserCalendar paris();
/// 29 October 2026, 14:32 in Paris, a Thursday.
QDateTime now();
/// An instant of October 2026, in Paris.
QDateTime october(int day, int hour = 12, int minute = 0);

JiraUser user(const QString &id, const QString &name);
ActivityEvent statusEvent(const std::optional<QString> &from, const QString &to, int day = 27,
                          const std::optional<JiraUser> &author = {});
ActivityEvent assigneeEvent(const std::optional<QString> &to, int day = 27,
                            const std::optional<JiraUser> &author = {});
ActivityEvent createdEvent(int day = 26, const std::optional<JiraUser> &author = {});

/// An issue of the project that its key names, titled "Titre" and the key's number, with this history.
Issue issue(const QString &key, const QList<ActivityEvent> &activity = {});

} // namespace Sample
