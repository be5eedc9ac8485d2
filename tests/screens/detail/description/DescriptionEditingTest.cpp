#include "screens/detail/description/DescriptionEditing.h"

#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "screens/detail/description/Descriptions.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class DescriptionEditingTest : public AppStoreFixture
{
protected:
    DescriptionEditingTest() { startSession(); }

    static Issue described(const QString &key, const QString &markdown)
    {
        Issue issue = sampleIssue(key);
        issue.hasDetails = true;
        if (!markdown.isEmpty())
            issue.description = ADFMarkdown::document(markdown);
        return issue;
    }
    void answer(const Issue &issue) { service->issueCalls.last().finish(issue); }
    void open(const Issue &issue)
    {
        open(issue.key);
        answer(issue);
    }
    void open(const QString &key)
    {
        opened.setKey(key);
        opened.setStore(store.get());
        editing->setIssue(&opened);
    }
    void refresh(const Issue &issue)
    {
        opened.load();
        answer(issue);
    }
    QString shown() const { return ADF::plainText(editing->document()); }

    OpenIssue opened;
    std::unique_ptr<DescriptionEditing> editing = std::make_unique<DescriptionEditing>();
};

// Reading -------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionEditingTest, AnIssueOfAListIsLoadingUntilItsDetailsAreKnown)
{
    reloadWith({sampleIssue(u"MOB-1"_s)});
    open(u"MOB-1"_s);
    EXPECT_EQ(editing->content(), DescriptionEditing::Loading);
    answer(described(u"MOB-1"_s, {}));
    EXPECT_EQ(editing->content(), DescriptionEditing::Missing);
}

TEST_F(DescriptionEditingTest, ADescriptionIsShownAsSoonAsItIsKnown)
{
    Issue listed = described(u"MOB-1"_s, u"Bonjour"_s);
    listed.hasDetails = false;
    reloadWith({listed});
    open(u"MOB-1"_s);
    EXPECT_EQ(editing->content(), DescriptionEditing::Document);
    EXPECT_EQ(shown(), u"Bonjour"_s);
}

TEST_F(DescriptionEditingTest, ADescriptionWithoutWordsIsMissing)
{
    open(described(u"MOB-1"_s, u"   "_s));
    EXPECT_EQ(editing->content(), DescriptionEditing::Missing);
}

TEST_F(DescriptionEditingTest, ADescriptionOfPicturesAloneIsShown)
{
    Issue issue = described(u"MOB-1"_s, {});
    issue.description = Descriptions::rich();
    issue.description->content->remove(0, 2);
    open(issue);
    EXPECT_EQ(editing->content(), DescriptionEditing::Document);
}

TEST_F(DescriptionEditingTest, ANewRecordWithTheSameDescriptionChangesNothing)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    QSignalSpy changed(editing.get(), &DescriptionEditing::documentChanged);
    Issue renamed = described(u"MOB-1"_s, u"Bonjour"_s);
    renamed.summary = u"Autre"_s;
    refresh(renamed);
    EXPECT_EQ(changed.count(), 0);
    refresh(described(u"MOB-1"_s, u"Bonsoir"_s));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(shown(), u"Bonsoir"_s);
}

// Editing -------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionEditingTest, TheTextIsTheMarkdownFormOfTheDescription)
{
    open(described(u"MOB-1"_s, u"## Titre\n\n- [x] **fait**\n\nfin"_s));
    editing->begin();
    EXPECT_TRUE(editing->isEditing());
    EXPECT_EQ(editing->draft(), u"## Titre\n\n- [x] **fait**\n\nfin"_s);
}

TEST_F(DescriptionEditingTest, WithoutADescriptionTheTextIsEmpty)
{
    open(described(u"MOB-1"_s, {}));
    editing->begin();
    EXPECT_TRUE(editing->isEditing());
    EXPECT_EQ(editing->draft(), QString());
}

TEST_F(DescriptionEditingTest, AnUnknownIssueCannotBeEdited)
{
    open(u"MOB-1"_s);
    editing->begin();
    EXPECT_FALSE(editing->isEditing());
}

