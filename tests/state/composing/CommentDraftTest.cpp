#include "state/composing/CommentDraft.h"

#include "richtext/ADFQueries.h"
#include "state/composing/DraftedComment.h"
#include "state/edits/DocumentComposing.h"
#include "state/recap/ActivitySamples.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Key = CommentDraft::Key;
using Sample::user;

class CommentDraftTest : public DraftedComment
{
protected:
    QStringList mentioned() const
    {
        QStringList ids;
        for (const JiraUser &each : draft.mentioned())
            ids.append(each.id);
        return ids;
    }
    OutgoingComment send()
    {
        const auto comment = draft.beginSending();
        EXPECT_TRUE(comment);
        return comment.value_or(OutgoingComment());
    }
};

// Suggestions ---------------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, AnEMailAddressSuggestsNobody)
{
    type(u"noam@no"_s);
    EXPECT_EQ(suggested(), QStringList());
    EXPECT_EQ(draft.words(), std::nullopt);
}

TEST_F(CommentDraftTest, AnAtSignAloneSuggestsTheFirstSixCandidates)
{
    for (int i = 0; i < 5; ++i)
        known.append(user(QString::number(i), u"Personne %1"_s.arg(i)));
    type(u"@"_s);
    EXPECT_EQ(suggested(),
              (QStringList{u"noam"_s, u"nora"_s, u"maud"_s, u"lea"_s, u"0"_s, u"1"_s}));
}

TEST_F(CommentDraftTest, AThirdWordClosesTheList)
{
    type(u"@noam tessier"_s);
    EXPECT_EQ(suggested(), QStringList{u"noam"_s});
    type(u" a"_s);
    EXPECT_EQ(suggested(), QStringList());
}

TEST_F(CommentDraftTest, AnAccentedQueryFindsAnUnaccentedNameAndTheReverse)
{
    type(u"@lea"_s);
    EXPECT_EQ(suggested(), QStringList{u"lea"_s});
    moveCaret(0);
    type(u"@nôr"_s);
    EXPECT_EQ(suggested(), QStringList{u"nora"_s});
}

TEST_F(CommentDraftTest, CandidatesThatArriveLateAreSuggested)
{
    type(u"@z"_s);
    EXPECT_EQ(suggested(), QStringList());
    known.append(user(u"zoe"_s, u"Zoé"_s));
    draft.refresh();
    EXPECT_EQ(suggested(), QStringList{u"zoe"_s});
}

// Keys ----------------------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, WithoutSuggestionsEveryKeyHasItsUsualEffect)
{
    type(u"bonjour"_s);
    for (const Key key : {Key::Up, Key::Down, Key::Accept, Key::Dismiss})
        EXPECT_FALSE(draft.take(key));
    EXPECT_EQ(draft.text(), u"bonjour"_s);
}

TEST_F(CommentDraftTest, TheArrowKeysMoveTheHighlightAndStopAtTheEnds)
{
    type(u"@no"_s);
    ASSERT_EQ(suggested().size(), 3);
    EXPECT_TRUE(draft.take(Key::Up));
    EXPECT_EQ(draft.highlighted(), 0);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(draft.take(Key::Down));
    EXPECT_EQ(draft.highlighted(), 2);
    EXPECT_TRUE(draft.take(Key::Up));
    EXPECT_EQ(draft.highlighted(), 1);
}

TEST_F(CommentDraftTest, EachChangeOfTheWordsHighlightsTheFirstSuggestion)
{
    type(u"@n"_s);
    draft.take(Key::Down);
    ASSERT_EQ(draft.highlighted(), 1);
    type(u"o"_s);
    EXPECT_EQ(draft.highlighted(), 0);
}

TEST_F(CommentDraftTest, TheHighlightStaysWithinAListThatBecomesShorter)
{
    type(u"@no"_s);
    draft.setHighlighted(2);
    known.removeFirst();
    draft.refresh();
    EXPECT_EQ(draft.highlighted(), 1);
    draft.take(Key::Accept);
    EXPECT_EQ(mentioned(), QStringList{u"maud"_s});
}

TEST_F(CommentDraftTest, ReturnWithTheListOpenPicksAndDoesNotSend)
{
    type(u"@no"_s);
    EXPECT_TRUE(draft.take(Key::Accept));
    EXPECT_EQ(draft.text(), u"@Noam Tessier "_s);
    EXPECT_FALSE(draft.isSending());
}

TEST_F(CommentDraftTest, AfterEscapeTheListStaysClosedUntilTheWordsChange)
{
    type(u"@no"_s);
    EXPECT_TRUE(draft.take(Key::Dismiss));
    EXPECT_EQ(suggested(), QStringList());
    draft.refresh();
    EXPECT_EQ(suggested(), QStringList());
    EXPECT_FALSE(draft.take(Key::Accept)) << "Return is a line break again";
    type(u"r"_s);
    EXPECT_EQ(suggested(), QStringList{u"nora"_s});
}

