#include "state/AppCommands.h"

#include "state/AppStoreFixture.h"
#include "state/Hints.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class AppCommandsTest : public AppStoreFixture
{
protected:
    AppCommandsTest() { commands.setStore(store.get()); }

    void choose(Command command) { commands.run(int(command)); }
    QStringList toasts()
    {
        QStringList messages;
        for (const auto &toast : store->toasts())
            messages += toast.message;
        return messages;
    }

    AppCommands commands;
};

TEST_F(AppCommandsTest, BeforeASessionNewIssueIsDisabledWhileTheItemsOfIssuesAreNot)
{
    ASSERT_NE(store->phase(), AppStore::Phase::Ready);
    EXPECT_FALSE(commands.newIssue().isEnabled);
    for (const auto &group :
         {commands.general(), commands.editing(), commands.sharing(), commands.display()}) {
        for (const auto &entry : group)
            EXPECT_TRUE(entry.isEnabled) << entry.title.toStdString();
    }
}

TEST_F(AppCommandsTest, TheWindowOfAnIssueHasOnlyWhatNeedsNothingOfTheMainWindow)
{
    startSession();
    commands.setIssueKey(u"MOB-2"_s);
    EXPECT_EQ(commands.general().size(), 2);
    EXPECT_EQ(commands.general().first().title, u"Palette de commandes…"_s);
    EXPECT_EQ(commands.general().last().title, u"Actualiser"_s);
    EXPECT_EQ(commands.editing().size(), 5);
    EXPECT_EQ(commands.sharing().size(), 4);
    EXPECT_TRUE(commands.display().isEmpty());
}

TEST_F(AppCommandsTest, TheWindowOfAnIssueShowsItsPaletteItself)
{
    startSession();
    commands.setIssueKey(u"MOB-2"_s);
    const QSignalSpy requests(&commands, &AppCommands::paletteRequested);
    choose(Command::TogglePalette);
    EXPECT_TRUE(
        commands.runShortcut(KeyPress::make(Qt::Key_K, 0, u"k"_s, Qt::ControlModifier, u"k"_s)));
    EXPECT_TRUE(commands.runKey(KeyPress::make(Qt::Key_S, 0, u"s"_s, {}, u"s"_s)));
    EXPECT_EQ(requests.size(), 3);
    EXPECT_EQ(requests.last().first().value<Command>(), Command::PickStatus);
    EXPECT_FALSE(store->palette());
}

TEST_F(AppCommandsTest, KeysThatNeedTheMainWindowDoNothingInTheWindowOfAnIssue)
{
    startSession();
    commands.setIssueKey(u"MOB-2"_s);
    EXPECT_FALSE(commands.runKey(KeyPress::make(Qt::Key_J, 0, u"j"_s, {}, u"j"_s)));
    EXPECT_FALSE(commands.runKey(KeyPress::make(Qt::Key_C, 0, u"c"_s, {}, u"c"_s)));
    EXPECT_FALSE(store->isCreating());
}

TEST_F(AppCommandsTest, ADisabledCommandDoesNothing)
{
    choose(Command::NewIssue);
    EXPECT_FALSE(store->isCreating());
}

TEST_F(AppCommandsTest, WithNoIssueChosenCopyingAndOpeningAskForOneToo)
{
    startSession();
    for (const auto command : {Command::CopyKeys, Command::CopyBranch, Command::CopyLink,
                               Command::OpenInBrowser, Command::AssignToMe})
        choose(command);
    EXPECT_EQ(toasts(), QStringList(5, u"Sélectionne d'abord un ticket"_s));
    EXPECT_TRUE(desktop.copied.isEmpty());
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(AppCommandsTest, WithNoIssueChosenAPickerAsksForOne)
{
    startSession();
    for (const auto command :
         {Command::PickStatus, Command::PickPriority, Command::PickAssignee, Command::PickLabels}) {
        choose(command);
        EXPECT_FALSE(store->palette());
    }
    EXPECT_EQ(toasts(), QStringList(4, u"Sélectionne d'abord un ticket"_s));
    EXPECT_EQ(store->toasts().first().symbol, u"hand.point.up.left"_s);
}

TEST_F(AppCommandsTest, EachPickerOpensForTheTargets)
{
    startSession();
    store->setFocusedKey(u"MOB-1"_s);
    const QList<std::pair<Command, PickerKind>> pickers{
        {Command::PickStatus, PickerKind::Status},
        {Command::PickPriority, PickerKind::Priority},
        {Command::PickAssignee, PickerKind::Assignee},
        {Command::PickLabels, PickerKind::Labels}};
    for (const auto &[command, kind] : pickers) {
        choose(command);
        EXPECT_EQ(store->palette(), PaletteMode::picker(kind, {u"MOB-1"_s}));
    }
}

TEST_F(AppCommandsTest, ThePaletteTwiceLeavesItClosed)
{
    choose(Command::TogglePalette);
    EXPECT_EQ(store->palette(), PaletteMode::root());
    choose(Command::TogglePalette);
    EXPECT_FALSE(store->palette());
}

TEST_F(AppCommandsTest, ThePaletteCommandClosesAPickerToo)
{
    store->setPalette(PaletteMode::picker(PickerKind::Status, {u"MOB-1"_s}));
    choose(Command::TogglePalette);
    EXPECT_FALSE(store->palette());
}

TEST_F(AppCommandsTest, AssigningToMeAssignsAllCheckedIssues)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s), sampleIssue(u"MOB-3"_s)});
    store->setChecked({u"MOB-1"_s, u"MOB-3"_s});
    choose(Command::AssignToMe);
    EXPECT_TRUE((*store->issue(u"MOB-1"_s))->assignee);
    EXPECT_FALSE((*store->issue(u"MOB-2"_s))->assignee);
    EXPECT_TRUE((*store->issue(u"MOB-3"_s))->assignee);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppCommandsTest, TheItemOfThePreviewFollowsTheInspector)
{
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    QSignalSpy changed(&commands, &AppCommands::changed);
    choose(Command::ToggleInspector);
    EXPECT_TRUE(store->showInspector());
    EXPECT_GE(changed.count(), 1);
    EXPECT_EQ(commands.display().last().title, u"Masquer l'aperçu"_s);
}

TEST_F(AppCommandsTest, TheLayoutIsChosen)
{
    choose(Command::ShowBoard);
    EXPECT_EQ(store->layout(), LayoutMode::Board);
    choose(Command::ShowList);
    EXPECT_EQ(store->layout(), LayoutMode::List);
}

TEST_F(AppCommandsTest, ShortcutsReadAsOnThisSystem)
{
    EXPECT_EQ(commands.general().first().shortcut, u"Ctrl+K"_s);
    EXPECT_EQ(commands.sharing().at(1).shortcut, u"Ctrl+Maj+."_s);
    EXPECT_EQ(commands.display().first().shortcut, u"Ctrl+Alt+1"_s);
    EXPECT_EQ(commands.editing().first().shortcut, QString());
}

TEST_F(AppCommandsTest, AHintNamesTheShortcut)
{
    EXPECT_EQ(Hints::reload(), u"Actualiser (Ctrl+R)"_s);
    EXPECT_EQ(Hints::search(), u"Rechercher (Ctrl+K)"_s);
}
