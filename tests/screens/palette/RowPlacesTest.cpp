#include "screens/palette/RowPlaces.h"

#include "PaletteFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class RowPlacesTest : public PaletteFixture
{
protected:
    static constexpr int Places = 15;

    RowPlacesTest()
    {
        reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s)});
        places.setProperty("rowHeight", 32.0);
        places.setProperty("titleHeight", 29.0);
        places.setProperty("above", 4.0);
        places.setProperty("below", 8.0);
        places.setProperty("highest", 420.0);
        places.setPalette(&palette);
    }

    /// Sets up a site with `count` projects, each of which adds two destinations.
    void knowProjects(int count)
    {
        answerEverything();
        QList<Project> projects;
        for (int number = 0; number < count; ++number)
            projects.append(sampleProject(u"P"_s + QString::number(number)));
        service->projectsCalls.answerWith(projects);
        const TaskResult<void> started(store->startDemo());
    }

    QVariant at(int place, RowPlaces::Role role) const { return places.index(place).data(role); }
    /// The visible rows and their titles, sorted by row.
    QMap<int, QString> shown() const
    {
        QMap<int, QString> titles;
        for (int place = 0; place < places.rowCount(); ++place) {
            if (at(place, RowPlaces::IsShownRole).toBool())
                titles.insert(at(place, RowPlaces::RowRole).toInt(),
                              at(place, RowPlaces::TitleRole).toString());
        }
        return titles;
    }
    QMap<int, QString> expected(int first, int last) const
    {
        QMap<int, QString> titles;
        for (int row = first; row <= last; ++row)
            titles.insert(row, palette.rows()[row].option.title);
        return titles;
    }

    RowPlaces places;
    QAbstractItemModelTester tester{&places, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(RowPlacesTest, ThereAreAsManyPlacesAsFitWhateverTheNumberOfRows)
{
    EXPECT_EQ(places.rowCount(), Places);
    EXPECT_TRUE(shown().isEmpty());
    knowProjects(100);
    openRoot();
    palette.setQuery(u"p"_s);
    ASSERT_GT(palette.rowCount(), 200);
    EXPECT_EQ(places.rowCount(), Places);
    EXPECT_EQ(places.viewHeight(), 420);
}

TEST_F(RowPlacesTest, EachRowInSightHasAPlaceWithItsTextsAndItsPosition)
{
    openRoot();
    ASSERT_EQ(palette.rowCount(), 13);
    EXPECT_EQ(shown(), expected(0, 11));
    EXPECT_EQ(at(0, RowPlaces::SectionTitleRole), u"Actions"_s);
    EXPECT_EQ(at(1, RowPlaces::ShortcutRole), u"2"_s);
    EXPECT_EQ(at(1, RowPlaces::SectionTitleRole), QString());
    EXPECT_EQ(at(1, RowPlaces::PlaceRole), 4 + 29 + 32);
    EXPECT_EQ(places.contentHeight(), 4 + 2 * 29 + 13 * 32 + 8);
}

TEST_F(RowPlacesTest, AScrollBetweenTheNewRowsAndTheirPlacesIsHarmless)
{
    knowProjects(100);
    // Parts of the view that the palette tells of its new rows first may change the scroll position.
    places.setPalette(nullptr);
    QObject::connect(&palette, &CommandPalette::updated, &places,
                     [this] { places.setTop(places.top() - 1); });
    places.setPalette(&palette);
    openRoot();
    palette.setQuery(u"p"_s);
    places.setTop(places.contentHeight() - places.viewHeight());

    palette.setQuery(u"mob-2"_s);

    EXPECT_EQ(shown(), expected(0, palette.rowCount() - 1));
}

TEST_F(RowPlacesTest, ALetterGivesThePlacesOtherRowsAndMakesNone)
{
    openRoot();
    const QSignalSpy inserted(&places, &RowPlaces::rowsInserted);
    const QSignalSpy removed(&places, &RowPlaces::rowsRemoved);
    palette.setQuery(u"mob-2"_s);
    EXPECT_EQ(shown(), expected(0, palette.rowCount() - 1));
    palette.setQuery(u"*"_s);
    EXPECT_TRUE(shown().isEmpty());
    palette.setQuery({});
    EXPECT_EQ(shown(), expected(0, 11));
    EXPECT_EQ(inserted.count() + removed.count(), 0);
}

TEST_F(RowPlacesTest, OnlyWhatChangedIsTold)
{
    openRoot();
    QSignalSpy changed(&places, &RowPlaces::dataChanged);
    store->setShowCompleted(!store->showCompleted());
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.first().at(0).toModelIndex().row(), 2);
    EXPECT_EQ(changed.first().at(2).value<QList<int>>(), QList<int>{RowPlaces::TitleRole});
}

