#include "model/IssueStatus.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

IssueStatus named(const QString &name, const std::optional<QString> &key = std::nullopt)
{
    return IssueStatus(u"1"_s, name, key);
}

TEST(IssueStatus, KeepsIdAndNameAsGiven)
{
    const IssueStatus status(u"10001"_s, u" En Cours "_s, u"indeterminate"_s);
    EXPECT_EQ(status.id(), u"10001"_s);
    EXPECT_EQ(status.name(), u" En Cours "_s);
}

TEST(IssueStatus, SpellingsOfDoneShareOneGroup)
{
    for (const QString &name :
         {u"Terminé"_s, u"TERMINÉ"_s, u"  \ttermine "_s, u"Done"_s, u"Résolue"_s, u"Fermée"_s})
        EXPECT_EQ(named(name).groupKey(), u"done"_s) << name.toStdString();
}

TEST(IssueStatus, LongNameOfWorkInProgressJoinsItsGroup)
{
    EXPECT_EQ(named(u"En Cours de Traitement"_s).groupKey(), u"inprogress"_s);
    EXPECT_EQ(named(u"In Progress"_s).groupKey(), named(u"En cours"_s).groupKey());
}

TEST(IssueStatus, BothApostrophesOfWontDoAreKnown)
{
    EXPECT_EQ(named(u"Won't Do"_s).groupKey(), u"cancelled"_s);
    EXPECT_EQ(named(u"Won’t Do"_s).groupKey(), u"cancelled"_s);
}

TEST(IssueStatus, UnknownNameIsItsOwnGroupInFoldedForm)
{
    const IssueStatus status = named(u" Staging Élargi "_s);
    EXPECT_EQ(status.groupKey(), u"staging elargi"_s);
    EXPECT_EQ(named(u"Staging"_s).groupKey(), u"staging"_s);
}

TEST(IssueStatus, ANameWithALigatureIsAnotherGroupThanOneWithItsTwoLetters)
{
    const IssueStatus ligature(u"1"_s, u"Mise en Œuvre"_s, u"new"_s);
    const IssueStatus letters(u"2"_s, u"Mise en oeuvre"_s, u"new"_s);
    EXPECT_EQ(ligature.groupKey(), u"mise en œuvre"_s);
    EXPECT_NE(ligature.groupKey(), letters.groupKey());
}

TEST(IssueStatus, OnlySpacesAndTabsAreTrimmedFromTheGroup)
{
    EXPECT_EQ(named(u"\ndone"_s).groupKey(), u"\ndone"_s);
}

TEST(IssueStatus, BlankNameHasAnEmptyGroup)
{
    EXPECT_EQ(named(u"  "_s).groupKey(), QString());
}

TEST(IssueStatus, DoneWithWordsOfCancellingIsCancelled)
{
    for (const QString &name :
         {u"Won't fix"_s, u"Duplicate"_s, u"Annulé"_s, u"Rejeté"_s, u"Refusée"_s, u"Doublon"_s,
          u"CANCELED"_s, u"Abandonné"_s, u"wontfix"_s, u"Rejected"_s})
        EXPECT_EQ(named(name, u"done"_s).category(), StatusCategory::Cancelled)
            << name.toStdString();
    EXPECT_EQ(named(u"Livré"_s, u"done"_s).category(), StatusCategory::Done);
}

TEST(IssueStatus, TypographicApostropheIsNoWordOfCancellingForTheCategory)
{
    EXPECT_EQ(named(u"Won’t do"_s, u"done"_s).category(), StatusCategory::Done);
}

TEST(IssueStatus, NewNamedCancelledIsStillToDo)
{
    EXPECT_EQ(named(u"Cancelled"_s, u"new"_s).category(), StatusCategory::Todo);
    EXPECT_EQ(named(u"Cancelled"_s, u"new"_s).groupKey(), u"cancelled"_s);
}

TEST(IssueStatus, IndeterminateIsInProgressWhateverTheName)
{
    EXPECT_EQ(named(u"Backlog"_s, u"indeterminate"_s).category(), StatusCategory::InProgress);
}

TEST(IssueStatus, OtherKeysTellBacklogByName)
{
    EXPECT_EQ(named(u"Product BACKLOG"_s, u"new"_s).category(), StatusCategory::Backlog);
    EXPECT_EQ(named(u"Icebox"_s).category(), StatusCategory::Backlog);
    EXPECT_EQ(named(u"À faire"_s, u"undefined"_s).category(), StatusCategory::Todo);
    EXPECT_EQ(named(u"À faire"_s).category(), StatusCategory::Todo);
}

