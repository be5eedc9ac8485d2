#include "screens/options/OptionList.h"

#include "screens/options/ListedOptions.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

KeyPress press(Qt::Key key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
{
    return KeyPress::make(key, 0, text, modifiers);
}

OptionItem item(const QString &title, const QString &shortcut = {})
{
    OptionItem made{.id = title, .title = title};
    if (!shortcut.isEmpty())
        made.shortcut = shortcut;
    return made;
}

} // namespace

class OptionListTest : public testing::Test
{
protected:
    OptionListTest()
    {
        source.set({item(u"Un"_s, u"1"_s), item(u"Deux"_s, u"2"_s), item(u"Trois"_s, u"3"_s)});
        list.setSource(&source);
    }

    QStringList shown()
    {
        QStringList titles;
        for (const auto &row : list.rows()->rows())
            titles += row.item.title;
        return titles;
    }
    void moveDown(int times)
    {
        for (int i = 0; i < times; ++i)
            EXPECT_TRUE(list.handle(press(Qt::Key_Down)));
    }

    ListedOptions source;
    OptionList list;
    QSignalSpy done{&list, &OptionList::done};
};

TEST_F(OptionListTest, TheRowsFollowTheItemsWithoutAReset)
{
    const QAbstractItemModelTester tester(list.rows(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy reset(list.rows(), &QAbstractItemModel::modelReset);
    source.set({item(u"Deux"_s), item(u"Quatre"_s)});
    EXPECT_EQ(shown(), (QStringList{u"Deux"_s, u"Quatre"_s}));
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(OptionListTest, ARowTellsWhatItShows)
{
    OptionItem full{.id = u"x"_s,
                    .title = u"Titre"_s,
                    .subtitle = u"Moi"_s,
                    .icon = {OptionIcon::Label{u"auth"_s}},
                    .isSelected = true,
                    .shortcut = u"4"_s};
    source.set({full});
    const auto row = list.rows()->index(0);
    EXPECT_EQ(row.data(OptionListModel::TitleRole), u"Titre"_s);
    EXPECT_EQ(row.data(OptionListModel::SubtitleRole), u"Moi"_s);
    EXPECT_EQ(row.data(OptionListModel::IsSelectedRole), true);
    EXPECT_EQ(row.data(OptionListModel::ShortcutRole), u"4"_s);
    EXPECT_EQ(row.data(OptionListModel::IconRole).value<OptionIconValue>().label(), u"auth"_s);
}

TEST_F(OptionListTest, WithThreeFoundRowsAndACandidateDownReachesTheFourthAndStops)
{
    source.creates = true;
    source.set({item(u"bug a"_s), item(u"bug b"_s), item(u"bug c"_s)});
    list.setQuery(u"bug"_s);
    ASSERT_EQ(list.rows()->rowCount(), 4);
    moveDown(2);
    EXPECT_EQ(list.highlighted(), 2);
    moveDown(1);
    EXPECT_EQ(list.highlighted(), 3);
    moveDown(1);
    EXPECT_EQ(list.highlighted(), 3);
}

TEST_F(OptionListTest, WithoutACandidateTheHighlightStopsAtTheLastItem)
{
    moveDown(5);
    EXPECT_EQ(list.highlighted(), 2);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(list.handle(press(Qt::Key_Up)));
    EXPECT_EQ(list.highlighted(), 0);
}

TEST_F(OptionListTest, WithoutARowDownStaysAtTheFirstAndReturnDoesNothing)
{
    source.set({});
    EXPECT_TRUE(list.isEmpty());
    moveDown(1);
    EXPECT_EQ(list.highlighted(), 0);
    EXPECT_TRUE(list.handle(press(Qt::Key_Return)));
    EXPECT_EQ(done.count(), 0);
    EXPECT_EQ(source.ran, QStringList());
}

TEST_F(OptionListTest, ReturnOnTheCreateRowCreatesClearsTheQueryAndDoesNotClose)
{
    source.creates = true;
    list.setQuery(u"dette tech"_s);
    ASSERT_EQ(shown(), QStringList{u"Créer dette-tech"_s});
    const auto row = list.rows()->index(0);
    EXPECT_EQ(row.data(OptionListModel::IconRole).value<OptionIconValue>().symbol(), u"plus"_s);
    EXPECT_TRUE(list.handle(press(Qt::Key_Return)));
    EXPECT_EQ(source.created, QStringList{u"dette-tech"_s});
    EXPECT_EQ(list.query(), QString());
    EXPECT_EQ(list.highlighted(), 0);
    EXPECT_EQ(done.count(), 0);
    EXPECT_TRUE(shown().contains(u"dette-tech"_s)) << "the new value is there to be seen";
}

TEST_F(OptionListTest, ReturnOnAnOrdinaryRowRunsItAndCloses)
{
    moveDown(1);
    EXPECT_TRUE(list.handle(press(Qt::Key_Enter)));
    EXPECT_EQ(source.ran, QStringList{u"Deux"_s});
    EXPECT_EQ(done.count(), 1);
}

TEST_F(OptionListTest, ARowThatKeepsTheListOpenLeavesTheQueryToo)
{
    auto label = item(u"auth"_s);
    label.keepsOpen = true;
    source.set({label});
    list.setQuery(u"au"_s);
    EXPECT_TRUE(list.handle(press(Qt::Key_Return)));
    EXPECT_EQ(source.ran, QStringList{u"auth"_s});
    EXPECT_EQ(done.count(), 0);
    EXPECT_EQ(list.query(), u"au"_s);
}

TEST_F(OptionListTest, ADigitPicksTheRowThatHasIt)
{
    EXPECT_TRUE(list.handle(press(Qt::Key_3, u"3"_s)));
    EXPECT_EQ(source.ran, QStringList{u"Trois"_s});
    EXPECT_EQ(done.count(), 1);
}

TEST_F(OptionListTest, ADigitIsTakenByTheKeysPlaceWhereTheLayoutTypesAnotherSign)
{
    // On a French keyboard the key for 2 types "é".
    EXPECT_TRUE(list.handle(KeyPress::make(Qt::Key_Eacute, 11, u"é"_s, Qt::NoModifier, u"é"_s)));
    EXPECT_EQ(source.ran, QStringList{u"Deux"_s});
}

TEST_F(OptionListTest, ShiftDoesNotMatterForATypedDigit)
{
    EXPECT_TRUE(list.handle(KeyPress::make(Qt::Key_2, 11, u"2"_s, Qt::ShiftModifier, u"é"_s)));
    EXPECT_EQ(source.ran, QStringList{u"Deux"_s});
}

TEST_F(OptionListTest, WithAQueryADigitIsTypedAndNeverRunsARow)
{
    source.set({item(u"Version 1"_s, u"1"_s)});
    list.setQuery(u"v"_s);
    EXPECT_FALSE(list.handle(press(Qt::Key_1, u"1"_s)));
    list.setQuery(u" "_s);
    EXPECT_FALSE(list.handle(press(Qt::Key_1, u"1"_s))) << "a blank is a query here";
    EXPECT_EQ(source.ran, QStringList());
}

TEST_F(OptionListTest, ADigitWithoutARowIsPassedOn)
{
    EXPECT_FALSE(list.handle(press(Qt::Key_9, u"9"_s)));
    EXPECT_FALSE(list.handle(press(Qt::Key_0, u"0"_s)));
    EXPECT_EQ(done.count(), 0);
}

TEST_F(OptionListTest, ADigitWithACommandKeyIsPassedOn)
{
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_FALSE(list.handle(press(Qt::Key_1, u"1"_s, modifier))) << modifier;
    EXPECT_EQ(source.ran, QStringList());
}

TEST_F(OptionListTest, EscapeAndLettersArePassedOn)
{
    EXPECT_FALSE(list.handle(press(Qt::Key_Escape)));
    EXPECT_FALSE(list.handle(press(Qt::Key_A, u"a"_s)));
    EXPECT_FALSE(list.handle(press(Qt::Key_Tab)));
}

TEST_F(OptionListTest, EveryChangeOfTheQueryTakesTheHighlightToTheFirstRow)
{
    moveDown(2);
    list.setQuery(u"t"_s);
    EXPECT_EQ(list.highlighted(), 0);
    moveDown(1);
    list.setQuery({});
    EXPECT_EQ(list.highlighted(), 0);
}

TEST_F(OptionListTest, ThePointerHighlightsARowOnlyWhenItMoves)
{
    list.setPointer({10, 10});
    list.point(2, {10, 10});
    EXPECT_EQ(list.highlighted(), 0) << "it may have lain there before the list came";
    list.point(2, {10, 11});
    EXPECT_EQ(list.highlighted(), 2);
    EXPECT_TRUE(list.handle(press(Qt::Key_Up)));
    list.point(2, {10, 11});
    EXPECT_EQ(list.highlighted(), 1) << "a row scrolled below it";
}

TEST_F(OptionListTest, ARowThatIsNotThereDoesNothing)
{
    list.activate(-1);
    list.activate(3);
    EXPECT_EQ(done.count(), 0);
    EXPECT_EQ(source.ran, QStringList());
}

TEST_F(OptionListTest, AnItemCalledCreateIsNotTheCreateRow)
{
    source.creates = true;
    source.set({item(u"create"_s)});
    list.setQuery(u"creat"_s);
    ASSERT_EQ(shown(), (QStringList{u"create"_s, u"Créer creat"_s}));
    list.activate(0);
    EXPECT_EQ(source.ran, QStringList{u"create"_s});
    EXPECT_EQ(source.created, QStringList());
}

TEST_F(OptionListTest, WithoutASourceThereIsNothing)
{
    list.setSource(nullptr);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.handle(press(Qt::Key_Return)));
    EXPECT_FALSE(list.handle(press(Qt::Key_1, u"1"_s)));
}

TEST_F(OptionListTest, ScreenReadersHearTheHighlightedRowAndItsPlace)
{
    EXPECT_EQ(list.spoken(), u"Un, 1 sur 3"_s);
    moveDown(1);
    EXPECT_EQ(list.spoken(), u"Deux, 2 sur 3"_s);
    list.setQuery(u"introuvable"_s);
    EXPECT_EQ(list.spoken(), u"Aucun résultat"_s);
}

TEST_F(OptionListTest, TheHighlightStaysOnItsItemWhileTheItemsChange)
{
    moveDown(1);
    source.set({item(u"Zéro"_s), item(u"Un"_s), item(u"Deux"_s), item(u"Trois"_s)});
    EXPECT_EQ(list.highlighted(), 2);
    EXPECT_EQ(list.spoken(), u"Deux, 3 sur 4"_s);
    list.handle(press(Qt::Key_Return));
    EXPECT_EQ(source.ran, QStringList{u"Deux"_s});
}

TEST_F(OptionListTest, AHighlightedItemThatDisappearsLeavesTheHighlightWithinTheRows)
{
    moveDown(2);
    source.set({item(u"Un"_s), item(u"Deux"_s)});
    EXPECT_EQ(list.highlighted(), 1);
    EXPECT_EQ(list.spoken(), u"Deux, 2 sur 2"_s);

    source.set({});
    EXPECT_EQ(list.highlighted(), 0);
    EXPECT_EQ(list.spoken(), u"Aucun résultat"_s);
}

TEST_F(OptionListTest, OnlyMovementRepeatsWhileAKeyIsHeld)
{
    for (const auto key : {Qt::Key_Down, Qt::Key_Up})
        EXPECT_TRUE(list.repeats(QKeyEvent(QEvent::KeyPress, key, {}, {}, true)));
    for (const auto key : {Qt::Key_Return, Qt::Key_1})
        EXPECT_FALSE(list.repeats(QKeyEvent(QEvent::KeyPress, key, {}, {}, true)));
}
