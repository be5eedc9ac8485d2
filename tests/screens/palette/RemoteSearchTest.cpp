#include "PaletteFixture.h"
#include "model/JiraError.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class RemoteSearchTest : public PaletteFixture
{
protected:
    RemoteSearchTest() { reloadWith({sampleIssue(u"MOB-1"_s)}); }

    /// Types a text and advances the clock past the delay of the search.
    void search(const QString &text)
    {
        palette.setQuery(text);
        clock.advance(260ms);
    }
    int asked() { return int(service->searchCalls.count()); }
    bool shows(const QString &key) { return rowOf(u"issue:"_s + key) >= 0; }
};

TEST_F(RemoteSearchTest, ItStartsAfterThePauseAndItsAnswerShows)
{
    openRoot();
    palette.setQuery(u" zz\n"_s);
    clock.advance(259ms);
    EXPECT_EQ(asked(), 0);
    EXPECT_FALSE(palette.isSearching());
    clock.advance(1ms);
    ASSERT_EQ(asked(), 1);
    EXPECT_EQ(service->searchCalls.last().argument(), u"zz"_s);
    EXPECT_TRUE(palette.isSearching());
    EXPECT_EQ(palette.emptyText(), u"Recherche dans Jira…"_s);

    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s)});
    EXPECT_FALSE(palette.isSearching());
    EXPECT_EQ(titles(), QStringList{u"Résumé de WEB-7"_s});
}

TEST_F(RemoteSearchTest, QueryOfOneCharacterStartsNoSearchAndEmptiesWhatWasFound)
{
    openRoot();
    search(u"zz"_s);
    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s)});
    ASSERT_TRUE(shows(u"WEB-7"_s));
    search(u"a"_s);
    EXPECT_EQ(asked(), 1);
    EXPECT_FALSE(shows(u"WEB-7"_s));
}

TEST_F(RemoteSearchTest, AQueryTypedInAPickerNeverStartsASearch)
{
    openPicker(PickerKind::Assignee, {u"MOB-1"_s});
    search(u"noam"_s);
    clock.advance(10s);
    EXPECT_EQ(asked(), 0);
}

TEST_F(RemoteSearchTest, TypingOnStartsThePauseAnew)
{
    openRoot();
    palette.setQuery(u"zz"_s);
    clock.advance(200ms);
    palette.setQuery(u"zzz"_s);
    clock.advance(200ms);
    EXPECT_EQ(asked(), 0);
    clock.advance(60ms);
    ASSERT_EQ(asked(), 1);
    EXPECT_EQ(service->searchCalls.last().argument(), u"zzz"_s);
}

TEST_F(RemoteSearchTest, AStaleAnswerNeverReplacesANewerOne)
{
    openRoot();
    search(u"zz"_s);
    auto first = service->searchCalls.last();
    search(u"zzz"_s);
    EXPECT_TRUE(first.wasStopped());
    service->searchCalls.last().finish({sampleIssue(u"WEB-8"_s)});
    if (first.isPending())
        first.finish({sampleIssue(u"WEB-7"_s)});
    EXPECT_TRUE(shows(u"WEB-8"_s));
    EXPECT_FALSE(shows(u"WEB-7"_s));
}

TEST_F(RemoteSearchTest, WhatWasFoundStaysUntilTheNextAnswer)
{
    openRoot();
    search(u"zz"_s);
    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s)});
    search(u"zzz"_s);
    EXPECT_TRUE(shows(u"WEB-7"_s));
    service->searchCalls.last().finish({});
    EXPECT_FALSE(shows(u"WEB-7"_s));
}

TEST_F(RemoteSearchTest, AFailureIsAnEmptyAnswerAndLocalMatchesStay)
{
    openRoot();
    search(u"mob"_s);
    service->searchCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_FALSE(palette.isSearching());
    EXPECT_EQ(titles().first(), u"Résumé de MOB-1"_s);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(RemoteSearchTest, ASearchOvertakenByATooShortTextStaysUnderWayUntilALaterOneCompletes)
{
    openRoot();
    search(u"zz"_s);
    palette.setQuery(u"*"_s);
    EXPECT_TRUE(palette.isSearching());
    EXPECT_EQ(palette.emptyText(), u"Recherche dans Jira…"_s);
    search(u"zzz"_s);
    service->searchCalls.last().finish({});
    EXPECT_FALSE(palette.isSearching());
}

TEST_F(RemoteSearchTest, ClosingCallsTheSearchOff)
{
    openRoot();
    search(u"zz"_s);
    auto call = service->searchCalls.last();
    palette.close();
    EXPECT_TRUE(call.wasStopped());
    if (call.isPending())
        call.finish({sampleIssue(u"WEB-7"_s)});
    openRoot();
    EXPECT_FALSE(palette.isSearching());
    palette.setQuery(u"w"_s);
    EXPECT_FALSE(shows(u"WEB-7"_s));
}

TEST_F(RemoteSearchTest, ClosingDuringThePauseSendsNothing)
{
    openRoot();
    palette.setQuery(u"zz"_s);
    palette.close();
    clock.advance(1s);
    EXPECT_EQ(asked(), 0);
}

TEST_F(RemoteSearchTest, GoingToAPickerCallsTheSearchOff)
{
    openRoot();
    search(u"zz"_s);
    auto call = service->searchCalls.last();
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    EXPECT_TRUE(call.wasStopped());
    if (call.isPending())
        call.finish({sampleIssue(u"WEB-7"_s)});
    EXPECT_FALSE(shows(u"WEB-7"_s));
}

TEST_F(RemoteSearchTest, AnAnswerThatNeverComesLeavesThePaletteUsable)
{
    openRoot();
    search(u"mob-1"_s);
    clock.advance(1h);
    EXPECT_TRUE(palette.isSearching());
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(store->inspectorKey(), u"MOB-1"_s);
}

TEST_F(RemoteSearchTest, TheHighlightStaysOnItsRowWhenAnAnswerInsertsRowsAboveIt)
{
    openRoot();
    search(u"ac"_s);
    press(Qt::Key_Down);
    const auto id = ids().value(palette.highlighted());
    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s), sampleIssue(u"WEB-8"_s)});
    ASSERT_GE(rowOf(id), 0);
    EXPECT_EQ(palette.highlighted(), rowOf(id));
}

TEST_F(RemoteSearchTest, ReturnWithTheHighlightBehindTheLastRowDoesNothingAndIsConsumed)
{
    openRoot();
    search(u"zz"_s);
    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s), sampleIssue(u"WEB-8"_s)});
    search(u"zzz"_s);
    press(Qt::Key_Down);
    ASSERT_EQ(palette.highlighted(), 1);
    service->searchCalls.last().finish({sampleIssue(u"WEB-7"_s)});
    EXPECT_EQ(palette.highlighted(), 1);
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(store->inspectorKey(), std::nullopt);
    EXPECT_TRUE(palette.isOpen());
}

TEST_F(RemoteSearchTest, FoundHereAndThereAnIssueStandsOnceWithWhatIsKnownHere)
{
    openRoot();
    search(u"mob"_s);
    Issue there = sampleIssue(u"MOB-1"_s);
    there.summary = u"Ailleurs"_s;
    service->searchCalls.last().finish({there, sampleIssue(u"WEB-7"_s)});
    EXPECT_EQ(titles().first(2), (QStringList{u"Résumé de MOB-1"_s, u"Résumé de WEB-7"_s}));
}
