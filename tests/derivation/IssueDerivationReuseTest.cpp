#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationSamples.h"
#include "support/ComputationLog.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class IssueDerivationReuse : public testing::Test
{
protected:
    void SetUp() override
    {
        inputs.issues = randomIssues(1, 200);
        apply();
    }

    /// Sets the inputs and reads all results that a list shows.
    void apply()
    {
        derivation.setInputs(inputs);
        derivation.visibleIssues();
        derivation.groups();
        derivation.flatVisibleKeys();
    }

    IssueDerivationInputs inputs = inputsOf({});
    ComputationLog log;
    IssueDerivation derivation;
};

} // namespace

TEST_F(IssueDerivationReuse, SameInputsComputeNothing)
{
    const auto before = log.counts();
    apply();
    EXPECT_EQ(log.counts(), before);
}

TEST_F(IssueDerivationReuse, AKeystrokeNeitherSortsNorFoldsNorFilters)
{
    inputs.filterText = u"été"_s;
    apply();
    EXPECT_EQ(log.count(u"search"_s), 2);
    EXPECT_EQ(log.count(u"visible rows"_s), 2);
    EXPECT_EQ(log.count(u"groups"_s), 2);
    EXPECT_EQ(log.count(u"index"_s), 1);
    EXPECT_EQ(log.count(u"order"_s), 1);
    EXPECT_EQ(log.count(u"filter"_s), 1);
    EXPECT_EQ(log.count(u"texts"_s), 200);
}

TEST_F(IssueDerivationReuse, AKeystrokeThatHitsTheSameIssuesGroupsNothing)
{
    inputs.filterText = u"accents"_s;
    apply();
    inputs.filterText = u"ACCENTS "_s;
    apply();
    EXPECT_EQ(log.count(u"search"_s), 3);
    EXPECT_EQ(log.count(u"groups"_s), 2);
    EXPECT_EQ(log.count(u"visible keys"_s), 2);
}

TEST_F(IssueDerivationReuse, CollapsingAGroupComputesTheKeysAlone)
{
    const auto groups = log.count(u"groups"_s);
    inputs.collapsedGroups = {derivation.groups().first().id};
    apply();
    EXPECT_EQ(log.count(u"groups"_s), groups);
    EXPECT_EQ(log.count(u"visible keys"_s), 2);
}

TEST_F(IssueDerivationReuse, AReloadOfEqualRecordsComputesNothing)
{
    const auto before = log.counts();
    inputs.issues = randomIssues(1, 200);
    apply();
    EXPECT_EQ(log.counts(), before);
}

TEST_F(IssueDerivationReuse, AReloadFoldsOnlyWhatReadsDifferently)
{
    auto fresh = randomIssues(1, 200);
    std::reverse(fresh.begin(), fresh.end());
    Issue renamed = *fresh[10];
    renamed.summary = u"Nouveau résumé"_s;
    fresh[10] = renamed;
    Issue moved = *fresh[11];
    moved.status = done();
    fresh[11] = moved;
    inputs.issues = fresh;
    apply();
    EXPECT_EQ(log.count(u"texts"_s), 201);
}

TEST_F(IssueDerivationReuse, AnEditComputesEachStepOnceAndFoldsOnlyItsOwnTexts)
{
    Issue renamed = *inputs.issues.at(7);
    renamed.summary = u"Nouveau résumé"_s;
    renamed.updated = minute(999);
    inputs.issues[7] = renamed;
    apply();
    apply();
    for (const QString &name :
         {u"index"_s, u"order"_s, u"filter"_s, u"groups"_s, u"visible keys"_s})
        EXPECT_EQ(log.count(name), 2) << name.toStdString();
    EXPECT_EQ(log.count(u"texts"_s), 201);
}

TEST_F(IssueDerivationReuse, AnEditedStatusLeavesTheListsOfOtherGroupsShared)
{
    const QList<IssueGroup> before = derivation.groups();
    ASSERT_GE(before.size(), 3);
    Issue moved = *before[0].issues.first();
    moved.status = before[1].issues.first()->status;
    const auto row = derivation.rowOf(moved.key);
    ASSERT_TRUE(row);
    inputs.issues[*row] = moved;
    apply();

    const auto isShared = [&before](const IssueGroup &group) {
        return std::ranges::any_of(before, [&group](const IssueGroup &other) {
            return other.id == group.id && other.issues.constData() == group.issues.constData();
        });
    };
    const auto shared = std::ranges::count_if(derivation.groups(), isShared);
    EXPECT_EQ(shared, before.size() - 2);
}

TEST_F(IssueDerivationReuse, AKeyIsFoundWhenItsFormerRecordIsGone)
{
    QString key;
    {
        Issue moved = *inputs.issues.at(7);
        // Shares no memory with the former record.
        moved.key = QString(moved.key.constData(), moved.key.size());
        moved.status = moved.status == done() ? todo() : done();
        key = moved.key;
        inputs.issues[7] = moved;
    }
    apply();
    EXPECT_EQ(log.count(u"texts"_s), 200);
    EXPECT_EQ(derivation.rowOf(key), 7);
}

TEST_F(IssueDerivationReuse, AVersionGrowsOnlyWithWhatItIsNamedFor)
{
    const auto visible = derivation.visibleVersion();
    const auto groups = derivation.groupsVersion();
    const auto board = derivation.boardVersion();
    const auto menus = derivation.menusVersion();
    inputs.grouping = Grouping::Priority;
    apply();
    EXPECT_EQ(derivation.visibleVersion(), visible);
    EXPECT_GT(derivation.groupsVersion(), groups);
    EXPECT_EQ(derivation.boardVersion(), board);

    inputs.filterText = u"WEB-1"_s;
    apply();
    EXPECT_GT(derivation.visibleVersion(), visible);
    EXPECT_GT(derivation.boardVersion(), board);
    EXPECT_EQ(derivation.menusVersion(), menus);
}

TEST_F(IssueDerivationReuse, ANarrowerSearchFindsWhatAWholeOneFinds)
{
    for (const auto &text : {u"é"_s, u"ét"_s, u"été"_s, u"t"_s, u""_s, u"web-1"_s, u"web-12"_s}) {
        inputs.filterText = text;
        apply();
        IssueDerivation fresh;
        fresh.setInputs(inputs);
        EXPECT_EQ(keysOf(derivation.visibleIssues()), keysOf(fresh.visibleIssues()))
            << qPrintable(text);
    }
}

TEST_F(IssueDerivationReuse, TheBoardIsNotComputedWhileTheListIsShown)
{
    EXPECT_EQ(log.count(u"board"_s), 0);
    EXPECT_EQ(log.count(u"menus"_s), 0);
}

TEST(ReusingRecords, EqualRecordsBecomeTheSameObject)
{
    const IssueList known = randomIssues(1, 20);
    IssueList fresh = randomIssues(1, 20);
    std::reverse(fresh.begin(), fresh.end());
    Issue edited = *fresh[3];
    edited.summary = u"Autre"_s;
    fresh[3] = edited;

    const auto reused = reusingRecords(fresh, known);

    ASSERT_EQ(reused.size(), 20);
    for (qsizetype row = 0; row < 20; ++row) {
        EXPECT_EQ(reused[row].isSameObject(known[19 - row]), row != 3) << row;
        EXPECT_TRUE(reused[row] == fresh[row]) << row;
    }
}
