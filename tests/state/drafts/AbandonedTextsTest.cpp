#include "state/drafts/AbandonedTexts.h"

#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Kind = AbandonedTexts::Kind;

class AbandonedTextsTest : public AppStoreFixture
{
protected:
    AbandonedTextsTest() { startSession(); }

    AbandonedTexts &texts() { return AbandonedTexts::of(*store); }
    AbandonedPlace comment() { return texts().place(Kind::Comment, u"SUP-1"_s); }
    QString kept() { return comment().text().value_or(AbandonedText()).body; }
};

TEST_F(AbandonedTextsTest, AStoreHasOneObjectForAllItsWindows)
{
    EXPECT_EQ(&AbandonedTexts::of(*store), &AbandonedTexts::of(*store));
}

TEST_F(AbandonedTextsTest, TheLastTextOfAPlaceIsKeptWhole)
{
    const AbandonedText note{.body = u"Entre nous"_s,
                             .mentions = {sampleUser(u"n"_s, u"Nora"_s)},
                             .audience = CommentAudience::Agents};
    comment().keep({.body = u"Merci"_s});
    comment().keep(note);
    EXPECT_EQ(comment().text(), note);
}

TEST_F(AbandonedTextsTest, EachIssueAndEachKindHasItsOwnText)
{
    comment().keep({.body = u"Merci"_s});
    EXPECT_EQ(texts().place(Kind::Comment, u"SUP-2"_s).text(), std::nullopt);
    EXPECT_EQ(texts().place(Kind::Description, u"SUP-1"_s).text(), std::nullopt);
    EXPECT_EQ(texts().place(Kind::NewIssue).text(), std::nullopt);
}

TEST_F(AbandonedTextsTest, ATextWithoutWordsDoesNotReplaceTheOneBefore)
{
    comment().keep({.body = u"Merci"_s});
    comment().keep({.body = u" \n"_s});
    EXPECT_EQ(kept(), u"Merci"_s);
}

TEST_F(AbandonedTextsTest, ATextThatWasSentAfterAllIsForgottenUnlessAnotherOneCame)
{
    comment().keep({.body = u"Merci"_s});
    comment().forget({.body = u"Autre"_s});
    EXPECT_EQ(kept(), u"Merci"_s);
    comment().forget({.body = u"Merci"_s});
    EXPECT_EQ(kept(), QString());
}

TEST_F(AbandonedTextsTest, ATextInFrontOfAnotherKeepsBothAndStaysInternal)
{
    comment().keep({.body = u"puis ceci"_s, .audience = CommentAudience::Agents});
    comment().keepBefore({.body = u"D'abord"_s, .mentions = {sampleUser(u"n"_s, u"Nora"_s)}});
    EXPECT_EQ(kept(), u"D'abord\n\npuis ceci"_s);
    EXPECT_EQ(comment().text()->audience, CommentAudience::Agents);
    EXPECT_EQ(comment().text()->mentions.size(), 1);
}

TEST_F(AbandonedTextsTest, TheEndOfTheSessionForgetsEveryText)
{
    comment().keep({.body = u"Merci"_s});
    QSignalSpy ended(&texts(), &AbandonedTexts::sessionEnded);
    store->signOut();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(kept(), QString());
}

TEST_F(AbandonedTextsTest, APlaceOfAnEarlierSessionKeepsNothing)
{
    AbandonedPlace before = comment();
    store->signOut();
    answerEverything();
    const TaskResult<void> started(store->startDemo());
    before.keep({.body = u"Merci"_s});
    EXPECT_EQ(kept(), QString());
    comment().keep({.body = u"Autre"_s});
    EXPECT_EQ(before.text(), std::nullopt) << "nor does it read what is not its own";
    before.forget();
    EXPECT_EQ(kept(), u"Autre"_s);
}

TEST_F(AbandonedTextsTest, APlaceMayOutliveTheStore)
{
    AbandonedPlace place = comment();
    store.reset();
    place.keep({.body = u"Merci"_s});
    EXPECT_EQ(place.text(), std::nullopt);
    EXPECT_EQ(AbandonedPlace().text(), std::nullopt);
}

TEST_F(AbandonedTextsTest, EachChangeIsReported)
{
    QSignalSpy changed(&texts(), &AbandonedTexts::changed);
    comment().keep({.body = u"Merci"_s});
    EXPECT_EQ(changed.count(), 1);
    comment().forget();
    EXPECT_EQ(changed.count(), 2);
    comment().forget();
    EXPECT_EQ(changed.count(), 2);
}
