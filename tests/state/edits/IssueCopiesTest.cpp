#include "state/edits/IssueCopies.h"

#include "state/edits/ListedIssues.h"
#include "state/recap/ActivitySamples.h"

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

TEST(ListedIssues, ChangesTheEntryAndSharesTheOthers)
{
    const IssueList before = threeIssues();
    ListedIssues list(before);
    EXPECT_TRUE(list.change({{u"A-2"_s, retitle}}));
    ASSERT_EQ(list.issues().size(), 3);
    EXPECT_EQ(list.issues()[1]->summary, u"Autre");
    EXPECT_TRUE(list.issues()[0].isSameObject(before[0]));
    EXPECT_TRUE(list.issues()[2].isSameObject(before[2]));
    EXPECT_EQ(before[1]->summary, u"Titre 2");
}

TEST(ListedIssues, ChangesOnlyTheFirstEntryWithTheKey)
{
    IssueList before = threeIssues();
    before.append(before[1]);
    ListedIssues list(before);
    list.change({{u"A-2"_s, retitle}});
    EXPECT_EQ(list.issues()[1]->summary, u"Autre");
    EXPECT_TRUE(list.issues()[3].isSameObject(before[3]));
}

TEST(ListedIssues, AKeyThatIsNowhereIsNoError)
{
    ListedIssues list(threeIssues());
    EXPECT_FALSE(list.change({{u"B-1"_s, retitle}}));
    EXPECT_FALSE(ListedIssues().change({{u"B-1"_s, retitle}}));
    EXPECT_EQ(changedInDetails({}, {{u"B-1"_s, retitle}}), std::nullopt);
}

TEST(ListedIssues, AChangeThatChangesNothingGivesNothingToNotify)
{
    ListedIssues list(threeIssues());
    EXPECT_FALSE(list.change({{u"A-2"_s, leave}}));
    EXPECT_EQ(changedInDetails({{u"A-2"_s, Sample::issue(u"A-2"_s)}}, {{u"A-2"_s, leave}}),
              std::nullopt);
}

TEST(ListedIssues, ChangesSeveralIssuesAndFindsThemStill)
{
    const IssueChanges changes{{u"A-1"_s, retitle}, {u"A-2"_s, leave}, {u"A-3"_s, retitle}};
    const IssueList before = threeIssues();
    ListedIssues list(before);
    EXPECT_TRUE(list.change(changes));
    EXPECT_EQ(list.issues()[0]->summary, u"Autre");
    EXPECT_TRUE(list.issues()[1].isSameObject(before[1]));
    EXPECT_EQ(list.issues()[2]->summary, u"Autre");
    EXPECT_EQ(list.rowOf(u"A-3"_s), 2);
    EXPECT_EQ(list.rowOf(u"A-4"_s), std::nullopt);
}

TEST(ListedIssues, FollowsWhatAnotherHolderOfTheListHasChanged)
{
    IssueList issues = threeIssues();
    ListedIssues list(issues);
    EXPECT_EQ(list.rowOf(u"A-2"_s), 1);
    EXPECT_TRUE(list.isSharedWith(issues));
    const SharedIssue *const place = issues.constData();
    list.letGo();
    // The key lies elsewhere in memory than before.
    issues[1] = Sample::issue(u"A-%1"_s.arg(2));
    list.follow(issues, {1});
    EXPECT_EQ(issues.constData(), place) << "changed in place, not copied";
    EXPECT_TRUE(list.isSharedWith(issues));
    EXPECT_EQ(list.rowOf(u"A-2"_s), 1);
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

TEST(IssueCopies, ChangesSeveralDetailsInOnePass)
{
    const IssueChanges changes{{u"A-1"_s, retitle}, {u"A-2"_s, leave}, {u"A-3"_s, retitle}};
    const IssueList before = threeIssues();
    const auto details = changedInDetails({{u"A-3"_s, before[2]}, {u"B-1"_s, before[0]}}, changes);
    ASSERT_TRUE(details);
    EXPECT_EQ(details->value(u"A-3"_s)->summary, u"Autre");
    EXPECT_TRUE(details->value(u"B-1"_s).isSameObject(before[0]));
}
