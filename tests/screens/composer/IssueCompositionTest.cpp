#include "screens/composer/IssueComposition.h"

#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class IssueCompositionTest : public AppStoreFixture
{
protected:
    IssueCompositionTest()
    {
        startSession();
        composition->setStore(store.get());
        composition->setIssueKey(u"SUP-1"_s);
        composition->setProjectKey(u"SUP"_s);
    }

    void write(const QString &text) { composition->edit(text, int(text.size())); }
    QString lastToast() const
    {
        return store->toasts().isEmpty() ? QString() : store->toasts().last().message;
    }

    /// The text that the editor was last asked to show.
    QString restored() const
    {
        return replaced.isEmpty() ? QString() : replaced.last()[2].toString();
    }
    /// A composer of SUP-1 in another view.
    std::unique_ptr<IssueComposition> fresh()
    {
        auto made = std::make_unique<IssueComposition>();
        made->setStore(store.get());
        made->setIssueKey(u"SUP-1"_s);
        return made;
    }

    std::unique_ptr<IssueComposition> composition = std::make_unique<IssueComposition>();
    QSignalSpy replaced{composition.get(), &Composition::replaced};
};

TEST_F(IssueCompositionTest, APostedReplyIsConfirmed)
{
    write(u"Merci"_s);
    composition->send();
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    EXPECT_EQ(service->addCommentCalls[0].argument<0>(), u"SUP-1"_s);
    EXPECT_FALSE(service->addCommentCalls[0].argument<2>());
    service->addCommentCalls[0].finish({});
    EXPECT_EQ(lastToast(), u"Commentaire envoyé"_s);
    EXPECT_FALSE(composition->canSend()) << "the text is removed";
}

TEST_F(IssueCompositionTest, APostedNoteIsConfirmedAsOne)
{
    composition->setAllowsInternal(true);
    composition->setIsInternal(true);
    write(u"Entre nous"_s);
    composition->send();
    EXPECT_TRUE(service->addCommentCalls[0].argument<2>());
    composition->setIsInternal(false);
    service->addCommentCalls[0].finish({});
    EXPECT_EQ(lastToast(), u"Note interne ajoutée"_s) << "whatever is chosen by then";
    EXPECT_EQ(store->toasts().last().symbol, u"lock.fill"_s);
}

TEST_F(IssueCompositionTest, ARefusedCommentStaysAndIsReportedOnce)
{
    write(u"Merci"_s);
    composition->send();
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(store->toasts().size(), 1);
    EXPECT_TRUE(composition->canSend());
}

TEST_F(IssueCompositionTest, AnotherIssueBeginsAnEmptyReplyWhateverArrivesLate)
{
    composition->setAllowsInternal(true);
    composition->setIsInternal(true);
    write(u"Entre nous"_s);
    composition->send();
    composition->setIssueKey(u"SUP-2"_s);
    EXPECT_FALSE(composition->isInternal());
    EXPECT_FALSE(composition->canSend());
    EXPECT_FALSE(composition->isSending());
    write(u"Bonjour"_s);
    service->addCommentCalls[0].finish({});
    EXPECT_TRUE(composition->canSend()) << "the late answer removes nothing";
    composition->send();
    EXPECT_EQ(service->addCommentCalls[1].argument<0>(), u"SUP-2"_s);
    EXPECT_FALSE(service->addCommentCalls[1].argument<2>());
}

TEST_F(IssueCompositionTest, ACommentIsConfirmedEvenIfTheComposerHasGone)
{
    write(u"Merci"_s);
    composition->send();
    composition.reset();
    service->addCommentCalls[0].finish({});
    EXPECT_EQ(lastToast(), u"Commentaire envoyé"_s);
}

TEST_F(IssueCompositionTest, TheServerIsSearchedForMentions)
{
    write(u"@no"_s);
    clock.advance(250ms);
    ASSERT_EQ(service->searchUsersCalls.count(), 1);
    service->searchUsersCalls[0].finish({sampleUser(u"n"_s, u"Nora Vidal"_s)});
    ASSERT_TRUE(composition->hasSuggestions());
    composition->pick(0);
    composition->send();
    ASSERT_EQ(service->addCommentCalls.count(), 1);
}

TEST_F(IssueCompositionTest, FilesThatArriveForThePreviousIssueAreNotLinkedInTheNextOne)
{
    composition->attach({QUrl(u"file:///tmp/a.png"_s)});
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    composition->setIssueKey(u"SUP-2"_s);
    Attachment stored;
    stored.filename = u"a.png"_s;
    stored.contentURL = QUrl(u"https://exemple.fr/a"_s);
    service->uploadAttachmentsCalls[0].finish({stored});
    EXPECT_FALSE(composition->canSend());
}

// Abandoned texts -----------------------------------------------------------------------------------------------------