TEST_F(DescriptionEditingTest, SavingShowsTheNewDescriptionAtOnceAndSendsItOnce)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    EXPECT_FALSE(editing->isEditing());
    EXPECT_EQ(shown(), u"Bonsoir"_s);
    ASSERT_EQ(service->updateCalls.count(), 1);
    EXPECT_EQ(service->updateCalls[0].argument<0>(), u"MOB-1"_s);
    editing->save();
    EXPECT_EQ(service->updateCalls.count(), 1) << "nothing is edited any more";
}

TEST_F(DescriptionEditingTest, SavingATextWithoutWordsClearsTheDescription)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u" \n "_s);
    editing->save();
    EXPECT_EQ(editing->content(), DescriptionEditing::Missing);
}

TEST_F(DescriptionEditingTest, CancellingChangesNothing)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->cancel();
    EXPECT_FALSE(editing->isEditing());
    EXPECT_EQ(shown(), u"Bonjour"_s);
    EXPECT_EQ(service->updateCalls.count(), 0);
    editing->begin();
    EXPECT_EQ(editing->draft(), u"Bonjour"_s) << "the next editing begins afresh";
}

TEST_F(DescriptionEditingTest, ARefreshDuringEditingDoesNotTouchTheText)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    QSignalSpy changed(editing.get(), &DescriptionEditing::draftChanged);
    refresh(described(u"MOB-1"_s, u"D'un autre"_s));
    refresh(described(u"MOB-1"_s, {}));
    EXPECT_TRUE(editing->isEditing());
    EXPECT_EQ(editing->draft(), u"Bonsoir"_s);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(DescriptionEditingTest, AnotherIssueEndsTheEditing)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    opened.setKey(u"MOB-2"_s);
    EXPECT_FALSE(editing->isEditing());
    EXPECT_EQ(editing->content(), DescriptionEditing::Loading);
    editing->save();
    EXPECT_EQ(service->updateCalls.count(), 0);
    answer(described(u"MOB-2"_s, u"Deux"_s));
    EXPECT_EQ(shown(), u"Deux"_s);
}

TEST_F(DescriptionEditingTest, TheEndOfTheSessionEndsTheEditing)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    store->signOut();
    EXPECT_FALSE(editing->isEditing());
    EXPECT_EQ(editing->draft(), QString());
}

TEST_F(DescriptionEditingTest, ARefusedDescriptionIsRestoredAndReportedOnce)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    service->updateCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(shown(), u"Bonjour"_s);
    EXPECT_EQ(store->toasts().size(), 1);
}

TEST_F(DescriptionEditingTest, ARefusalDuringTheNextEditingDoesNotTouchItsText)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    editing->begin();
    editing->setDraft(u"Bonsoir à tous"_s);
    service->updateCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(editing->draft(), u"Bonsoir à tous"_s);
}

// Losses --------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionEditingTest, RichContentIsAnnouncedWithItsLosses)
{
    Issue issue = described(u"MOB-1"_s, {});
    issue.description = Descriptions::rich();
    open(issue);
    editing->begin();
    EXPECT_TRUE(editing->simplifies());
    EXPECT_EQ(editing->losses(), u"1 image, 1 tableau"_s);
}

TEST_F(DescriptionEditingTest, PlainContentLosesNothing)
{
    open(described(u"MOB-1"_s, u"## Titre\n\n**gras** et `code`"_s));
    editing->begin();
    EXPECT_FALSE(editing->simplifies());
    EXPECT_EQ(editing->losses(), QString());
}

TEST_F(DescriptionEditingTest, AnExpandWithATableWarnsAndTheTableStandsInItsPlace)
{
    Issue issue = described(u"MOB-1"_s, {});
    issue.description = Descriptions::rich();
    QList<ADFNode> &blocks = *issue.description->content;
    blocks = {blocks[0], Descriptions::node(u"expand"_s, {blocks[1]}), blocks[0]};
    open(issue);
    editing->begin();
    EXPECT_TRUE(editing->simplifies());
    EXPECT_EQ(editing->draft(), u"Avant\n\n| A |\n| --- |\n\nAvant"_s);
}

