#include "state/recap/ActivityBadge.h"

#include "model/dates/DateLabels.h"
#include "state/recap/ActivityTexts.h"

using namespace Qt::StringLiterals;

namespace {

struct Face
{
    ActivityBadge::Icon icon;
    QString label;
};

ActivityBadge::Icon personIcon(const std::optional<QString> &name,
                               const QHash<QString, JiraUser> &usersByName)
{
    const auto user = name ? usersByName.constFind(*name) : usersByName.cend();
    if (user == usersByName.cend())
        return ActivityBadge::Symbol{u"person.crop.circle"_s};
    return *user;
}

Face face(const ActivityEvent &event, const QString &projectKey, const StatusLookup &statuses,
          const QHash<QString, JiraUser> &usersByName)
{
    if (const auto *change = event.statusChange()) {
        const IssueStatus status = statuses.named(change->to, projectKey);
        return {status, status.displayName()};
    }
    if (const auto *change = event.assigneeChange())
        return {personIcon(change->to, usersByName), {}};
    return {ActivityBadge::Symbol{u"plus.circle"_s}, {}};
}

} // namespace

std::optional<ActivityBadge> activityBadge(const Issue &issue, const StatusLookup &statuses,
                                           const QHash<QString, JiraUser> &usersByName,
                                           const UserCalendar &calendar)
{
    const auto event = issue.lastActivity();
    if (!event)
        return std::nullopt;
    Face shown = face(*event, issue.projectKey, statuses, usersByName);
    QString tooltip = eventDescription(*event, issue.projectKey, statuses, calendar);
    if (const QString others = otherEventsText(issue.activity.size()); !others.isEmpty())
        tooltip += u'\n' + others;
    return ActivityBadge{std::move(shown.icon), std::move(shown.label),
                         dayAndShortMonth(calendar.day(event->date), calendar.locale),
                         std::move(tooltip)};
}

QHash<QString, JiraUser> usersByName(const QList<JiraUser> &users)
{
    QHash<QString, JiraUser> result;
    for (const JiraUser &user : users) {
        if (!result.contains(user.name))
            result.insert(user.name, user);
    }
    return result;
}