TEST_F(IssueCompositionTest, AnUnsentTextIsOfferedAgainOnItsIssueOnly)
{
    write(u"Merci"_s);
    EXPECT_FALSE(composition->canResume());
    composition->setIssueKey(u"SUP-2"_s);
    EXPECT_FALSE(composition->canResume());
    composition->setIssueKey(u"SUP-1"_s);
    EXPECT_TRUE(composition->canResume());
    write(u"x"_s);
    EXPECT_FALSE(composition->canResume()) << "something was typed";
    composition->resume();
    EXPECT_EQ(restored(), QString());
    write({});
    composition->resume();
    EXPECT_EQ(restored(), u"Merci"_s);
    EXPECT_FALSE(composition->canResume());
}

TEST_F(IssueCompositionTest, ATextOfAComposerThatHasGoneIsOfferedInAnotherWindow)
{
    IssueComposition other;
    other.setStore(store.get());
    other.setIssueKey(u"SUP-1"_s);
    write(u"Merci"_s);
    EXPECT_FALSE(other.canResume());
    composition.reset();
    EXPECT_TRUE(other.canResume());
}

TEST_F(IssueCompositionTest, AnInternalNoteThatIsTakenUpStaysInternalAndKeepsItsMentions)
{
    composition->setAllowsInternal(true);
    composition->setIsInternal(true);
    write(u"@no"_s);
    clock.advance(250ms);
    service->searchUsersCalls[0].finish({sampleUser(u"n"_s, u"Nora Vidal"_s)});
    composition->pick(0);
    composition->setIssueKey(u"SUP-2"_s);
    EXPECT_FALSE(composition->isInternal());
    composition->setAllowsInternal(false);
    composition->setIssueKey(u"SUP-1"_s);
    composition->resume();
    EXPECT_TRUE(composition->isInternal()) << "even before the project is known";
    EXPECT_TRUE(composition->hasReaders());
    EXPECT_FALSE(composition->hasSuggestions());
    composition->send();
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    EXPECT_TRUE(service->addCommentCalls[0].argument<2>());
    EXPECT_EQ(ADF::mentionedUsers(service->addCommentCalls[0].argument<1>()).size(), 1);
}

TEST_F(IssueCompositionTest, AReplyThatIsTakenUpIsAReply)
{
    composition->setAllowsInternal(true);
    write(u"Merci"_s);
    composition->setIssueKey(u"SUP-2"_s);
    composition->setIssueKey(u"SUP-1"_s);
    composition->setIsInternal(true);
    composition->resume();
    EXPECT_FALSE(composition->isInternal());
}

TEST_F(IssueCompositionTest, ACommentThatIsPostedAfterTheComposerWentIsNotOffered)
{
    write(u"Merci"_s);
    composition->send();
    composition.reset();
    EXPECT_FALSE(fresh()->canResume()) << "it may still be posted";
    service->addCommentCalls[0].finish({});
    EXPECT_FALSE(fresh()->canResume());
}

TEST_F(IssueCompositionTest, ACommentThatIsRefusedAfterTheComposerWentIsOffered)
{
    composition->setAllowsInternal(true);
    composition->setIsInternal(true);
    write(u"Entre nous"_s);
    composition->send();
    composition.reset();
    clock.advance(1500ms);
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    const auto next = fresh();
    ASSERT_TRUE(next->canResume());
    next->resume();
    EXPECT_TRUE(next->isInternal());
}

TEST_F(IssueCompositionTest, ACommentThatIsRefusedAfterTheIssueChangedIsOffered)
{
    write(u"Merci"_s);
    composition->send();
    composition->setIssueKey(u"SUP-2"_s);
    write(u"Bonjour"_s);
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_TRUE(composition->canSend()) << "what is typed here stays";
    composition->setIssueKey(u"SUP-1"_s);
    composition->resume();
    EXPECT_EQ(restored(), u"Merci"_s);
}

TEST_F(IssueCompositionTest, WhatWasTypedAfterASentTextIsOfferedAloneOrBehindTheRefusedText)
{
    write(u"Merci"_s);
    composition->send();
    write(u"Merci, et aussi"_s);
    composition->setIssueKey(u"SUP-2"_s);
    composition->setIssueKey(u"SUP-1"_s);
    ASSERT_TRUE(composition->canResume());
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    composition->resume();
    EXPECT_EQ(restored(), u"Merci\n\n, et aussi"_s);
}

TEST_F(IssueCompositionTest, ARefusedCommentInAnOpenComposerStaysThereAndIsNotOfferedTwice)
{
    write(u"Merci"_s);
    composition->send();
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_TRUE(composition->canSend());
    EXPECT_FALSE(fresh()->canResume());
}

TEST_F(IssueCompositionTest, TheEndOfTheSessionForgetsWhatIsTypedAndWhatWasAbandoned)
{
    write(u"Merci"_s);
    composition->setIssueKey(u"SUP-2"_s);
    write(u"Bonjour"_s);
    store->signOut();
    EXPECT_FALSE(composition->canSend());
    EXPECT_FALSE(composition->canResume());
    composition->setIssueKey(u"SUP-1"_s);
    EXPECT_FALSE(composition->canResume());
}

TEST_F(IssueCompositionTest, ACommentThatASignOutInterruptsIsNotOfferedInTheNextSession)
{
    write(u"Merci"_s);
    composition->send();
    composition.reset();
    store->signOut();
    startSession();
    service->addCommentCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_FALSE(fresh()->canResume());
}
