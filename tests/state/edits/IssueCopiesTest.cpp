#include "state/edits/IndexedIssues.h"
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

TEST(IndexedIssues, SharesAllRecordsButTheChangedOne)
{
    const IssueList before = threeIssues();
    IndexedIssues issues(before);
    issues.apply({{u"A-2"_s, retitle}});
    const IssueList &after = issues.list();
    ASSERT_EQ(after.size(), 3);
    EXPECT_EQ(after[1]->summary, u"Autre");
    EXPECT_TRUE(after[0].isSameObject(before[0]));
    EXPECT_TRUE(after[2].isSameObject(before[2]));
    EXPECT_EQ(before[1]->summary, u"Titre 2");
}

TEST(IndexedIssues, FindsTheRowsOfItsIssuesAlsoAfterChanges)
{
    IndexedIssues issues(threeIssues());
    EXPECT_EQ(issues.rowOf(u"A-3"_s), 2);
    issues.apply({{u"A-3"_s, retitle}});
    EXPECT_EQ(issues.rowOf(u"A-3"_s), 2);
    EXPECT_EQ(issues.rowOf(u"B-1"_s), std::nullopt);
    EXPECT_EQ(IndexedIssues().rowOf(u"A-1"_s), std::nullopt);
}

TEST(IndexedIssues, KnowsWhetherChangesAreForItsIssues)
{
    const IndexedIssues issues(threeIssues());
    EXPECT_TRUE(issues.hasAnyOf({{u"B-1"_s, retitle}, {u"A-1"_s, retitle}}));
    EXPECT_FALSE(issues.hasAnyOf({{u"B-1"_s, retitle}}));
    EXPECT_FALSE(issues.hasAnyOf({}));
}

TEST(IndexedIssues, ACopyIsChangedAlone)
{
    IndexedIssues issues(threeIssues());
    EXPECT_EQ(issues.rowOf(u"A-1"_s), 0);
    const IndexedIssues copy = issues;
    issues.apply({{u"A-1"_s, retitle}});
    EXPECT_NE(issues, copy);
    EXPECT_EQ(copy.list()[0]->summary, u"Titre 1");
}

TEST(IssueCopies, AKeyThatIsNowhereIsNoError)
{
    IndexedIssues issues(threeIssues());
    issues.apply({{u"B-1"_s, retitle}});
    EXPECT_EQ(issues.list(), threeIssues());
    EXPECT_EQ(changedInDetails({}, {{u"B-1"_s, retitle}}), std::nullopt);
}

TEST(IssueCopies, AChangeThatChangesNothingGivesNothingToNotify)
{
    const IssueList before = threeIssues();
    IndexedIssues issues(before);
    issues.apply({{u"A-2"_s, leave}});
    EXPECT_TRUE(issues.list().isSharedWith(before));
    EXPECT_EQ(changedInDetails({{u"A-2"_s, Sample::issue(u"A-2"_s)}}, {{u"A-2"_s, leave}}),
              std::nullopt);
}

TEST(IndexedIssues, ChangesSeveralIssues)
{
    const IssueList before = threeIssues();
    IndexedIssues issues(before);
    issues.apply({{u"A-1"_s, retitle}, {u"A-2"_s, leave}, {u"A-3"_s, retitle}});
    EXPECT_EQ(issues.list()[0]->summary, u"Autre");
    EXPECT_TRUE(issues.list()[1].isSameObject(before[1]));
    EXPECT_EQ(issues.list()[2]->summary, u"Autre");
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
