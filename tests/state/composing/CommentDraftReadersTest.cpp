#include "state/composing/DraftedComment.h"

using namespace Qt::StringLiterals;

/// Who will read a comment.
class CommentDraftReaders : public DraftedComment
{
protected:
    OutgoingComment send()
    {
        const auto comment = draft.beginSending();
        EXPECT_TRUE(comment);
        return comment.value_or(OutgoingComment());
    }
};

TEST_F(CommentDraftReaders, OutsideAServiceProjectThereAreNoInternalNotes)
{
    draft.setAudience(CommentAudience::Agents);
    type(u"Vu"_s);
    EXPECT_EQ(send().audience, CommentAudience::Everyone);
}

TEST_F(CommentDraftReaders, ASendDoesNotTurnTheNextNoteIntoAReply)
{
    draft.setAllowsInternal(true);
    draft.setAudience(CommentAudience::Agents);
    type(u"une"_s);
    EXPECT_EQ(send().audience, CommentAudience::Agents);
    draft.endSending(true);
    type(u"deux"_s);
    EXPECT_EQ(send().audience, CommentAudience::Agents);
}

TEST_F(CommentDraftReaders, ANoteStaysOneWhenTheProjectIsNoLongerAServiceProject)
{
    draft.setAllowsInternal(true);
    draft.setAudience(CommentAudience::Agents);
    type(u"Le client ne doit pas lire ceci"_s);
    draft.setAllowsInternal(false);
    EXPECT_EQ(draft.audience(), CommentAudience::Agents);
    EXPECT_EQ(send().audience, CommentAudience::Agents);
}

TEST_F(CommentDraftReaders, ARefusedNoteIsANoteAgainWhateverWasChosenInTheMeantime)
{
    draft.setAllowsInternal(true);
    draft.setAudience(CommentAudience::Agents);
    type(u"Entre nous"_s);
    send();
    draft.setAudience(CommentAudience::Everyone);
    EXPECT_EQ(draft.audience(), CommentAudience::Everyone) << "the next comment may be a reply";
    draft.endSending(false);
    EXPECT_EQ(draft.audience(), CommentAudience::Agents);
    EXPECT_EQ(send().audience, CommentAudience::Agents);
}

TEST_F(CommentDraftReaders, ANoteThatIsRewrittenWhileItIsBeingSentStaysANote)
{
    draft.setAllowsInternal(true);
    draft.setAudience(CommentAudience::Agents);
    type(u"Entre nous"_s);
    send();
    draft.setAudience(CommentAudience::Everyone);
    moveCaret(0);
    type(u"Donc, "_s);
    EXPECT_EQ(draft.unsentAudience(), CommentAudience::Agents) << "it would be kept as a note";
    draft.endSending(true);
    EXPECT_EQ(draft.audience(), CommentAudience::Agents);
    EXPECT_EQ(shown, u"Donc, Entre nous"_s);
}

TEST_F(CommentDraftReaders, AReplyThatFollowsAPostedNoteIsAReply)
{
    draft.setAllowsInternal(true);
    draft.setAudience(CommentAudience::Agents);
    type(u"Entre nous"_s);
    send();
    draft.setAudience(CommentAudience::Everyone);
    type(u"Bonjour"_s);
    EXPECT_EQ(draft.unsentAudience(), CommentAudience::Everyone);
    draft.endSending(true);
    EXPECT_EQ(draft.audience(), CommentAudience::Everyone);
    EXPECT_EQ(shown, u"Bonjour"_s);
}
