#include "state/recap/ActivityBadge.h"

#include "state/recap/ActivitySamples.h"
#include "state/recap/ActivityTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Sample;

namespace {

const StatusLookup noStatuses;
const JiraUser nora = user(u"u1"_s, u"Nora Valmy"_s);

std::optional<ActivityBadge> badge(const QList<ActivityEvent> &events,
                                   const QList<JiraUser> &users = {})
{
    return activityBadge(issue(u"A-1"_s, events), noStatuses, usersByName(users), paris());
}

QString described(const ActivityEvent &event)
{
    return eventDescription(event, u"A"_s, noStatuses, paris());
}

} // namespace

TEST(ActivityBadge, AnIssueWithoutEventsHasNone)
{
    EXPECT_EQ(badge({}), std::nullopt);
}

TEST(ActivityBadge, AStatusEventShowsTheStatusReached)
{
    const auto shown = badge({statusEvent(u"À faire"_s, u"In Progress"_s, 27)});
    ASSERT_TRUE(shown);
    EXPECT_EQ(std::get<IssueStatus>(shown->icon), IssueStatus::guessed(u"In Progress"_s));
    EXPECT_EQ(shown->label, u"En cours");
    EXPECT_EQ(shown->dateText, u"27 oct.");
}

TEST(ActivityBadge, AnAssignmentShowsTheNewAssigneeIfKnown)
{
    EXPECT_EQ(badge({assigneeEvent(nora.name)}, {nora})->icon, ActivityBadge::Icon(nora));
    EXPECT_EQ(badge({assigneeEvent(nora.name)}, {nora})->label, QString());
}

TEST(ActivityBadge, AnAssignmentToAnUnknownOrNobodyShowsASymbol)
{
    const ActivityBadge::Icon symbol = ActivityBadge::Symbol{u"person.crop.circle"_s};
    EXPECT_EQ(badge({assigneeEvent(u"Léa"_s)}, {nora})->icon, symbol);
    EXPECT_EQ(badge({assigneeEvent({})}, {nora})->icon, symbol);
}

TEST(ActivityBadge, ACreationShowsASymbol)
{
    EXPECT_EQ(badge({createdEvent()})->icon,
              ActivityBadge::Icon(ActivityBadge::Symbol{u"plus.circle"_s}));
}

TEST(ActivityBadge, TheLatestEventIsShownWhateverTheOrder)
{
    EXPECT_EQ(badge({statusEvent({}, u"Terminé"_s, 28), createdEvent(26)})->label, u"Terminé");
}

TEST(ActivityBadge, OfUsersWithOneNameTheFirstCounts)
{
    EXPECT_EQ(badge({assigneeEvent(nora.name)}, {nora, user(u"u2"_s, nora.name)})->icon,
              ActivityBadge::Icon(nora));
}

TEST(ActivityBadge, TheTooltipOfASingleEventIsItsDescription)
{
    EXPECT_EQ(badge({createdEvent(26, nora)})->tooltip,
              u"Créé par Nora Valmy, lundi 26 octobre à 12:00");
}

TEST(ActivityBadge, TheTooltipCountsOneOtherEvent)
{
    EXPECT_EQ(badge({createdEvent(26, nora), createdEvent(25)})->tooltip,
              u"Créé par Nora Valmy, lundi 26 octobre à 12:00\n+ 1 autre événement sur la période");
}

TEST(ActivityBadge, TheTooltipCountsSeveralOtherEvents)
{
    EXPECT_TRUE(badge({createdEvent(26), createdEvent(25), createdEvent(24)})
                    ->tooltip.endsWith(u"\n+ 2 autres événements sur la période"));
}

TEST(EventDescription, OfAStatusChange)
{
    EXPECT_EQ(described(statusEvent(u"To Do"_s, u"In Progress"_s, 27, nora)),
              u"À faire → En cours par Nora Valmy, mardi 27 octobre à 12:00");
}

TEST(EventDescription, OfAStatusChangeFromNowhereByNobody)
{
    EXPECT_EQ(described(statusEvent({}, u"Staging"_s)),
              u"? → Staging par Quelqu'un, mardi 27 octobre à 12:00");
}

TEST(EventDescription, OfAnAssignment)
{
    EXPECT_EQ(described(assigneeEvent(u"Léa"_s, 27, nora)),
              u"Assigné à Léa par Nora Valmy, mardi 27 octobre à 12:00");
}

TEST(EventDescription, OfAnUnassignment)
{
    EXPECT_EQ(described(assigneeEvent({}, 27, nora)),
              u"Assigné à personne par Nora Valmy, mardi 27 octobre à 12:00");
}

TEST(EventDescription, TellsTheTimeInTheUsersZone)
{
    const ActivityEvent event{QDateTime({2026, 10, 27}, {23, 30}, QTimeZone::utc()), nora,
                              ActivityEvent::Created{}};
    EXPECT_EQ(described(event), u"Créé par Nora Valmy, mercredi 28 octobre à 00:30");
}