TEST(IssueStatusGuessed, NameWithTestIsInProgress)
{
    EXPECT_EQ(IssueStatus::guessed(u"Prêt à TESTER"_s).category(), StatusCategory::InProgress);
}

TEST(IssueStatusGuessed, ToDoIsToDoAndItsIdIsTheFoldedName)
{
    const IssueStatus status = IssueStatus::guessed(u"To Do"_s);
    EXPECT_EQ(status.category(), StatusCategory::Todo);
    EXPECT_EQ(status.id(), u"name:to do"_s);
    EXPECT_EQ(status.name(), u"To Do"_s);
    EXPECT_EQ(IssueStatus::guessed(u" Élu "_s).id(), u"name: elu "_s);
}

TEST(IssueStatusGuessed, WordsOfTheEndWinOverWordsOfProgress)
{
    EXPECT_EQ(IssueStatus::guessed(u"Tests terminés"_s).category(), StatusCategory::Done);
    EXPECT_EQ(IssueStatus::guessed(u"Review cancelled"_s).category(), StatusCategory::Cancelled);
}

TEST(IssueStatusGuessed, BacklogIsTheBacklog)
{
    EXPECT_EQ(IssueStatus::guessed(u"Backlog"_s).category(), StatusCategory::Backlog);
}

TEST(IssueStatusProgress, IsZeroOutsideWorkInProgress)
{
    EXPECT_EQ(named(u"In review"_s, u"new"_s).progress(), 0.0);
    EXPECT_EQ(named(u"Done"_s, u"done"_s).progress(), 0.0);
}

TEST(IssueStatusProgress, IsHalfInProgressAndThreeQuartersUnderReview)
{
    EXPECT_EQ(named(u"En cours"_s, u"indeterminate"_s).progress(), 0.5);
    for (const QString &name :
         {u"En revue"_s, u"Recette"_s, u"À valider"_s, u"Vérification"_s, u"QA"_s, u"relecture"_s})
        EXPECT_EQ(named(name, u"indeterminate"_s).progress(), 0.75) << name.toStdString();
}

TEST(IssueStatusDisplayName, IsTheLabelOfAKnownGroupElseTheName)
{
    EXPECT_EQ(named(u"in progress"_s).displayName(), u"En cours"_s);
    EXPECT_EQ(named(u"OPEN"_s).displayName(), u"À faire"_s);
    EXPECT_EQ(named(u"Staging"_s).displayName(), u"Staging"_s);
}

TEST(IssueStatusDisplayName, ReadsTheWholeTableOfLabels)
{
    const QHash<QString, QString> expected{
        {u"backlog"_s, u"Backlog"_s},
        {u"todo"_s, u"À faire"_s},
        {u"inprogress"_s, u"En cours"_s},
        {u"inreview"_s, u"En revue"_s},
        {u"testing"_s, u"En test"_s},
        {u"blocked"_s, u"Bloqué"_s},
        {u"onhold"_s, u"En pause"_s},
        {u"waitingcustomer"_s, u"En attente du client"_s},
        {u"waitingsupport"_s, u"En attente du support"_s},
        {u"done"_s, u"Terminé"_s},
        {u"cancelled"_s, u"Annulé"_s},
    };
    EXPECT_EQ(IssueStatus::canonicalLabels(), expected);
}

TEST(IssueStatus, EveryFieldCountsForEquality)
{
    const IssueStatus status(u"1"_s, u"En cours"_s, u"indeterminate"_s);
    EXPECT_EQ(status, IssueStatus(u"1"_s, u"En cours"_s, u"indeterminate"_s));
    EXPECT_EQ(qHash(status), qHash(IssueStatus(u"1"_s, u"En cours"_s, u"indeterminate"_s)));
    EXPECT_NE(status, IssueStatus(u"2"_s, u"En cours"_s, u"indeterminate"_s));
    EXPECT_NE(status, IssueStatus(u"1"_s, u"En Cours"_s, u"indeterminate"_s));
    EXPECT_NE(status, IssueStatus(u"1"_s, u"En cours"_s, u"new"_s));
}

TEST(StatusCategory, IsClosedWhenNoWorkIsLeft)
{
    EXPECT_TRUE(isClosed(StatusCategory::Done));
    EXPECT_TRUE(isClosed(StatusCategory::Cancelled));
    EXPECT_FALSE(isClosed(StatusCategory::Backlog));
    EXPECT_FALSE(isClosed(StatusCategory::Todo));
    EXPECT_FALSE(isClosed(StatusCategory::InProgress));
}

} // namespace
