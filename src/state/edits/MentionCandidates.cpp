#include "state/edits/MentionCandidates.h"

#include <QSet>

#include <algorithm>

namespace {

void append(QList<JiraUser> &users, const std::optional<JiraUser> &user)
{
    if (user)
        users.append(*user);
}

/// The users sorted by name; users with the same name are sorted by id, so that the order is the same in every run.
QList<JiraUser> byName(const QHash<QString, JiraUser> &users)
{
    QList<JiraUser> result = users.values();
    std::ranges::sort(result, {},
                      [](const JiraUser &user) { return std::pair(user.name.toUcs4(), user.id); });
    return result;
}

QList<JiraUser> withoutRepeats(const QList<JiraUser> &users)
{
    QSet<QString> ids;
    QList<JiraUser> result;
    for (const JiraUser &user : users) {
        if (ids.contains(user.id))
            continue;
        ids.insert(user.id);
        result.append(user);
    }
    return result;
}

} // namespace

QList<JiraUser> mentionCandidates(const MentionSources &sources)
{
    QList<JiraUser> users;
    if (sources.issue) {
        append(users, (*sources.issue)->assignee);
        append(users, (*sources.issue)->reporter);
    }
    for (const Comment &comment : sources.comments)
        append(users, comment.author);
    users += sources.assignables;
    users += sources.availableAssignees;
    users += byName(sources.knownUsers);
    append(users, sources.me);
    return withoutRepeats(users);
}
