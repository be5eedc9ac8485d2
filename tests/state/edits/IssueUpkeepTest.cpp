#include "state/edits/IssueUpkeep.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue issueWith(const QString &key, const QString &statusName, const QString &priorityName = {})
{
    Issue issue;
    issue.key = key;
    issue.status = IssueStatus::guessed(statusName);
    if (!priorityName.isEmpty())
        issue.priority = IssuePriority(priorityName, priorityName);
    return issue;
}

QStringList keysOf(const IssueList &issues)
{
    QStringList keys;
    for (const auto &issue : issues)
        keys += issue->key;
    return keys;
}

TEST(IssueUpkeepTest, openIssuesComeByStatusThenPriorityThenAsGiven)
{
    const IssueList issues = {issueWith(u"A"_s, u"À faire"_s),
                              issueWith(u"B"_s, u"Backlog"_s, u"Highest"_s),
                              issueWith(u"C"_s, u"À faire"_s, u"High"_s),
                              issueWith(u"D"_s, u"À faire"_s),
                              issueWith(u"E"_s, u"Terminé"_s),
                              issueWith(u"F"_s, u"Annulé"_s),
                              issueWith(u"G"_s, u"En cours"_s)};

    EXPECT_EQ(keysOf(openIssues(issues)), QStringList({u"G"_s, u"C"_s, u"A"_s, u"D"_s, u"B"_s}));
}

TEST(IssueUpkeepTest, ofIssuesWithOneKeyTheFirstIsKept)
{
    const IssueList issues = {issueWith(u"A"_s, u"À faire"_s), issueWith(u"B"_s, u"À faire"_s),
                              issueWith(u"A"_s, u"Terminé"_s), issueWith(u"C"_s, u"À faire"_s),
                              issueWith(u"B"_s, u"Terminé"_s), issueWith(u"A"_s, u"En cours"_s)};

    const IssueList once = withoutRepeatedKeys(issues);

    ASSERT_EQ(keysOf(once), QStringList({u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_TRUE(once[0].isSameObject(issues[0]));
    EXPECT_TRUE(once[1].isSameObject(issues[1]));
    EXPECT_TRUE(withoutRepeatedKeys({}).isEmpty());
}

TEST(IssueUpkeepTest, noIssuesAreNoOpenIssues)
{
    EXPECT_TRUE(openIssues({}).isEmpty());
}

TEST(IssueUpkeepTest, subtasksOfTheListWinWhenThereAreAny)
{
    Issue known = issueWith(u"A"_s, u"À faire"_s);
    known.subtasks = {IssueRef{.key = u"OLD"_s}};
    Issue listed = known;
    listed.subtasks = {IssueRef{.key = u"NEW"_s}};
    EXPECT_EQ(mergedIntoDetails(listed, known).subtasks, listed.subtasks);

    listed.subtasks.clear();
    EXPECT_EQ(mergedIntoDetails(listed, known).subtasks, known.subtasks);
}

TEST(IssueUpkeepTest, descriptionsOfAListNeverReplaceTheKnownOne)
{
    Issue known = issueWith(u"A"_s, u"À faire"_s);
    Issue listed = known;
    listed.description = ADFNode{.type = u"doc"_s};

    EXPECT_FALSE(mergedIntoDetails(listed, known).description);
    EXPECT_FALSE(mergedIntoDetails(listed, known).hasDetails);
}

TEST(IssueUpkeepTest, theRowKeepsItsHistoryWhenTheFullRecordTakesItsPlace)
{
    Issue row = issueWith(u"A"_s, u"À faire"_s);
    row.activity = {ActivityEvent{}, ActivityEvent{}};

    EXPECT_EQ(withActivityOf(issueWith(u"A"_s, u"Terminé"_s), row).activity, row.activity);
}

} // namespace
