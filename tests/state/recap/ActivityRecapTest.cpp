#include "state/recap/ActivityRecap.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Sample;

namespace {

const StatusLookup noStatuses;

Issue assigned(Issue issue, const QString &name)
{
    issue.assignee = user(u"u1"_s, name);
    return issue;
}

QString report(const IssueList &issues, const ActivityPeriod &period)
{
    return activityReport(activitySummary(issues, noStatuses), period, noStatuses, now(), paris());
}

} // namespace

TEST(ActivityRecap, APeriodWithNoEventsSaysSo)
{
    EXPECT_EQ(
        report({}, {}),
        u"## Cette semaine — du 26 oct. au 1 nov. 2026\n\n_Aucune activité sur la période._"_s);
}

TEST(ActivityRecap, AFullReportHasItsThreeSections)
{
    const IssueList issues{
        assigned(issue(u"A-1"_s, {statusEvent(u"En cours"_s, u"Terminé"_s)}), u"Nora Valmy"_s),
        issue(u"A-2"_s, {createdEvent(), statusEvent(u"À faire"_s, u"In Progress"_s)}),
        issue(u"A-3"_s, {statusEvent(u"En cours"_s, u"Done"_s)}),
    };
    EXPECT_EQ(report(issues, {.offset = -1}), u"## Semaine dernière — du 19 oct. au 25 oct. 2026\n"
                                              "\n"
                                              "**✅ Terminés (2)**\n"
                                              "- A-1 Titre 1\n"
                                              "- A-3 Titre 3\n"
                                              "\n"
                                              "**🔄 Avancés (1)**\n"
                                              "- A-2 Titre 2 _(À faire → En cours)_\n"
                                              "\n"
                                              "**🆕 Créés (1)**\n"
                                              "- A-2 Titre 2\n"_s);
}

TEST(ActivityRecap, AReportOfOneselfHasNoNames)
{
    const Issue done =
        assigned(issue(u"A-1"_s, {statusEvent(u"En cours"_s, u"Terminé"_s)}), u"Nora Valmy"_s);
    EXPECT_FALSE(report({done}, {}).contains(u"Nora"));
}

TEST(ActivityRecap, ATeamsReportNamesTheAssigneesByTheirFirstNames)
{
    const IssueList issues{
        assigned(issue(u"A-1"_s, {statusEvent(u"À faire"_s, u"En cours"_s)}), u"Nora Valmy"_s),
        issue(u"A-2"_s, {statusEvent(u"À faire"_s, u"En cours"_s)}),
    };
    EXPECT_EQ(report(issues, {.range = ActivityRange::Month, .teamWide = true}),
              u"## Ce mois-ci (équipe) — du 1 oct. au 31 oct. 2026\n"
              "\n"
              "**🔄 Avancés (2)**\n"
              "- A-1 Titre 1 _(À faire → En cours)_ — Nora\n"
              "- A-2 Titre 2 _(À faire → En cours)_\n"_s);
}

TEST(ActivityRecap, MovementSkipsTheStepsBetween)
{
    const Issue moved = issue(u"A-1"_s, {statusEvent(u"À faire"_s, u"En cours"_s), createdEvent(),
                                         statusEvent(u"En cours"_s, u"Bloqué"_s),
                                         statusEvent(u"Bloqué"_s, u"QA"_s)});
    EXPECT_EQ(movement(moved, noStatuses), u"À faire → En test"_s);
}

TEST(ActivityRecap, MovementThereAndBackHasTheSameNameOnBothSides)
{
    const Issue moved = issue(u"A-1"_s, {statusEvent(u"To Do"_s, u"En cours"_s),
                                         statusEvent(u"En cours"_s, u"À faire"_s)});
    EXPECT_EQ(movement(moved, noStatuses), u"À faire → À faire"_s);
}

TEST(ActivityRecap, MovementFromAnUnknownStatus)
{
    EXPECT_EQ(movement(issue(u"A-1"_s, {statusEvent({}, u"Staging"_s)}), noStatuses),
              u"? → Staging"_s);
}

TEST(ActivityRecap, NoMovementWithoutAStatusEvent)
{
    EXPECT_EQ(movement(issue(u"A-1"_s, {createdEvent(), assigneeEvent(u"Nora"_s)}), noStatuses),
              std::nullopt);
}
