#include "state/IssueCopies.h"

#include "ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void retitle(Issue &issue)
{
    issue.summary = u"Autre"_s;
}

void leave(Issue &) {}

IssueList threeIssues()
{
    return {Sample::issue(u"A-1"_s), Sample::issue(u"A-2"_s), Sample::issue(u"A-3"_s)};
}

} // namespace

TEST(IssueCopies, ChangesTheEntryOfAListAndSharesTheOthers)
{
    const IssueList before = threeIssues();
    const auto after = changedInList(before, {{u"A-2"_s, retitle}});
    ASSERT_TRUE(after);
    ASSERT_EQ(after->size(), 3);
    EXPECT_EQ((*after)[1]->summary, u"Autre");
    EXPECT_TRUE((*after)[0].isSameObject(before[0]));
    EXPECT_TRUE((*after)[2].isSameObject(before[2]));
    EXPECT_EQ(before[1]->summary, u"Titre 2");
}

TEST(IssueCopies, ChangesOnlyTheFirstEntryWithTheKey)
{
    IssueList before = threeIssues();
    before.append(before[1]);
    const auto after = changedInList(before, {{u"A-2"_s, retitle}});
    EXPECT_EQ((*after)[1]->summary, u"Autre");
    EXPECT_TRUE((*after)[3].isSameObject(before[3]));
}

TEST(IssueCopies, AKeyThatIsNowhereIsNoError)
{
    EXPECT_EQ(changedInList(threeIssues(), {{u"B-1"_s, retitle}}), std::nullopt);
    EXPECT_EQ(changedInDetails({}, {{u"B-1"_s, retitle}}), std::nullopt);
    EXPECT_EQ(changedInScopes({{IssueScope::recent(), threeIssues()}}, {{u"B-1"_s, retitle}}),
              std::nullopt);
}

TEST(IssueCopies, AChangeThatChangesNothingGivesNothingToNotify)
{
    EXPECT_EQ(changedInList(threeIssues(), {{u"A-2"_s, leave}}), std::nullopt);
    EXPECT_EQ(changedInDetails({{u"A-2"_s, Sample::issue(u"A-2"_s)}}, {{u"A-2"_s, leave}}),
              std::nullopt);
    EXPECT_EQ(changedInScopes({{IssueScope::recent(), threeIssues()}}, {{u"A-2"_s, leave}}),
              std::nullopt);
}

TEST(IssueCopies, ChangesTheDetails)
{
    const QHash<QString, SharedIssue> before{{u"A-1"_s, Sample::issue(u"A-1"_s)},
                                             {u"A-2"_s, Sample::issue(u"A-2"_s)}};
    const auto after = changedInDetails(before, {{u"A-2"_s, retitle}});
    ASSERT_TRUE(after);
    EXPECT_EQ(after->value(u"A-2"_s)->summary, u"Autre");
    EXPECT_TRUE(after->value(u"A-1"_s).isSameObject(before.value(u"A-1"_s)));
}

TEST(IssueCopies, ChangesTheListsOfAllScopes)
{
    const IssueScope other = IssueScope::project(u"B"_s, ProjectView::All);
    const QHash<IssueScope, IssueList> before{{IssueScope::myIssues(), threeIssues()},
                                              {IssueScope::recent(), threeIssues()},
                                              {other, {Sample::issue(u"B-1"_s)}}};
    const auto after = changedInScopes(before, {{u"A-3"_s, retitle}});
    ASSERT_TRUE(after);
    EXPECT_EQ(after->value(IssueScope::myIssues())[2]->summary, u"Autre");
    EXPECT_EQ(after->value(IssueScope::recent())[2]->summary, u"Autre");
    EXPECT_EQ(after->value(other), before.value(other));
}

TEST(IssueCopies, ChangesSeveralIssuesInOnePass)
{
    const IssueChanges changes{{u"A-1"_s, retitle}, {u"A-2"_s, leave}, {u"A-3"_s, retitle}};
    const IssueList before = threeIssues();
    const auto list = changedInList(before, changes);
    ASSERT_TRUE(list);
    EXPECT_EQ((*list)[0]->summary, u"Autre");
    EXPECT_TRUE((*list)[1].isSameObject(before[1]));
    EXPECT_EQ((*list)[2]->summary, u"Autre");

    const auto details = changedInDetails({{u"A-3"_s, before[2]}, {u"B-1"_s, before[0]}}, changes);
    ASSERT_TRUE(details);
    EXPECT_EQ(details->value(u"A-3"_s)->summary, u"Autre");
    EXPECT_TRUE(details->value(u"B-1"_s).isSameObject(before[0]));
}

TEST(IssueCopies, FindsTheDetailsBeforeTheFirstListThatHasTheKey)
{
    const SharedIssue opened = Sample::issue(u"A-1"_s);
    const IssueList first{Sample::issue(u"A-1"_s), Sample::issue(u"A-2"_s)};
    const IssueList second{Sample::issue(u"A-2"_s), Sample::issue(u"A-3"_s)};
    const IssueList found = issuesWithKeys({u"A-3"_s, u"A-2"_s, u"B-1"_s, u"A-1"_s, u"A-3"_s},
                                           {{u"A-1"_s, opened}}, {first, second});
    ASSERT_EQ(found.size(), 3);
    EXPECT_TRUE(found[0].isSameObject(second[1]));
    EXPECT_TRUE(found[1].isSameObject(first[1]));
    EXPECT_TRUE(found[2].isSameObject(opened));
}
