#include "screens/composer/IssueComposition.h"

#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

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

    std::unique_ptr<IssueComposition> composition = std::make_unique<IssueComposition>();
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
