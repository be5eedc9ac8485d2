#include "commands/SelectionRules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList rows{u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s};
const QString hidden = u"A-9"_s;

Selection focusedOn(const QString &key)
{
    return {.focusedKey = key, .checked = {}, .inspectorKey = {}};
}

} // namespace

TEST(SelectionMove, DownWithNothingFocusedGoesToTheFirstRow)
{
    EXPECT_EQ(afterMove({}, 1, FocusMove::Plain, rows), focusedOn(u"A-1"_s));
}

TEST(SelectionMove, UpWithNothingFocusedGoesToTheLastRow)
{
    EXPECT_EQ(afterMove({}, -1, FocusMove::Plain, rows), focusedOn(u"A-4"_s));
}

TEST(SelectionMove, DownAtTheLastRowStaysThere)
{
    EXPECT_EQ(afterMove(focusedOn(u"A-4"_s), 1, FocusMove::Plain, rows), focusedOn(u"A-4"_s));
}

TEST(SelectionMove, UpAtTheFirstRowStaysThere)
{
    EXPECT_EQ(afterMove(focusedOn(u"A-1"_s), -1, FocusMove::Plain, rows), focusedOn(u"A-1"_s));
}

TEST(SelectionMove, ALongExtendingMoveChecksAllBetween)
{
    const auto moved = afterMove(focusedOn(u"A-2"_s), 10, FocusMove::Extending, rows);
    EXPECT_EQ(moved.checked, (QSet<QString>{u"A-2"_s, u"A-3"_s, u"A-4"_s}));
}

TEST(SelectionMove, CheckingTheVisibleIssuesKeepsTheOthersThatAreChecked)
{
    const auto checked = afterCheckVisible({.checked = {u"Z-1"_s}}, rows).checked;
    EXPECT_EQ(checked, (QSet<QString>{u"Z-1"_s, u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s}));
    EXPECT_TRUE(afterCheckVisible({}, QStringList()).checked.isEmpty());
}

TEST(SelectionMove, LongMovesStopAtTheEnds)
{
    EXPECT_EQ(afterMove(focusedOn(u"A-2"_s), 10, FocusMove::Plain, rows), focusedOn(u"A-4"_s));
    EXPECT_EQ(afterMove({}, 10, FocusMove::Plain, rows), focusedOn(u"A-4"_s));
    EXPECT_EQ(afterMove({}, -10, FocusMove::Plain, rows), focusedOn(u"A-1"_s));
    EXPECT_EQ(afterMove({}, 2, FocusMove::Plain, rows), focusedOn(u"A-2"_s));
}

TEST(SelectionMove, AFocusThatIsNotVisibleStartsFromTheEdge)
{
    EXPECT_EQ(afterMove(focusedOn(hidden), 1, FocusMove::Plain, rows), focusedOn(u"A-1"_s));
}

TEST(SelectionMove, AnEmptyListMovesNothing)
{
    EXPECT_EQ(afterMove(focusedOn(hidden), 1, FocusMove::Extending, QStringList()),
              focusedOn(hidden));
}

TEST(SelectionMove, ExtendingChecksWhatItLeavesAndWhatItReaches)
{
    const Selection moved = afterMove(focusedOn(u"A-2"_s), 1, FocusMove::Extending, rows);
    EXPECT_EQ(moved.checked, (QSet<QString>{u"A-2"_s, u"A-3"_s}));
    EXPECT_EQ(moved.focusedKey, u"A-3"_s);
}

TEST(SelectionMove, ExtendingFromNoFocusChecksTheRowReachedAlone)
{
    EXPECT_EQ(afterMove({}, 1, FocusMove::Extending, rows).checked, QSet<QString>{u"A-1"_s});
}

TEST(SelectionMove, AnOpenInspectorFollows)
{
    Selection selection = focusedOn(u"A-2"_s);
    selection.inspectorKey = hidden;
    EXPECT_EQ(afterMove(selection, 1, FocusMove::Plain, rows).inspectorKey, u"A-3"_s);
    EXPECT_EQ(afterMove(focusedOn(u"A-2"_s), 1, FocusMove::Plain, rows).inspectorKey, std::nullopt);
}

