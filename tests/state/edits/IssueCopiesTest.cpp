#include "state/edits/IssueCopies.h"

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

TEST(IssueCopies, AListSharesAllRecordsButTheChangedOne)
{
    const IssueList before = threeIssues();
    const auto after = changedInList(before, {{u"A-2"_s, retitle}});
    ASSERT_TRUE(after);
    ASSERT_EQ(after->size(), 3);
    EXPECT_EQ(after->at(1)->summary, u"Autre");
    EXPECT_TRUE(after->at(0).isSameObject(before[0]));
    EXPECT_TRUE(after->at(2).isSameObject(before[2]));
    EXPECT_EQ(before[1]->summary, u"Titre 2");
}

TEST(IssueCopies, EveryCopyOfAnIssueThatAListHoldsTwiceIsChanged)
{
    IssueList before = threeIssues();
    before.append(before[1]);
    const auto after = changedInList(before, {{u"A-2"_s, retitle}});
    ASSERT_TRUE(after);
    EXPECT_EQ(after->at(1)->summary, u"Autre");
    EXPECT_EQ(after->at(3)->summary, u"Autre");
}

TEST(IssueCopies, AListWhoseRowsAreKnownIsChangedAtThese)
{
    const IssueList before = threeIssues();
    const auto rowOf = [](const QString &key) {
        return key == u"A-3"_s ? std::optional(2) : std::nullopt;
    };
    const auto after = changedInList(before, {{u"A-3"_s, retitle}, {u"B-1"_s, retitle}}, rowOf);
    EXPECT_EQ(after, changedInList(before, {{u"A-3"_s, retitle}}));
    EXPECT_NE(after, std::nullopt);
    EXPECT_EQ(changedInList(before, {{u"A-3"_s, leave}}, rowOf), std::nullopt);
}

TEST(IssueCopies, AKeyThatIsNowhereIsNoError)
{
    EXPECT_EQ(changedInList(threeIssues(), {{u"B-1"_s, retitle}}), std::nullopt);
    EXPECT_EQ(changedInList({}, {{u"B-1"_s, retitle}}), std::nullopt);
    EXPECT_EQ(changedInDetails({}, {{u"B-1"_s, retitle}}), std::nullopt);
}

TEST(IssueCopies, AChangeThatChangesNothingGivesNothingToNotify)
{
    EXPECT_EQ(changedInList(threeIssues(), {{u"A-2"_s, leave}}), std::nullopt);
    EXPECT_EQ(changedInDetails({{u"A-2"_s, Sample::issue(u"A-2"_s)}}, {{u"A-2"_s, leave}}),
              std::nullopt);
}

TEST(IssueCopies, ChangesSeveralIssuesOfAList)
{
    const IssueList before = threeIssues();
    const auto after =
        changedInList(before, {{u"A-1"_s, retitle}, {u"A-2"_s, leave}, {u"A-3"_s, retitle}});
    ASSERT_TRUE(after);
    EXPECT_EQ(after->at(0)->summary, u"Autre");
    EXPECT_TRUE(after->at(1).isSameObject(before[1]));
    EXPECT_EQ(after->at(2)->summary, u"Autre");
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
