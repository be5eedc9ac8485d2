#include "model/IssueType.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = IssueType::Kind;

namespace {

Kind kindOf(const QString &name, qint64 level = 0)
{
    return IssueType{u"1"_s, name, false, level}.kind();
}

TEST(IssueType, SubtaskByFlagOrLevelWhateverTheName)
{
    EXPECT_EQ((IssueType{u"1"_s, u"Epic"_s, true, 0}.kind()), Kind::Subtask);
    EXPECT_EQ(kindOf(u"Epic"_s, -1), Kind::Subtask);
}

TEST(IssueType, FrenchSubtaskIsToldByItsName)
{
    EXPECT_EQ(kindOf(u"Sous-tâche"_s), Kind::Subtask);
    EXPECT_EQ(kindOf(u"Sub-task"_s, 2), Kind::Subtask);
}

TEST(IssueType, AnyTypeAboveTheOrdinaryLevelIsAnEpic)
{
    EXPECT_EQ(kindOf(u"Bug"_s, 2), Kind::Epic);
    EXPECT_EQ(kindOf(u"Initiative"_s, 2), Kind::Epic);
    EXPECT_EQ(kindOf(u"Épopée"_s), Kind::Epic);
    EXPECT_EQ(kindOf(u"EPIC"_s), Kind::Epic);
}

TEST(IssueType, FamiliesAreReadFromNamesInBothLanguages)
{
    EXPECT_EQ(kindOf(u"Bogue"_s), Kind::Bug);
    EXPECT_EQ(kindOf(u"Incident de production"_s), Kind::Bug);
    EXPECT_EQ(kindOf(u"Anomalie"_s), Kind::Bug);
    EXPECT_EQ(kindOf(u"User Story"_s), Kind::Story);
    EXPECT_EQ(kindOf(u"Récit"_s), Kind::Story);
    EXPECT_EQ(kindOf(u"Histoire"_s), Kind::Story);
    EXPECT_EQ(kindOf(u"Tâche"_s), Kind::Task);
    EXPECT_EQ(kindOf(u"Task"_s), Kind::Task);
    EXPECT_EQ(kindOf(u"Demande"_s), Kind::Other);
    EXPECT_EQ(kindOf(QString()), Kind::Other);
}

TEST(IssueType, EarlierFamilyWinsWhereTwoMatch)
{
    EXPECT_EQ(kindOf(u"Bug story"_s), Kind::Bug);
    EXPECT_EQ(kindOf(u"Story task"_s), Kind::Story);
}

} // namespace
