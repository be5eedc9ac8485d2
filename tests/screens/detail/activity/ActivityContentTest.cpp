#include "screens/detail/activity/ActivityContent.h"

#include "screens/detail/activity/ActivityFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class ActivityContentTest : public ActivityFixture
{
protected:
    void show(const QString &key = u"SUP-41"_s)
    {
        content.setKey(key);
        content.setStore(store.get());
    }
    QStringList shown()
    {
        QStringList ids;
        for (const auto &row : content.comments()->rows())
            ids.append(row.key());
        return ids;
    }
    const ActivityFacts &facts() const { return content.facts(); }
    void choose(CommentFilter filter) { content.choose(int(filter)); }

    ActivityContent content;
};

TEST_F(ActivityContentTest, TheCreationComesWithItsReporterAndItsTime)
{
    startSession();
    serve({});
    show();
    EXPECT_TRUE(facts().showsCreation);
    EXPECT_EQ(facts().reporterName, u"Basile Rochat"_s);
    EXPECT_EQ(facts().creationAge, u"· 4 j"_s);
    EXPECT_EQ(facts().creationSentence, u"Basile Rochat a créé le ticket il y a 4 j"_s);
}

TEST_F(ActivityContentTest, WithoutAReporterSomebodyCreatedTheIssue)
{
    startSession();
    reporter.reset();
    serve({});
    show();
    EXPECT_FALSE(facts().hasReporter);
    EXPECT_EQ(facts().reporterName, u"Quelqu'un"_s);
    EXPECT_EQ(facts().creationSentence, u"Quelqu'un a créé le ticket il y a 4 j"_s);
}

TEST_F(ActivityContentTest, OutsideAServiceProjectWithoutNotesTheHeadCounts)
{
    startSession();
    serve({reply(u"1"_s), reply(u"2"_s)});
    show();
    EXPECT_FALSE(facts().offersFilter);
    EXPECT_EQ(facts().countText, u"2 commentaires"_s);
    EXPECT_EQ(content.comments()->rows().first().comment->tagText(), QString());
}

TEST_F(ActivityContentTest, WithoutCommentsTheHeadCountsZero)
{
    startSession();
    serve({});
    show();
    EXPECT_EQ(facts().countText, u"0 commentaires"_s);
    EXPECT_EQ(facts().emptyText, QString());
}

TEST_F(ActivityContentTest, InAServiceProjectWithoutNotesTheFilterStands)
{
    startSession();
    serve({reply(u"1"_s)}, u"SUP-41"_s, true);
    show();
    EXPECT_TRUE(facts().offersFilter);
    EXPECT_EQ(facts().filterTitles,
              QStringList({u"Tout 1"_s, u"Réponses 1"_s, u"Notes internes 0"_s}));
}

TEST_F(ActivityContentTest, AllCommentsKeepTheOrderOfTheSite)
{
    startSession();
    serve({note(u"9"_s), reply(u"1"_s), note(u"5"_s)});
    show();
    EXPECT_EQ(shown(), QStringList({u"9"_s, u"1"_s, u"5"_s}));
}

TEST_F(ActivityContentTest, OnNotesThereIsNoCreation)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Notes);
    EXPECT_FALSE(facts().showsCreation);
    EXPECT_EQ(shown(), QStringList({u"2"_s}));
}

TEST_F(ActivityContentTest, OnRepliesThereAreNoNotesAndNoCreation)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Replies);
    EXPECT_FALSE(facts().showsCreation);
    EXPECT_EQ(shown(), QStringList({u"1"_s}));
}

TEST_F(ActivityContentTest, AFilterWithoutCommentsSaysSo)
{
    startSession();
    serve({}, u"SUP-41"_s, true);
    show();
    choose(CommentFilter::Notes);
    EXPECT_EQ(facts().emptyText, u"Aucune note interne sur ce ticket."_s);
    choose(CommentFilter::Replies);
    EXPECT_EQ(facts().emptyText, u"Aucun commentaire public sur ce ticket."_s);
}

TEST_F(ActivityContentTest, ARefreshKeepsTheFilter)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Notes);
    serve({reply(u"1"_s), note(u"2"_s), reply(u"3"_s), note(u"4"_s)});
    EXPECT_EQ(facts().filter, CommentFilter::Notes);
    EXPECT_EQ(shown(), QStringList({u"2"_s, u"4"_s}));
    EXPECT_EQ(facts().filterTitles.last(), u"Notes internes 2"_s);
}

TEST_F(ActivityContentTest, AnotherIssueBeginsWithAllComments)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    serve({reply(u"3"_s), note(u"4"_s)}, u"SUP-42"_s);
    show();
    choose(CommentFilter::Notes);
    content.setKey(u"SUP-42"_s);
    EXPECT_EQ(facts().filter, CommentFilter::All);
    EXPECT_EQ(shown(), QStringList({u"3"_s, u"4"_s}));
}

