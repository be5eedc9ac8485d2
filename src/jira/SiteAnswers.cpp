#include "jira/SiteAnswers.h"

#include "model/LocalizedComparator.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// The maximum number of projects to fetch.
constexpr qsizetype MaximumProjects = 500;

QString accountType(const UserDTO &user)
{
    return user.accountType.value_or(u"atlassian"_s);
}

bool isActive(const UserDTO &user)
{
    return user.active.value_or(true);
}

QList<JiraUser> sortedByName(const QList<JiraUser> &users, const QLocale &locale)
{
    const LocalizedComparator comparator(locale);
    std::vector<std::pair<LocalizedKey, qsizetype>> order;
    order.reserve(size_t(users.size()));
    for (qsizetype i = 0; i < users.size(); ++i)
        order.emplace_back(comparator.key(users[i].name), i);
    std::ranges::sort(order, [](const auto &a, const auto &b) {
        const int names = a.first.compare(b.first);
        return names < 0 || (names == 0 && a.second < b.second);
    });
    QList<JiraUser> sorted;
    sorted.reserve(users.size());
    for (const auto &[name, index] : order)
        sorted.append(users[index]);
    return sorted;
}

} // namespace

std::optional<qsizetype> SiteAnswers::nextProjects(const ProjectSearchDTO &page, qsizetype startAt,
                                                   qsizetype gathered)
{
    const bool goesOn = page.isLast == false && !page.values.isEmpty();
    if (!goesOn || gathered >= MaximumProjects)
        return std::nullopt;
    return startAt + page.values.size();
}

QList<IssueStatus> SiteAnswers::statuses(const QList<IssueTypeStatusesDTO> &types)
{
    QList<IssueStatus> result;
    QSet<QString> seen;
    for (const IssueTypeStatusesDTO &type : types) {
        for (const StatusDTO &wire : type.statuses) {
            const IssueStatus status = wire.model();
            if (seen.contains(status.groupKey()))
                continue;
            seen.insert(status.groupKey());
            result.append(status);
        }
    }
    return result;
}

QList<JiraUser> SiteAnswers::assignableUsers(const QList<UserDTO> &users, const QLocale &locale)
{
    QList<JiraUser> people;
    for (const UserDTO &user : users) {
        if (accountType(user) == u"atlassian" && isActive(user))
            people.append(user.model());
    }
    return sortedByName(people, locale);
}

QList<JiraUser> SiteAnswers::foundUsers(const QList<UserDTO> &users)
{
    QList<JiraUser> found;
    for (const UserDTO &user : users) {
        if (accountType(user) != u"app" && isActive(user))
            found.append(user.model());
    }
    return found;
}

Issue SiteAnswers::detailedIssue(const IssueDTO &issue, const QDateTime &now)
{
    Issue record = issue.model(now);
    record.hasDetails = true;
    return record;
}

Comment SiteAnswers::storedComment(const CommentDTO &comment, CommentAudience audience,
                                   const QDateTime &now)
{
    Comment record = comment.model(now);
    record.isInternal = record.isInternal || audience == CommentAudience::Agents;
    return record;
}
