#include "model/JiraError.h"
#include "state/composing/DraftedComment.h"
#include "state/recap/ActivitySamples.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Sample::user;

class MentionSearchTest : public DraftedComment
{
};

TEST_F(MentionSearchTest, ItStartsAfterThePauseAndItsAnswerFollowsTheKnownUsers)
{
    type(u"@no"_s);
    clock.advance(249ms);
    EXPECT_EQ(searches.count(), 0);
    clock.advance(1ms);
    ASSERT_EQ(searches.count(), 1);
    EXPECT_EQ(searches.last().argument(), u"no"_s);
    searches.last().finish({user(u"norbert"_s, u"Norbert"_s), user(u"nora"_s, u"Nora Vidal"_s)});
    EXPECT_EQ(suggested(), (QStringList{u"noam"_s, u"nora"_s, u"norbert"_s, u"maud"_s}));
}

TEST_F(MentionSearchTest, OneCharacterIsNotSearched)
{
    type(u"@n"_s);
    clock.advance(1s);
    EXPECT_EQ(searches.count(), 0);
}

TEST_F(MentionSearchTest, TwoWordsAreMatchedLocallyOnly)
{
    type(u"@noam t"_s);
    clock.advance(1s);
    EXPECT_EQ(searches.count(), 0);
    EXPECT_EQ(suggested(), QStringList{u"noam"_s});
}

TEST_F(MentionSearchTest, TypingOnStartsThePauseAgain)
{
    type(u"@no"_s);
    clock.advance(200ms);
    type(u"r"_s);
    clock.advance(200ms);
    EXPECT_EQ(searches.count(), 0);
    clock.advance(50ms);
    ASSERT_EQ(searches.count(), 1);
    EXPECT_EQ(searches.last().argument(), u"nor"_s);
}

TEST_F(MentionSearchTest, AnAnswerForEarlierWordsIsDiscarded)
{
    type(u"@no"_s);
    clock.advance(250ms);
    auto first = searches.last();
    type(u"r"_s);
    EXPECT_TRUE(first.wasStopped());
    if (first.isPending())
        first.finish({user(u"norbert"_s, u"Norbert"_s)});
    EXPECT_EQ(suggested(), QStringList{u"nora"_s});
}

TEST_F(MentionSearchTest, WhatWasFoundStaysWhileTheNextWordsAreSearched)
{
    type(u"@no"_s);
    clock.advance(250ms);
    searches.last().finish({user(u"norbert"_s, u"Norbert"_s)});
    type(u"r"_s);
    EXPECT_EQ(suggested(), (QStringList{u"nora"_s, u"norbert"_s}));
    clock.advance(250ms);
    searches.last().finish({});
    EXPECT_EQ(suggested(), QStringList{u"nora"_s});
}

TEST_F(MentionSearchTest, ABlankRemovesWhatWasFound)
{
    type(u"@no"_s);
    clock.advance(250ms);
    searches.last().finish({user(u"norbert"_s, u"No Norbert"_s)});
    type(u" n"_s);
    EXPECT_EQ(suggested(), QStringList());
}

TEST_F(MentionSearchTest, AFailureIsAnEmptyAnswerAndTheKnownUsersStay)
{
    type(u"@nor"_s);
    clock.advance(250ms);
    searches.last().fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(suggested(), QStringList{u"nora"_s});
}

TEST_F(MentionSearchTest, DismissingTheSuggestionsCancelsTheSearch)
{
    type(u"@no"_s);
    clock.advance(250ms);
    auto call = searches.last();
    EXPECT_TRUE(draft.take(CommentDraft::Key::Dismiss));
    EXPECT_TRUE(call.wasStopped());
    if (call.isPending())
        call.finish({user(u"norbert"_s, u"Norbert"_s)});
    EXPECT_EQ(suggested(), QStringList());
}

TEST_F(MentionSearchTest, PickingCancelsTheSearchAndRemovesWhatWasFound)
{
    type(u"@no"_s);
    clock.advance(250ms);
    searches.last().finish({user(u"norbert"_s, u"Norbert"_s)});
    draft.pick(2);
    ASSERT_EQ(draft.text(), u"@Norbert "_s);
    type(u"@nor"_s);
    EXPECT_EQ(suggested(), QStringList{u"nora"_s}) << "Norbert is no candidate of the issue";
}

TEST_F(MentionSearchTest, AMentionThatIsClosedDuringThePauseIsNotSearched)
{
    type(u"@no"_s);
    type(u"\n"_s);
    clock.advance(1s);
    EXPECT_EQ(searches.count(), 0);
}