// Picking -------------------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, PickingReplacesTheWordsByTheNameAndABlankAndClosesTheList)
{
    type(u"Vu avec @ma"_s);
    draft.pick(0);
    EXPECT_EQ(draft.text(), u"Vu avec @Maud Nogaret "_s);
    EXPECT_EQ(shown, draft.text());
    EXPECT_EQ(shownCaret, draft.text().size());
    EXPECT_EQ(suggested(), QStringList());
    EXPECT_EQ(mentioned(), QStringList{u"maud"_s});
}

TEST_F(CommentDraftTest, PickingANameOfOneWordClosesTheListToo)
{
    known.append(user(u"lea2"_s, u"Léa Martin"_s));
    type(u"@léa"_s);
    draft.pick(0);
    EXPECT_EQ(draft.text(), u"@Léa "_s);
    EXPECT_EQ(suggested(), QStringList()) << "the longer name is not offered";
    EXPECT_FALSE(draft.take(Key::Accept));
}

TEST_F(CommentDraftTest, PickingInTheMiddleKeepsTheTextAfterTheCaret)
{
    type(u"merci  pour la relecture"_s);
    moveCaret(6);
    type(u"@nora"_s);
    draft.pick(0);
    EXPECT_EQ(draft.text(), u"merci @Nora Vidal pour la relecture"_s);
    EXPECT_EQ(shown, draft.text());
    EXPECT_EQ(shownCaret, 18);
}

TEST_F(CommentDraftTest, AUserWhoIsPickedTwiceIsMentionedOnce)
{
    type(u"@nora"_s);
    draft.pick(0);
    type(u"et @nora"_s);
    draft.pick(0);
    EXPECT_EQ(mentioned(), QStringList{u"nora"_s});
}

TEST_F(CommentDraftTest, PickingASuggestionThatDoesNotExistChangesNothing)
{
    type(u"@nora"_s);
    draft.pick(1);
    draft.pick(-1);
    EXPECT_EQ(draft.text(), u"@nora"_s);
    EXPECT_EQ(mentioned(), QStringList());
}

TEST_F(CommentDraftTest, AUserWhoIsTypedByHandIsNotAmongThePicked)
{
    type(u"@Zoé Blanc a raison"_s);
    const auto comment = send();
    EXPECT_EQ(comment.mentions, QList<JiraUser>());
    const ADFNode document = composedDocument(comment.text, comment.mentions);
    EXPECT_TRUE(ADF::mentionedUsers(document).isEmpty()) << "the name stays plain text";
}

TEST_F(CommentDraftTest, APickedUserBecomesAMentionInTheDocument)
{
    type(u"Merci @nor"_s);
    draft.pick(0);
    const auto comment = send();
    const ADFNode document = composedDocument(comment.text, comment.mentions);
    EXPECT_EQ(ADF::mentionedUsers(document).size(), 1);
}

// The buttons ---------------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, TheMentionButtonAddsABlankOnlyAfterAWord)
{
    draft.beginMention();
    EXPECT_EQ(draft.text(), u"@"_s);
    EXPECT_FALSE(suggested().isEmpty());
    type(u"x"_s);
    draft.beginMention();
    EXPECT_EQ(draft.text(), u"@x @"_s);
    type(u"\n"_s);
    draft.beginMention();
    EXPECT_EQ(draft.text(), u"@x @\n@"_s);
    EXPECT_EQ(shown, draft.text());
}

TEST_F(CommentDraftTest, UploadedFilesWithAnAddressBecomeLines)
{
    Attachment stored;
    stored.filename = u"capture %2.png"_s;
    stored.contentURL = QUrl(u"https://orvantis.fr/a/1"_s);
    Attachment other = stored;
    other.filename = u"journal.txt"_s;
    Attachment lost;
    lost.filename = u"perdu"_s;
    type(u"Voir"_s);
    draft.addLinks({stored, lost, other});
    EXPECT_EQ(draft.text(), u"Voir\n📎 [capture %2.png](https://orvantis.fr/a/1)\n"
                            "📎 [journal.txt](https://orvantis.fr/a/1)"_s);
    EXPECT_EQ(shown, draft.text());
    EXPECT_EQ(shownCaret, shown.size());
}

TEST_F(CommentDraftTest, FilesWithoutAnAddressAddNothing)
{
    type(u"Voir\n"_s);
    draft.addLinks({Attachment()});
    EXPECT_EQ(draft.text(), u"Voir\n"_s);
}

