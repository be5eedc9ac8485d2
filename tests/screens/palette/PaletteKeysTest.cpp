#include "PaletteFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class PaletteKeyTest : public PaletteFixture
{
protected:
    PaletteKeyTest()
    {
        reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s, u"En cours"_s)});
    }
};

TEST_F(PaletteKeyTest, TheHighlightStopsAtBothEnds)
{
    openRoot();
    EXPECT_TRUE(press(Qt::Key_Up));
    EXPECT_EQ(palette.highlighted(), 0);
    for (int i = 0; i < 40; ++i)
        EXPECT_TRUE(press(Qt::Key_Down));
    EXPECT_EQ(palette.highlighted(), palette.rowCount() - 1);
}

TEST_F(PaletteKeyTest, WithoutRowsDownStaysAtTheTopAndReturnIsConsumed)
{
    openRoot();
    palette.setQuery(u"*"_s);
    EXPECT_TRUE(press(Qt::Key_Down));
    EXPECT_EQ(palette.highlighted(), 0);
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_TRUE(palette.isOpen());
}

TEST_F(PaletteKeyTest, EscapeAtTheRootClearsTheQueryAndThenCloses)
{
    openRoot();
    palette.setQuery(u"mob"_s);
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(palette.query(), QString());
    EXPECT_TRUE(palette.isOpen());
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_FALSE(store->palette());
}

TEST_F(PaletteKeyTest, EscapeInAPickerClearsTheQueryThenReturnsToTheRootThenCloses)
{
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    palette.setQuery(u"e"_s);
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(palette.query(), QString());
    EXPECT_TRUE(palette.isPicker());
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(store->palette(), PaletteMode::root());
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_FALSE(store->palette());
}

TEST_F(PaletteKeyTest, EscapeAfterAPickerOfAShortcutGoesToTheRootNotToThePreviousScreen)
{
    store->setFocusedKey(u"MOB-1"_s);
    store->run(Command::PickAssignee);
    ASSERT_TRUE(palette.isPicker());
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(store->palette(), PaletteMode::root());
}

TEST_F(PaletteKeyTest, ControlReturnOnAnIssueOpensItsWindowAndLeavesFocusAndInspectorAlone)
{
    QSignalSpy asked(store.get(), &AppStore::openWindowRequested);
    store->setFocusedKey(u"MOB-1"_s);
    openRoot();
    palette.setQuery(u"mob-2"_s);
    EXPECT_TRUE(press(Qt::Key_Return, Qt::ControlModifier));
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.first().first(), u"MOB-2"_s);
    EXPECT_EQ(store->focusedKey(), u"MOB-1"_s);
    EXPECT_EQ(store->inspectorKey(), std::nullopt);
    EXPECT_FALSE(store->palette());
}

TEST_F(PaletteKeyTest, ControlReturnOnAnActionBehavesAsPlainReturn)
{
    openRoot();
    palette.setQuery(u"tableau"_s);
    EXPECT_TRUE(press(Qt::Key_Return, Qt::ControlModifier));
    EXPECT_EQ(store->layout(), LayoutMode::Board);
    EXPECT_FALSE(store->palette());
}

TEST_F(PaletteKeyTest, ControlAndShiftReturnOpensNoWindow)
{
    QSignalSpy asked(store.get(), &AppStore::openWindowRequested);
    openRoot();
    palette.setQuery(u"mob-2"_s);
    EXPECT_TRUE(press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_EQ(asked.count(), 0);
    EXPECT_EQ(store->inspectorKey(), u"MOB-2"_s);
}

TEST_F(PaletteKeyTest, KeypadEnterRunsTheHighlightedRow)
{
    openRoot();
    press(Qt::Key_Down);
    EXPECT_TRUE(press(Qt::Key_Enter, Qt::KeypadModifier));
    EXPECT_EQ(store->layout(), LayoutMode::Board);
}

TEST_F(PaletteKeyTest, AtTheRootDigitsAreTyped)
{
    openRoot();
    ASSERT_EQ(palette.rows()[rowOf(u"layout"_s)].option.shortcut, u"2"_s);
    EXPECT_FALSE(press(Qt::Key_2, {}, u"2"_s));
    EXPECT_EQ(store->layout(), LayoutMode::List);
}

TEST_F(PaletteKeyTest, ADigitPicksItsRowOfAPickerAndCloses)
{
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    EXPECT_TRUE(press(Qt::Key_2, {}, u"2"_s));
    EXPECT_EQ(known(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_FALSE(store->palette());
}

TEST_F(PaletteKeyTest, WithAQueryOrAModifierOrNoRowADigitIsTyped)
{
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    EXPECT_FALSE(press(Qt::Key_9, {}, u"9"_s));
    EXPECT_FALSE(press(Qt::Key_2, Qt::ShiftModifier, u"2"_s));
    EXPECT_FALSE(press(Qt::Key_2, Qt::ControlModifier, u"2"_s));
    palette.setQuery(u"e"_s);
    EXPECT_FALSE(press(Qt::Key_2, {}, u"2"_s));
    EXPECT_EQ(known(u"MOB-1"_s).status.name(), u"À faire"_s);
}

TEST_F(PaletteKeyTest, ThePointerHighlightsOnlyWhereItWasMoved)
{
    openRoot();
    palette.point(3);
    EXPECT_EQ(palette.highlighted(), 0);
    movePointer({10, 10});
    palette.point(3);
    EXPECT_EQ(palette.highlighted(), 0) << "it may have rested there before";
    movePointer({10, 11});
    palette.point(3);
    EXPECT_EQ(palette.highlighted(), 3);
    press(Qt::Key_Down);
    palette.point(0);
    EXPECT_EQ(palette.highlighted(), 4);
}

TEST_F(PaletteKeyTest, WhileClosedItTakesNothing)
{
    openRoot();
    palette.close();
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Down, Qt::Key_Up})
        EXPECT_FALSE(press(key));
}
