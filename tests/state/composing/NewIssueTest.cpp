#include "state/composing/NewIssue.h"

#include "richtext/ADFQueries.h"
#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Sample::user;

namespace {

IssueType type(const QString &name, bool isSubtask = false, qint64 level = 0)
{
    return {.id = name, .name = name, .isSubtask = isSubtask, .hierarchyLevel = level};
}

Project projectWith(const QList<IssueType> &types)
{
    Project project;
    project.key = u"MOB"_s;
    project.issueTypes = types;
    return project;
}

QString defaultName(const QList<IssueType> &types)
{
    return defaultType(types).value_or(IssueType()).name;
}

NewIssue titled(const QString &summary)
{
    return {.projectKey = u"MOB"_s, .summary = summary};
}

} // namespace

TEST(NewIssue, TheDetailsOfAProjectDecideAboutItsTypes)
{
    const Project listed = projectWith({type(u"Bug"_s)});
    const Project detailed = projectWith({type(u"Story"_s)});
    EXPECT_EQ(creatableTypes(detailed, listed), detailed.issueTypes);
    EXPECT_EQ(creatableTypes(std::nullopt, listed), listed.issueTypes);
    EXPECT_EQ(creatableTypes(std::nullopt, std::nullopt), QList<IssueType>());
}

TEST(NewIssue, AProjectWithSubtasksOnlyOffersNoType)
{
    const Project project = projectWith({type(u"Sous-tâche"_s, true, -1)});
    EXPECT_EQ(creatableTypes(project, std::nullopt), QList<IssueType>());
    EXPECT_EQ(defaultType({}), std::nullopt);
}

TEST(NewIssue, ATaskIsTheDefaultThenAStoryThenTheFirstType)
{
    EXPECT_EQ(defaultName({type(u"Story"_s), type(u"Tâche"_s)}), u"Tâche"_s);
    EXPECT_EQ(defaultName({type(u"Bug"_s), type(u"Story"_s)}), u"Story"_s);
    EXPECT_EQ(defaultName({type(u"Epic"_s, false, 1), type(u"Bug"_s)}), u"Epic"_s);
}

TEST(NewIssue, ATitleOfBlanksAndAMissingProjectAreNotCreated)
{
    EXPECT_FALSE(canCreate(titled(u" \n "_s)));
    EXPECT_TRUE(canCreate(titled(u" a "_s)));
    EXPECT_FALSE(canCreate({.projectKey = {}, .summary = u"a"_s}));
}

TEST(NewIssue, TitleAndDescriptionAreSentWithoutTheWhiteSpaceAroundThem)
{
    NewIssue issue = titled(u" Panne \n"_s);
    issue.details = u"\n Le **jeton** expire \n"_s;
    const IssueDraft draft = issueDraft(issue, {});
    EXPECT_EQ(draft.summary, u"Panne"_s);
    ASSERT_TRUE(draft.description);
    EXPECT_EQ(ADF::plainText(*draft.description), u"Le jeton expire"_s);
}

TEST(NewIssue, ADescriptionWithoutWordsIsLeftOut)
{
    NewIssue issue = titled(u"Panne"_s);
    issue.details = u" \n"_s;
    EXPECT_EQ(issueDraft(issue, {}).description, std::nullopt);
}

TEST(NewIssue, AChoiceThatWasNotMadeIsLeftToTheSite)
{
    const IssueDraft draft = issueDraft(titled(u"Panne"_s), {});
    EXPECT_EQ(draft.issueTypeID, std::nullopt);
    EXPECT_EQ(draft.priorityID, std::nullopt);
    EXPECT_EQ(draft.assigneeID, std::nullopt);
    EXPECT_EQ(draft.labels, QStringList());
}

TEST(NewIssue, EveryChoiceIsSent)
{
    NewIssue issue = titled(u"Panne"_s);
    issue.typeID = u"10"_s;
    issue.priority = IssuePriority(u"2"_s, u"High"_s);
    issue.assignee = user(u"nora"_s, u"Nora Vidal"_s);
    issue.labels = {u"auth"_s, u"ios"_s};
    const IssueDraft draft = issueDraft(issue, {});
    EXPECT_EQ(draft.projectKey, u"MOB"_s);
    EXPECT_EQ(draft.issueTypeID, u"10"_s);
    EXPECT_EQ(draft.priorityID, u"2"_s);
    EXPECT_EQ(draft.assigneeID, u"nora"_s);
    EXPECT_EQ(draft.labels, issue.labels);
}

TEST(NewIssue, ANameAfterAnAtSignInTheDescriptionBecomesAMention)
{
    NewIssue issue = titled(u"Panne"_s);
    issue.details = u"Vu avec @Nora Vidal hier"_s;
    const IssueDraft draft = issueDraft(issue, {user(u"nora"_s, u"Nora Vidal"_s)});
    ASSERT_TRUE(draft.description);
    const auto users = ADF::mentionedUsers(*draft.description);
    ASSERT_EQ(users.size(), 1);
    EXPECT_EQ(users.front().id, u"nora"_s);
}