TEST_F(ActivityContentTest, WhenTheLastNoteGoesAllCommentsAreShown)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Notes);
    serve({reply(u"1"_s)});
    EXPECT_FALSE(facts().offersFilter);
    EXPECT_EQ(shown(), QStringList({u"1"_s}));
    EXPECT_TRUE(facts().showsCreation);
}

TEST_F(ActivityContentTest, ADeletedCommentGoesAndTheOthersStay)
{
    startSession();
    serve({reply(u"1"_s), reply(u"2"_s), reply(u"3"_s)});
    show();
    const QSignalSpy removals(content.comments(), &CommentList::rowsRemoved);
    const QSignalSpy insertions(content.comments(), &CommentList::rowsInserted);
    serve({reply(u"1"_s), reply(u"3"_s)});
    EXPECT_EQ(shown(), QStringList({u"1"_s, u"3"_s}));
    EXPECT_EQ(removals.count(), 1);
    EXPECT_EQ(insertions.count(), 0);
}

TEST_F(ActivityContentTest, AnEditedCommentChangesInPlace)
{
    startSession();
    serve({reply(u"1"_s, u"avant"_s), reply(u"2"_s)});
    show();
    const QSignalSpy changes(content.comments(), &CommentList::dataChanged);
    const QSignalSpy removals(content.comments(), &CommentList::rowsRemoved);
    const Comment edited = reply(u"1"_s, u"après"_s);
    serve({edited, reply(u"2"_s)});
    EXPECT_EQ(content.comments()->rows().first().comment->body, *edited.body);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(removals.count(), 0);
}

TEST_F(ActivityContentTest, ARefreshWithoutNewsChangesNothing)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    const QSignalSpy changes(content.comments(), &CommentList::dataChanged);
    const QSignalSpy facts(&content, &ActivityContent::factsChanged);
    serve({reply(u"1"_s), note(u"2"_s)});
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(facts.count(), 0);
}

TEST_F(ActivityContentTest, LateCommentsOfAnotherIssueChangeNothing)
{
    startSession();
    serve({reply(u"1"_s)});
    show();
    serve({reply(u"2"_s), note(u"3"_s)}, u"SUP-42"_s);
    EXPECT_EQ(shown(), QStringList({u"1"_s}));
    EXPECT_EQ(facts().countText, u"1 commentaire"_s);
}

TEST_F(ActivityContentTest, TimesFollowTheMinute)
{
    startSession();
    serve({reply(u"1"_s)});
    show();
    clock.advance(1h);
    EXPECT_EQ(content.comments()->rows().first().comment->age, u"2 h"_s);
    clock.advance(24h);
    EXPECT_EQ(facts().creationAge, u"· 5 j"_s);
}

TEST_F(ActivityContentTest, OnlyACommentThatArrivesLaterIsAnArrivalAndOnlyOnce)
{
    startSession();
    show();
    serve({reply(u"1"_s)});
    EXPECT_FALSE(content.takeArrival(u"1"_s));
    serve({reply(u"1"_s), reply(u"2"_s)});
    EXPECT_FALSE(content.takeArrival(u"1"_s));
    EXPECT_TRUE(content.takeArrival(u"2"_s));
    EXPECT_FALSE(content.takeArrival(u"2"_s));
}

TEST_F(ActivityContentTest, WhatAFilterRevealsIsNoArrival)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Notes);
    serve({reply(u"1"_s), note(u"2"_s), reply(u"3"_s)});
    choose(CommentFilter::All);
    EXPECT_FALSE(content.takeArrival(u"3"_s));
}

TEST_F(ActivityContentTest, ASecondSessionBeginsWithAllCommentsAndNoArrivals)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    choose(CommentFilter::Notes);
    store->signOut();
    EXPECT_EQ(shown(), QStringList());
    startSession();
    serve({reply(u"1"_s), note(u"2"_s), reply(u"3"_s)});
    EXPECT_EQ(facts().filter, CommentFilter::All);
    EXPECT_EQ(shown(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_FALSE(content.takeArrival(u"3"_s));
}

TEST_F(ActivityContentTest, AThousandCommentsAreAllShownInTheEnd)
{
    startSession();
    serve(many(1000));
    show();
    EXPECT_EQ(content.comments()->rowCount(), CommentList::firstStep);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content.comments()->isComplete(); }));
    EXPECT_EQ(content.comments()->rowCount(), 1000);
}

TEST_F(ActivityContentTest, AnUnknownFilterIsIgnored)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    show();
    content.choose(3);
    content.choose(-1);
    EXPECT_EQ(facts().filter, CommentFilter::All);
    EXPECT_EQ(shown().size(), 2);
}