// Sending ---------------------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, ATextWithoutWordsIsNotSent)
{
    type(u" \n\t "_s);
    EXPECT_FALSE(draft.canSend());
    EXPECT_EQ(draft.beginSending(), std::nullopt);
    EXPECT_FALSE(draft.isSending());
}

TEST_F(CommentDraftTest, TheTextIsSentWithoutTheWhiteSpaceAroundIt)
{
    type(u"\n Merci \n"_s);
    EXPECT_EQ(send(), (OutgoingComment{u"Merci"_s, CommentAudience::Everyone, {}}));
}

TEST_F(CommentDraftTest, ASecondSendWaitsForTheFirst)
{
    type(u"Merci"_s);
    send();
    EXPECT_TRUE(draft.isSending());
    EXPECT_EQ(draft.beginSending(), std::nullopt);
    draft.endSending(false);
    EXPECT_EQ(send().text, u"Merci"_s);
}

TEST_F(CommentDraftTest, APostedTextIsRemovedWithItsMentions)
{
    type(u"Merci @nor"_s);
    draft.pick(0);
    send();
    draft.endSending(true);
    EXPECT_EQ(draft.text(), QString());
    EXPECT_EQ(shown, QString());
    EXPECT_EQ(mentioned(), QStringList());
    EXPECT_FALSE(draft.isSending());
}

TEST_F(CommentDraftTest, ARefusedTextStaysWithItsMentionsAndItsCaret)
{
    type(u"Merci @nor"_s);
    draft.pick(0);
    moveCaret(3);
    send();
    draft.endSending(false);
    EXPECT_EQ(draft.text(), u"Merci @Nora Vidal "_s);
    EXPECT_EQ(draft.caret(), 3);
    EXPECT_EQ(mentioned(), QStringList{u"nora"_s});
    EXPECT_EQ(send().mentions.size(), 1);
}

TEST_F(CommentDraftTest, WhatIsTypedWhileACommentIsBeingSentStays)
{
    type(u"Merci"_s);
    send();
    type(u" et @nor"_s);
    draft.pick(0);
    draft.endSending(true);
    EXPECT_EQ(draft.text(), u" et @Nora Vidal "_s);
    EXPECT_EQ(shown, draft.text());
    EXPECT_EQ(shownCaret, shown.size());
    EXPECT_EQ(mentioned(), QStringList{u"nora"_s});
}

TEST_F(CommentDraftTest, ATextThatIsRewrittenWhileItIsBeingSentIsLeftAlone)
{
    type(u"Merci"_s);
    send();
    moveCaret(0);
    type(u"Grand "_s);
    draft.endSending(true);
    EXPECT_EQ(draft.text(), u"Grand Merci"_s);
    EXPECT_FALSE(draft.isSending());
}

TEST_F(CommentDraftTest, AnAnswerWithoutASendChangesNothing)
{
    type(u"Merci"_s);
    draft.endSending(true);
    EXPECT_EQ(draft.text(), u"Merci"_s);
}

TEST_F(CommentDraftTest, ADraftThatGoesWhileItsMentionIsSearchedIsLeftAlone)
{
    auto other = std::make_unique<CommentDraft>(CommentDraft::Sources{
        .clock = clock,
        .candidates = [] { return QList<JiraUser>(); },
        .search = [this](const QString &words,
                         const std::stop_token &stop) { return searches.call(stop, words); }});
    other->edit(u"@no"_s, 3);
    clock.advance(250ms);
    auto call = searches.last();
    other.reset();
    EXPECT_TRUE(call.wasStopped());
}

// Abandoned texts -----------------------------------------------------------------------------------------------------

TEST_F(CommentDraftTest, ARestoredTextHasItsMentionsItsReadersAndNoSuggestions)
{
    type(u"x"_s);
    draft.restore({u"Merci @Nora"_s, CommentAudience::Agents, {user(u"nora"_s, u"Nora Vidal"_s)}});
    EXPECT_EQ(shown, u"Merci @Nora"_s);
    EXPECT_EQ(shownCaret, shown.size());
    EXPECT_EQ(suggested(), QStringList());
    EXPECT_EQ(draft.audience(), CommentAudience::Agents) << "even if the project does not allow it";
    EXPECT_EQ(send().mentions.size(), 1);
}

TEST_F(CommentDraftTest, TheUnsentTextIsWhatASuccessfulSendingLeaves)
{
    type(u"Merci"_s);
    EXPECT_EQ(draft.unsentText(), u"Merci"_s);
    send();
    EXPECT_EQ(draft.unsentText(), QString());
    type(u" bien"_s);
    EXPECT_EQ(draft.unsentText(), u" bien"_s);
    draft.endSending(true);
    EXPECT_EQ(draft.unsentText(), u" bien"_s);
    EXPECT_EQ(draft.text(), draft.unsentText());
}