TEST_F(DescriptionEditingTest, AMentionThatComesBackIsNoLoss)
{
    ADFNode mention;
    mention.type = u"mention"_s;
    mention.attrs = ADFAttributes{{u"id"_s, u"nora"_s}, {u"text"_s, u"@Nora Vidal"_s}};
    Issue issue = described(u"MOB-1"_s, u"Pour "_s);
    issue.description->content->first().content->append(mention);
    open(issue);
    editing->begin();
    EXPECT_EQ(editing->draft(), u"Pour @Nora Vidal"_s);
    EXPECT_EQ(editing->losses(), QString());
    editing->save();
    EXPECT_EQ(ADF::mentionedUsers(editing->document()).size(), 1);
}

// Abandoned texts -----------------------------------------------------------------------------------------------------

TEST_F(DescriptionEditingTest, ACancelledTextIsOfferedToTheNextEditingUntilSomethingIsTyped)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    EXPECT_FALSE(editing->canResume());
    editing->setDraft(u"Bonsoir"_s);
    editing->cancel();
    EXPECT_FALSE(editing->canResume()) << "nothing is edited";
    editing->begin();
    EXPECT_TRUE(editing->canResume());
    editing->setDraft(u"x"_s);
    EXPECT_FALSE(editing->canResume());
    editing->setDraft(u"Bonjour"_s);
    QSignalSpy resumed(editing.get(), &DescriptionEditing::resumed);
    editing->resume();
    ASSERT_EQ(resumed.count(), 1);
    EXPECT_EQ(resumed[0][0], u"Bonsoir"_s);
    editing->resume();
    EXPECT_EQ(resumed.count(), 1) << "it was taken";
}

TEST_F(DescriptionEditingTest,
       HidingTheInspectorWhileEditingTheDescriptionDiscardsTheDraftAndItIsOffered)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing = std::make_unique<DescriptionEditing>();
    editing->setIssue(&opened);
    EXPECT_FALSE(editing->isEditing());
    EXPECT_EQ(shown(), u"Bonjour"_s);
    EXPECT_EQ(service->updateCalls.count(), 0);
    editing->begin();
    EXPECT_EQ(editing->draft(), u"Bonjour"_s);
    EXPECT_TRUE(editing->canResume());
}

TEST_F(DescriptionEditingTest, ATextThatWasNotChangedIsNotKept)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->cancel();
    editing->begin();
    editing->cancel();
    refresh(described(u"MOB-1"_s, u"Autre"_s));
    editing->begin();
    EXPECT_TRUE(editing->canResume()) << "the changed text is still the last one";
}

TEST_F(DescriptionEditingTest, LineBreaksThatTheEditorChangesWereNotTyped)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonjour\n"_s);
    editing->settle();
    editing->cancel();
    editing->begin();
    EXPECT_FALSE(editing->canResume());
}

TEST_F(DescriptionEditingTest, ASavedTextIsNotOffered)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    service->updateCalls[0].finish({});
    editing->begin();
    EXPECT_FALSE(editing->canResume());
}

TEST_F(DescriptionEditingTest, ARefusedTextIsOffered)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    service->updateCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    editing->begin();
    EXPECT_EQ(editing->draft(), u"Bonjour"_s);
    EXPECT_TRUE(editing->canResume());
}

TEST_F(DescriptionEditingTest, ATextThatIsRefusedAfterTheViewWentIsOffered)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    editing->save();
    editing.reset();
    service->updateCalls[0].fail(JiraError(JiraError::InvalidResponse{}));
    editing = std::make_unique<DescriptionEditing>();
    editing->setIssue(&opened);
    editing->begin();
    EXPECT_TRUE(editing->canResume());
}

TEST_F(DescriptionEditingTest, ATextOfAnotherWindowIsOfferedAsSoonAsItIsAbandoned)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    DescriptionEditing other;
    other.setIssue(&opened);
    other.begin();
    other.setDraft(u"Bonsoir"_s);
    editing->begin();
    EXPECT_FALSE(editing->canResume());
    QSignalSpy changed(editing.get(), &DescriptionEditing::canResumeChanged);
    other.cancel();
    EXPECT_TRUE(editing->canResume());
    EXPECT_GE(changed.count(), 1);
}

TEST_F(DescriptionEditingTest, TheNextSessionIsOfferedNothing)
{
    open(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    editing->setDraft(u"Bonsoir"_s);
    store->signOut();
    startSession();
    refresh(described(u"MOB-1"_s, u"Bonjour"_s));
    editing->begin();
    ASSERT_TRUE(editing->isEditing());
    EXPECT_FALSE(editing->canResume());
}