TEST(SelectionClick, APlainClickOpensTheIssueAndDropsTheSelection)
{
    const Selection before{.focusedKey = u"A-1"_s, .checked = {u"A-1"_s}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterClick(before, u"A-3"_s, ClickKind::Plain, rows),
              (Selection{.focusedKey = u"A-3"_s, .checked = {}, .inspectorKey = u"A-3"_s}));
}

TEST(SelectionClick, ACommandClickAddsTheRowAndMovesTheFocusLeavingTheInspector)
{
    const Selection before{.focusedKey = u"A-1"_s, .checked = {u"A-1"_s}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterClick(before, u"A-3"_s, ClickKind::Toggle, rows),
              (Selection{.focusedKey = u"A-3"_s,
                         .checked = {u"A-1"_s, u"A-3"_s},
                         .inspectorKey = u"A-1"_s}));
}

TEST(SelectionClick, ACommandClickOnACheckedRowTakesItOut)
{
    const Selection before{
        .focusedKey = u"A-1"_s, .checked = {u"A-1"_s, u"A-3"_s}, .inspectorKey = {}};
    EXPECT_EQ(afterClick(before, u"A-3"_s, ClickKind::Toggle, rows).checked,
              QSet<QString>{u"A-1"_s});
}

TEST(SelectionClick, AShiftClickChecksTheRangeAndKeepsWhatWasChecked)
{
    Selection before = focusedOn(u"A-2"_s);
    before.checked = {hidden};
    const Selection after = afterClick(before, u"A-4"_s, ClickKind::Range, rows);
    EXPECT_EQ(after.checked, (QSet<QString>{hidden, u"A-2"_s, u"A-3"_s, u"A-4"_s}));
    EXPECT_EQ(after.focusedKey, u"A-4"_s);
    EXPECT_EQ(after.inspectorKey, std::nullopt);
}

TEST(SelectionClick, AShiftClickWorksUpwards)
{
    EXPECT_EQ(afterClick(focusedOn(u"A-3"_s), u"A-2"_s, ClickKind::Range, rows).checked,
              (QSet<QString>{u"A-2"_s, u"A-3"_s}));
}

TEST(SelectionClick, AShiftClickWithoutAFocusIsAPlainClick)
{
    Selection before;
    before.checked = {u"A-1"_s};
    EXPECT_EQ(afterClick(before, u"A-3"_s, ClickKind::Range, rows),
              (Selection{.focusedKey = u"A-3"_s, .checked = {}, .inspectorKey = u"A-3"_s}));
}

TEST(SelectionClick, AShiftClickOnAKeyOfACollapsedGroupMovesTheFocusOnly)
{
    EXPECT_EQ(afterClick(focusedOn(u"A-2"_s), hidden, ClickKind::Range, rows), focusedOn(hidden));
}

TEST(SelectionClick, AShiftClickFromAHiddenFocusMovesTheFocusOnly)
{
    EXPECT_EQ(afterClick(focusedOn(hidden), u"A-2"_s, ClickKind::Range, rows), focusedOn(u"A-2"_s));
}

TEST(SelectionClick, ControlCountsBeforeShift)
{
    EXPECT_EQ(clickKind(Qt::ControlModifier | Qt::ShiftModifier), ClickKind::Toggle);
    EXPECT_EQ(clickKind(Qt::ShiftModifier), ClickKind::Range);
    EXPECT_EQ(clickKind(Qt::AltModifier), ClickKind::Plain);
}

TEST(SelectionOpen, ReturnOpensTheFocusedIssue)
{
    const Selection before{.focusedKey = u"A-2"_s, .checked = {}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterOpen(before),
              (Selection{.focusedKey = u"A-2"_s, .checked = {}, .inspectorKey = u"A-2"_s}));
}

TEST(SelectionOpen, ReturnWithOnlyAnInspectorFocusesItsIssue)
{
    const Selection before{.focusedKey = {}, .checked = {}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterOpen(before),
              (Selection{.focusedKey = u"A-1"_s, .checked = {}, .inspectorKey = u"A-1"_s}));
}

TEST(SelectionOpen, ReturnWithoutATargetDoesNothing)
{
    EXPECT_EQ(afterOpen({.focusedKey = {}, .checked = {u"A-1"_s}, .inspectorKey = {}}),
              std::nullopt);
}