TEST_F(RowPlacesTest, ScrolledThePlacesStandInTheOrderOfTheRows)
{
    knowProjects(100);
    openRoot();
    palette.setQuery(u"p"_s);
    places.setTop(1000);
    const int first = at(0, RowPlaces::RowRole).toInt();
    EXPECT_GT(first, 20);
    for (int place = 0; place < shown().size(); ++place)
        EXPECT_EQ(at(place, RowPlaces::RowRole).toInt(), first + place);
    EXPECT_EQ(shown(), expected(first, first + int(shown().size()) - 1));
}

TEST_F(RowPlacesTest, TheHighlightedRowIsInSightToTheVeryLast)
{
    knowProjects(100);
    openRoot();
    palette.setQuery(u"p"_s);
    for (int row = 1; row < palette.rowCount(); ++row) {
        press(Qt::Key_Down);
        ASSERT_TRUE(shown().contains(row)) << row;
    }
    EXPECT_EQ(places.top(), places.contentHeight() - places.viewHeight());
    for (int row = palette.rowCount() - 1; row > 0; --row)
        press(Qt::Key_Up);
    EXPECT_EQ(places.top(), 0);
}

TEST_F(RowPlacesTest, ANewQueryShowsItsFirstRowThoughTheListWasScrolled)
{
    knowProjects(100);
    openRoot();
    palette.setQuery(u"p"_s);
    places.setTop(1000);
    palette.setQuery(u"pr"_s);
    EXPECT_EQ(places.top(), 0);
    EXPECT_TRUE(shown().contains(0));
}

TEST_F(RowPlacesTest, RowsThatGoDoNotLeaveTheViewBehindThem)
{
    openRoot();
    palette.setQuery(u"zz"_s);
    clock.advance(std::chrono::milliseconds(260));
    QList<SharedIssue> found;
    for (int number = 1; number <= 20; ++number)
        found.append(sampleIssue(u"WEB-"_s + QString::number(number)));
    places.setProperty("highest", 100.0);
    service->searchCalls.last().finish(found);
    ASSERT_EQ(palette.rowCount(), 12);
    places.setTop(300);
    palette.setQuery(u"zzz"_s);
    clock.advance(std::chrono::milliseconds(260));
    places.setTop(300);
    service->searchCalls.last().finish({sampleIssue(u"WEB-1"_s)});
    EXPECT_EQ(places.top(), 0);
    EXPECT_EQ(shown(), expected(0, 0));
}

TEST_F(RowPlacesTest, ALowerWindowLeavesLessRoomAndALargerOneMore)
{
    openRoot();
    places.setProperty("highest", 100.0);
    EXPECT_EQ(places.viewHeight(), 100);
    EXPECT_EQ(shown().lastKey(), 2);
    places.setProperty("highest", -5.0);
    EXPECT_EQ(places.viewHeight(), 0);
    EXPECT_TRUE(shown().isEmpty());
    places.setProperty("highest", 1000.0);
    EXPECT_EQ(places.viewHeight(), places.contentHeight());
    EXPECT_EQ(shown(), expected(0, 12));
}
