#include "state/recap/ActivitySamples.h"

using namespace Qt::StringLiterals;

namespace Sample {

UserCalendar paris()
{
    return {QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")};
}

QDateTime now()
{
    return october(29, 14, 32);
}

QDateTime october(int day, int hour, int minute)
{
    return QDateTime({2026, 10, day}, {hour, minute}, QTimeZone("Europe/Paris")).toUTC();
}

JiraUser user(const QString &id, const QString &name)
{
    return {.id = id, .name = name};
}

ActivityEvent statusEvent(const std::optional<QString> &from, const QString &to, int day,
                          const std::optional<JiraUser> &author)
{
    return {october(day), author, ActivityEvent::StatusChanged{from, to}};
}

ActivityEvent assigneeEvent(const std::optional<QString> &to, int day,
                            const std::optional<JiraUser> &author)
{
    return {october(day), author, ActivityEvent::AssigneeChanged{to}};
}

ActivityEvent createdEvent(int day, const std::optional<JiraUser> &author)
{
    return {october(day), author, ActivityEvent::Created{}};
}

Issue issue(const QString &key, const QList<ActivityEvent> &activity)
{
    Issue result;
    result.id = "id-"_L1 + key;
    result.key = key;
    result.projectKey = key.section(u'-', 0, 0);
    result.summary = "Titre "_L1 + key.section(u'-', 1);
    result.status = IssueStatus::guessed(u"En cours"_s);
    result.activity = activity;
    return result;
}

} // namespace Sample
