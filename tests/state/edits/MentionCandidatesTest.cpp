#include "state/edits/MentionCandidates.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Sample::user;

namespace {

QStringList ids(const QList<JiraUser> &users)
{
    QStringList result;
    for (const JiraUser &each : users)
        result.append(each.id);
    return result;
}

Comment commentBy(const std::optional<JiraUser> &author)
{
    Comment comment;
    comment.author = author;
    return comment;
}

} // namespace

TEST(MentionCandidates, ComeFromTheNearestToTheFarthest)
{
    Issue issue = Sample::issue(u"A-1"_s);
    issue.assignee = user(u"assignee"_s, u"Z"_s);
    issue.reporter = user(u"reporter"_s, u"Y"_s);
    const MentionSources sources{
        .issue = SharedIssue(issue),
        .comments = {commentBy(user(u"commenter"_s, u"X"_s)), commentBy(std::nullopt)},
        .assignables = {user(u"assignable"_s, u"W"_s)},
        .availableAssignees = {user(u"available"_s, u"V"_s)},
        .knownUsers = {{u"known"_s, user(u"known"_s, u"U"_s)}},
        .me = user(u"me"_s, u"A"_s)};
    EXPECT_EQ(ids(mentionCandidates(sources)),
              (QStringList{u"assignee"_s, u"reporter"_s, u"commenter"_s, u"assignable"_s,
                           u"available"_s, u"known"_s, u"me"_s}));
}

TEST(MentionCandidates, StandOnceWhereTheyComeFirst)
{
    Issue issue = Sample::issue(u"A-1"_s);
    issue.assignee = user(u"u1"_s, u"Nora"_s);
    issue.reporter = user(u"u1"_s, u"Nora"_s);
    const MentionSources sources{
        .issue = SharedIssue(issue),
        .comments = {commentBy(user(u"u2"_s, u"Léa"_s)), commentBy(user(u"u1"_s, u"Nora"_s))},
        .assignables = {user(u"u2"_s, u"Léa"_s)},
        .availableAssignees = {},
        .knownUsers = {},
        .me = user(u"u2"_s, u"Léa"_s)};
    EXPECT_EQ(ids(mentionCandidates(sources)), (QStringList{u"u1"_s, u"u2"_s}));
}

TEST(MentionCandidates, KnownUsersAreInUnicodeOrder)
{
    const MentionSources sources{.issue = {},
                                 .comments = {},
                                 .assignables = {},
                                 .availableAssignees = {},
                                 .knownUsers = {{u"1"_s, user(u"1"_s, u"ada"_s)},
                                                {u"2"_s, user(u"2"_s, u"Zoé"_s)},
                                                {u"3"_s, user(u"3"_s, u"Émile"_s)},
                                                {u"4"_s, user(u"4"_s, u"Zoé"_s)}},
                                 .me = {}};
    EXPECT_EQ(ids(mentionCandidates(sources)), (QStringList{u"2"_s, u"4"_s, u"1"_s, u"3"_s}));
}

TEST(MentionCandidates, WithoutAnIssueTheProjectsPeopleLead)
{
    const MentionSources sources{.issue = {},
                                 .comments = {},
                                 .assignables = {user(u"u1"_s, u"Nora"_s)},
                                 .availableAssignees = {user(u"u2"_s, u"Léa"_s)},
                                 .knownUsers = {},
                                 .me = {}};
    EXPECT_EQ(ids(mentionCandidates(sources)), (QStringList{u"u1"_s, u"u2"_s}));
}
