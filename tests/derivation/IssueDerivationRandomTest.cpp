#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationOracle.h"
#include "derivation/IssueDerivationSamples.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void expectAsOracle(const IssueDerivation &derivation, quint32 seed)
{
    const auto &inputs = derivation.inputs();
    EXPECT_TRUE(derivation.visibleIssues() == Oracle::visibleIssues(inputs)) << "seed " << seed;
    EXPECT_TRUE(derivation.groups() == Oracle::groups(inputs)) << "seed " << seed;
    EXPECT_TRUE(derivation.boardColumns() == Oracle::boardColumns(inputs)) << "seed " << seed;
    EXPECT_TRUE(derivation.flatVisibleKeys() == Oracle::flatVisibleKeys(inputs)) << "seed " << seed;
    EXPECT_TRUE(derivation.menus() == Oracle::menus(inputs)) << "seed " << seed;
}

/// Changes, adds or removes one record, or reverses the order.
IssueList edited(IssueList issues, quint32 seed)
{
    const auto row = qsizetype(seed % quint32(issues.size()));
    Issue record = *issues[row];
    record.summary += u" Été"_s;
    record.status = done();
    switch (seed % 4) {
    case 0:
        issues[row] = record;
        break;
    case 1:
        record.key = u"NEW-1"_s;
        issues.insert(row, record);
        break;
    case 2:
        issues.remove(row);
        break;
    default:
        std::reverse(issues.begin(), issues.end());
    }
    return issues;
}

} // namespace

TEST(IssueDerivationRandom, GivesWhatTheNaiveDerivationGives)
{
    for (quint32 seed = 0; seed < 300; ++seed) {
        IssueDerivation derivation;
        derivation.setInputs(randomInputs(seed, 60));
        expectAsOracle(derivation, seed);
    }
}

TEST(IssueDerivationRandom, GivesTheSameWhenOneDerivationLivesThroughAllChanges)
{
    IssueDerivation derivation;
    for (quint32 seed = 0; seed < 150; ++seed) {
        auto inputs = randomInputs(seed, 40);
        if (seed % 3 != 0)
            inputs.issues = edited(derivation.inputs().issues, seed);
        derivation.setInputs(inputs);
        expectAsOracle(derivation, seed);
    }
}

TEST(IssueDerivationRandom, GivesTheSameWhenOneSettingChangesAtATime)
{
    IssueDerivation derivation;
    auto inputs = randomInputs(5, 50);
    for (quint32 seed = 0; seed < 200; ++seed) {
        inputs = withOneSettingOf(inputs, randomInputs(seed, 50), seed);
        derivation.setInputs(inputs);
        expectAsOracle(derivation, seed);
    }
}
