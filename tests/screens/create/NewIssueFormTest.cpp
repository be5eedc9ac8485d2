#include "screens/create/NewIssueForm.h"

#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "screens/create/OpenForm.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Kind = NewIssueOptions::Kind;

class NewIssueFormTest : public OpenForm
{
protected:
    NewIssueFormTest() { answerProject(); }

    void answerCreation(const QString &key)
    {
        answerEverything();
        service->createCalls.last().finish(key);
        holdEverything();
    }

    QSignalSpy finished{form.get(), &NewIssueForm::finished};
    QSignalSpy restarted{form.get(), &NewIssueForm::restarted};
};

TEST_F(NewIssueFormTest, ItBeginsInTheDefaultProjectWithItsDefaultType)
{
    EXPECT_EQ(form->issue().projectKey, u"MOB"_s);
    EXPECT_EQ(typeName(), u"Tâche"_s);
    EXPECT_EQ(form->property("projectTitle"), sampleProject(u"MOB"_s).name);
    EXPECT_EQ(form->property("priorityTitle"), u"Priorité"_s);
    EXPECT_EQ(form->property("assigneeTitle"), u"Non assigné"_s);
    EXPECT_EQ(form->property("labelsTitle"), u"Étiquettes"_s);
}

TEST_F(NewIssueFormTest, FromTheScreenOfAProjectItBeginsInThatProject)
{
    store->newIssue(u"SUP"_s);
    NewIssueForm other;
    other.setStore(store.get());
    other.begin();
    EXPECT_EQ(other.issue().projectKey, u"SUP"_s);
}

TEST_F(NewIssueFormTest, ATitleOfBlanksIsNotSent)
{
    EXPECT_FALSE(form->canSubmit());
    form->setSummary(u" \n "_s);
    EXPECT_FALSE(form->canSubmit());
    form->submit();
    EXPECT_EQ(service->createCalls.count(), 0);
    form->setSummary(u"Panne"_s);
    EXPECT_TRUE(form->canSubmit());
}

TEST_F(NewIssueFormTest, AnotherProjectRemovesTypeAndAssigneeAndKeepsTheRest)
{
    form->setSummary(u"Panne"_s);
    choose(Kind::Type, u"Story"_s);
    choose(Kind::Assignee, u"Zoé"_s);
    choose(Kind::Priority, u"Haute"_s);
    form->toggleLabel(u"ios"_s);
    choose(Kind::Project, sampleProject(u"SUP"_s).name);
    EXPECT_EQ(form->issue().typeID, std::nullopt);
    EXPECT_EQ(form->issue().assignee, std::nullopt);
    EXPECT_EQ(form->issue().priority->id(), u"1"_s);
    EXPECT_EQ(form->issue().labels, QStringList{u"ios"_s});
    EXPECT_EQ(form->summary(), u"Panne"_s);
    answerProject();
    EXPECT_EQ(service->projectCalls.last().argument(), u"SUP"_s);
}

TEST_F(NewIssueFormTest, ChoosingTheSameProjectAgainChangesNothing)
{
    choose(Kind::Assignee, u"Zoé"_s);
    choose(Kind::Project, sampleProject(u"MOB"_s).name);
    EXPECT_EQ(form->issue().assignee->name, u"Zoé"_s);
}

TEST_F(NewIssueFormTest, AProjectWithSubtasksOnlyHasNoTypeAndCanStillCreate)
{
    choose(Kind::Project, sampleProject(u"SUP"_s).name);
    answerProject();
    EXPECT_EQ(titles(Kind::Type), QStringList());
    EXPECT_EQ(form->property("typeTitle"), u"Type"_s);
    form->setSummary(u"Panne"_s);
    form->submit();
    EXPECT_EQ(sent().issueTypeID, std::nullopt);
}

TEST_F(NewIssueFormTest, EveryChoiceIsSentOnce)
{
    form->setSummary(u" Panne "_s);
    form->setDetails(u"Vu avec @Zoé"_s);
    choose(Kind::Type, u"Story"_s);
    choose(Kind::Priority, u"Basse"_s);
    choose(Kind::Assignee, u"Noam Tessier"_s);
    form->toggleLabel(u"ios"_s);
    form->submit();
    form->submit();
    ASSERT_EQ(service->createCalls.count(), 1);
    const IssueDraft draft = sent();
    EXPECT_EQ(draft.summary, u"Panne"_s);
    EXPECT_EQ(draft.issueTypeID, u"id Story"_s);
    EXPECT_EQ(draft.priorityID, u"2"_s);
    EXPECT_EQ(draft.assigneeID, u"me"_s);
    EXPECT_EQ(draft.labels, QStringList{u"ios"_s});
    ASSERT_TRUE(draft.description);
    EXPECT_EQ(ADF::mentionedUsers(*draft.description).size(), 1)
        << "the name of an assignable user becomes a mention";
}

TEST_F(NewIssueFormTest, TheDefaultTypeIsSentWhenNoneWasChosen)
{
    form->setSummary(u"Panne"_s);
    form->submit();
    EXPECT_EQ(sent().issueTypeID, u"id Tâche"_s);
}

TEST_F(NewIssueFormTest, ACreatedIssueFinishesTheFormAndLeavesNoDraft)
{
    form->setSummary(u"Panne"_s);
    form->submit();
    EXPECT_TRUE(form->isSubmitting());
    EXPECT_FALSE(form->canSubmit());
    answerCreation(u"MOB-9"_s);
    EXPECT_FALSE(form->isSubmitting());
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(store->inspectorKey(), u"MOB-9"_s);
    form->abandon();
    EXPECT_EQ(place().text(), std::nullopt);
}

