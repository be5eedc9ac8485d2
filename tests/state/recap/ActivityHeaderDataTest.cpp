#include "state/recap/ActivityHeaderData.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Sample;

namespace {

ActivityHeaderData header(const ActivityPeriod &period, const ActivitySummary &summary = {})
{
    return activityHeader(period, summary, now(), paris());
}

} // namespace

TEST(ActivityHeader, NamesTheWeekAndItsNeighbours)
{
    const auto data = header({});
    EXPECT_EQ(data.title, u"Cette semaine");
    EXPECT_EQ(data.rangeLabel, u"du 26 oct. au 1 nov. 2026");
    EXPECT_EQ(data.previousHelp, u"Semaine précédente");
    EXPECT_EQ(data.nextHelp, u"Semaine suivante");
}

TEST(ActivityHeader, NamesTheMonthAndItsNeighbours)
{
    const auto data = header({.range = ActivityRange::Month, .offset = -1});
    EXPECT_EQ(data.title, u"Le mois dernier");
    EXPECT_EQ(data.rangeLabel, u"du 1 sept. au 30 sept. 2026");
    EXPECT_EQ(data.previousHelp, u"Mois précédent");
    EXPECT_EQ(data.nextHelp, u"Mois suivant");
}

TEST(ActivityHeader, TheNextButtonIsDisabledAtTheCurrentPeriod)
{
    EXPECT_FALSE(header({}).hasNext);
    EXPECT_TRUE(header({.offset = -1}).hasNext);
}

TEST(ActivityHeader, CountsInThreePills)
{
    const ActivitySummary summary{.completed = {issue(u"A-1"_s)},
                                  .progressed = {issue(u"A-2"_s), issue(u"A-3"_s)},
                                  .created = {},
                                  .contributors = {u"Nora"_s}};
    EXPECT_EQ(header({}, summary).pills,
              (QList<StatPill>{{u"checkmark.circle.fill"_s, 1, u"terminés"_s},
                               {u"arrow.forward.circle.fill"_s, 2, u"avancés"_s},
                               {u"plus.circle.fill"_s, 0, u"créés"_s}}));
}

TEST(ActivityHeader, CountsThePeopleOfATeam)
{
    const ActivitySummary summary{
        .completed = {}, .progressed = {}, .created = {}, .contributors = {u"Nora"_s}};
    const auto pills = header({.teamWide = true}, summary).pills;
    ASSERT_EQ(pills.size(), 4);
    EXPECT_EQ(pills.back(), (StatPill{u"person.2.circle.fill"_s, 1, u"personnes"_s}));
}
