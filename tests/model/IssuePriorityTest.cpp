#include "model/IssuePriority.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(PriorityLevel, IsReadFromNamesInBothLanguages)
{
    EXPECT_EQ(priorityLevelFromName(u"Highest"_s), PriorityLevel::Urgent);
    EXPECT_EQ(priorityLevelFromName(u"La plus haute"_s), PriorityLevel::Urgent);
    EXPECT_EQ(priorityLevelFromName(u"Bloquante"_s), PriorityLevel::Urgent);
    EXPECT_EQ(priorityLevelFromName(u"High"_s), PriorityLevel::High);
    EXPECT_EQ(priorityLevelFromName(u"ÉLEVÉE"_s), PriorityLevel::High);
    EXPECT_EQ(priorityLevelFromName(u"Majeure"_s), PriorityLevel::High);
    EXPECT_EQ(priorityLevelFromName(u"Normale"_s), PriorityLevel::Medium);
    EXPECT_EQ(priorityLevelFromName(u"P2 - à voir"_s), PriorityLevel::Medium);
    EXPECT_EQ(priorityLevelFromName(u"P3"_s), PriorityLevel::Low);
    EXPECT_EQ(priorityLevelFromName(u"Faible"_s), PriorityLevel::Low);
}

TEST(PriorityLevel, LowestIsLowThoughNoLongerUrgentThanLow)
{
    EXPECT_EQ(priorityLevelFromName(u"Lowest"_s), PriorityLevel::Low);
    EXPECT_EQ(priorityLevelFromName(u"La plus basse"_s), PriorityLevel::Low);
}

TEST(PriorityLevel, EmptyOrUnknownNameHasNone)
{
    EXPECT_EQ(priorityLevelFromName(QString()), PriorityLevel::None);
    EXPECT_EQ(priorityLevelFromName(u"Un jour"_s), PriorityLevel::None);
}

TEST(PriorityLevel, EarlierGroupWinsWhereTwoMatch)
{
    EXPECT_EQ(priorityLevelFromName(u"Low or high"_s), PriorityLevel::Low);
    EXPECT_EQ(priorityLevelFromName(u"critical, low"_s), PriorityLevel::Urgent);
    EXPECT_EQ(priorityLevelFromName(u"high normal"_s), PriorityLevel::High);
}

TEST(PriorityLevel, HasAFrenchNameEach)
{
    EXPECT_EQ(displayName(PriorityLevel::Urgent), u"Urgente"_s);
    EXPECT_EQ(displayName(PriorityLevel::High), u"Haute"_s);
    EXPECT_EQ(displayName(PriorityLevel::Medium), u"Moyenne"_s);
    EXPECT_EQ(displayName(PriorityLevel::Low), u"Basse"_s);
    EXPECT_EQ(displayName(PriorityLevel::None), u"Aucune priorité"_s);
}

TEST(IssuePriority, StandardNamesAreShownInFrench)
{
    EXPECT_EQ(IssuePriority(u"1"_s, u"HIGHEST"_s).displayName(), u"Urgente"_s);
    EXPECT_EQ(IssuePriority(u"2"_s, u"High"_s).displayName(), u"Haute"_s);
    EXPECT_EQ(IssuePriority(u"3"_s, u"medium"_s).displayName(), u"Moyenne"_s);
    EXPECT_EQ(IssuePriority(u"4"_s, u"Low"_s).displayName(), u"Basse"_s);
    EXPECT_EQ(IssuePriority(u"5"_s, u"Lowest"_s).displayName(), u"Très basse"_s);
}

TEST(IssuePriority, OtherNamesAreShownAsSpelt)
{
    const IssuePriority priority(u"2"_s, u"Élevée"_s);
    EXPECT_EQ(priority.displayName(), u"Élevée"_s);
    EXPECT_EQ(priority.level(), PriorityLevel::High);
    EXPECT_EQ(IssuePriority(u"6"_s, u"High "_s).displayName(), u"High "_s);
}

} // namespace