TEST_F(NewIssueFormTest, ASeriesKeepsTheChoicesAndEmptiesTheTexts)
{
    form->setCreatesMore(true);
    form->setSummary(u"Panne"_s);
    form->setDetails(u"Depuis hier"_s);
    choose(Kind::Type, u"Story"_s);
    choose(Kind::Assignee, u"Zoé"_s);
    form->toggleLabel(u"ios"_s);
    form->submit();
    answerCreation(u"MOB-9"_s);
    EXPECT_EQ(restarted.count(), 1);
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(form->summary(), QString());
    EXPECT_EQ(form->details(), QString());
    EXPECT_EQ(typeName(), u"Story"_s);
    EXPECT_EQ(form->issue().assignee->name, u"Zoé"_s);
    EXPECT_EQ(form->issue().labels, QStringList{u"ios"_s});
    form->setSummary(u"Une autre"_s);
    form->submit();
    EXPECT_EQ(service->createCalls.count(), 2);
}

TEST_F(NewIssueFormTest, AFailureKeepsEveryField)
{
    form->setCreatesMore(true);
    form->setSummary(u"Panne"_s);
    form->setDetails(u"Depuis hier"_s);
    choose(Kind::Priority, u"Haute"_s);
    const NewIssue before = form->issue();
    form->submit();
    service->createCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(form->issue(), before);
    EXPECT_FALSE(form->isSubmitting());
    EXPECT_TRUE(form->canSubmit());
    EXPECT_EQ(finished.count() + restarted.count(), 0);
    EXPECT_EQ(store->toasts().size(), 1);
    form->submit();
    EXPECT_EQ(service->createCalls.count(), 2);
}

// The abandoned text --------------------------------------------------------------------------------------------------

TEST_F(NewIssueFormTest, AnAbandonedTextIsOfferedToTheNextFormUntilSomethingIsTyped)
{
    form->setSummary(u"Panne"_s);
    form->setDetails(u"Depuis hier"_s);
    form->abandon();
    NewIssueForm next;
    next.setStore(store.get());
    EXPECT_TRUE(next.canResume());
    next.setSummary(u"x"_s);
    EXPECT_FALSE(next.canResume());
    next.resume();
    EXPECT_EQ(next.summary(), u"x"_s);
    next.setSummary({});
    next.resume();
    EXPECT_EQ(next.summary(), u"Panne"_s);
    EXPECT_EQ(next.details(), u"Depuis hier"_s);
    EXPECT_EQ(place().text(), std::nullopt);
}

TEST_F(NewIssueFormTest, AFormWithoutWordsDoesNotReplaceTheAbandonedText)
{
    place().keep({.title = u"Panne"_s});
    form->setDetails(u" \n"_s);
    form->abandon();
    EXPECT_EQ(abandonedTitle(), u"Panne"_s);
}

TEST_F(NewIssueFormTest, TheEndOfTheSessionForgetsTheAbandonedText)
{
    place().keep({.title = u"Panne"_s});
    store->signOut();
    EXPECT_EQ(place().text(), std::nullopt);
}

TEST_F(NewIssueFormTest, AFormThatIsClosedDuringTheCreationLosesItsTextOnlyIfItWasCreated)
{
    form->setSummary(u"Panne"_s);
    form->submit();
    form->abandon();
    form.reset();
    EXPECT_EQ(abandonedTitle(), u"Panne"_s);
    answerCreation(u"MOB-9"_s);
    EXPECT_EQ(place().text(), std::nullopt);
}

TEST_F(NewIssueFormTest, AFormThatIsClosedDuringARefusedCreationLeavesItsText)
{
    form->setSummary(u"Panne"_s);
    form->submit();
    form->abandon();
    form.reset();
    service->createCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(abandonedTitle(), u"Panne"_s);
}

TEST_F(NewIssueFormTest, AnAnswerAfterTheEndOfTheSessionIsNoCreation)
{
    form->setSummary(u"Panne"_s);
    form->submit();
    store->signOut();
    service->createCalls.last().finish(u"MOB-9"_s);
    EXPECT_FALSE(form->isSubmitting());
    EXPECT_EQ(finished.count(), 0);
}

/// A form that is sent before the types of its project are known.
class EarlyFormTest : public OpenForm
{
protected:
    EarlyFormTest()
    {
        form->setSummary(u"Panne"_s);
        form->submit();
    }
};

TEST_F(EarlyFormTest, WaitsForTheTypesAndIsSentOnce)
{
    EXPECT_TRUE(form->isSubmitting());
    EXPECT_EQ(service->createCalls.count(), 0);
    answerProject();
    EXPECT_EQ(service->createCalls.count(), 1);
    clock.advance(std::chrono::seconds(10));
    EXPECT_EQ(service->createCalls.count(), 1);
}

TEST_F(EarlyFormTest, IsSentWithoutATypeIfTheTypesDoNotArriveInTenSeconds)
{
    clock.advance(std::chrono::seconds(9));
    EXPECT_EQ(service->createCalls.count(), 0);
    clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(service->createCalls.count(), 1);
    answerProject();
    EXPECT_EQ(service->createCalls.count(), 1);
}

TEST_F(EarlyFormTest, CreatesNothingOnceItIsClosedAndLeavesItsText)
{
    form->abandon();
    form.reset();
    clock.advance(std::chrono::seconds(10));
    EXPECT_EQ(service->createCalls.count(), 0);
    EXPECT_EQ(abandonedTitle(), u"Panne"_s);
}

TEST_F(EarlyFormTest, CreatesNothingAfterItsSession)
{
    store->signOut();
    clock.advance(std::chrono::seconds(10));
    EXPECT_EQ(service->createCalls.count(), 0);
    EXPECT_FALSE(form->isSubmitting());
}