TEST(SelectionPeek, SpaceOpensAndClosesTheInspectorOnTheFocus)
{
    const auto opened = afterPeek(focusedOn(u"A-2"_s));
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->inspectorKey, u"A-2"_s);
    EXPECT_EQ(afterPeek(*opened), focusedOn(u"A-2"_s));
}

TEST(SelectionPeek, SpaceTurnsAnInspectorOnAnotherIssueToTheFocus)
{
    const Selection before{.focusedKey = u"A-2"_s, .checked = {}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterPeek(before)->inspectorKey, u"A-2"_s);
}

TEST(SelectionPeek, SpaceWithoutAFocusDoesNothing)
{
    EXPECT_EQ(afterPeek({.focusedKey = {}, .checked = {}, .inspectorKey = u"A-1"_s}), std::nullopt);
}

TEST(SelectionPeek, TogglingClosesAnyInspector)
{
    const Selection before{.focusedKey = u"A-2"_s, .checked = {}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(afterTogglePeek(before, rows), focusedOn(u"A-2"_s));
}

TEST(SelectionPeek, TogglingOpensTheFocusedElseTheFirstVisible)
{
    EXPECT_EQ(afterTogglePeek(focusedOn(u"A-2"_s), rows).inspectorKey, u"A-2"_s);
    EXPECT_EQ(afterTogglePeek({}, rows),
              (Selection{.focusedKey = u"A-1"_s, .checked = {}, .inspectorKey = u"A-1"_s}));
    EXPECT_EQ(afterTogglePeek({}, QStringList()), Selection{});
}

TEST(SelectionPeek, TheInspectorsSwitch)
{
    EXPECT_EQ(withInspectorShown(focusedOn(u"A-2"_s)).inspectorKey, u"A-2"_s);
    EXPECT_EQ(withInspectorShown({}), Selection{});
    const Selection open{.focusedKey = u"A-2"_s, .checked = {}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(withInspectorShown(open), open);
    EXPECT_EQ(withInspectorHidden(open), focusedOn(u"A-2"_s));
}

TEST(SelectionEscape, LeavesTheSelectionThenTheInspectorThenTheFilter)
{
    Selection selection{.focusedKey = u"A-1"_s, .checked = {u"A-1"_s}, .inspectorKey = u"A-1"_s};
    EXPECT_EQ(escapeStep(selection, u"mot"_s), EscapeStep::ClearChecked);
    selection.checked.clear();
    EXPECT_EQ(escapeStep(selection, u"mot"_s), EscapeStep::CloseInspector);
    selection.inspectorKey.reset();
    EXPECT_EQ(escapeStep(selection, u"mot"_s), EscapeStep::ClearFilterText);
    EXPECT_EQ(escapeStep(selection, {}), std::nullopt);
}

TEST(SelectionTargets, TheCheckedIssuesComeFirst)
{
    EXPECT_EQ(
        actionTargets(
            {.focusedKey = u"A-1"_s, .checked = {u"A-4"_s, u"A-2"_s}, .inspectorKey = u"A-3"_s}),
        (QStringList{u"A-2"_s, u"A-4"_s}));
}

TEST(SelectionTargets, ThenTheFocusThenTheInspector)
{
    EXPECT_EQ(actionTargets({.focusedKey = u"A-1"_s, .checked = {}, .inspectorKey = u"A-3"_s}),
              QStringList{u"A-1"_s});
    EXPECT_EQ(actionTargets({.focusedKey = {}, .checked = {}, .inspectorKey = u"A-3"_s}),
              QStringList{u"A-3"_s});
    EXPECT_EQ(actionTargets({}), QStringList());
}

TEST(SelectionTargets, AContextMenuOutsideTheSelectionActsOnItsRowAlone)
{
    const Selection selection{
        .focusedKey = {}, .checked = {u"A-4"_s, u"A-2"_s}, .inspectorKey = {}};
    EXPECT_EQ(contextKeys(selection, u"A-1"_s), QStringList{u"A-1"_s});
    EXPECT_EQ(contextKeys(selection, u"A-4"_s), (QStringList{u"A-2"_s, u"A-4"_s}));
}
