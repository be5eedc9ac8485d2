#include "PaletteFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class CommandPaletteTest : public PaletteFixture
{
protected:
    CommandPaletteTest()
    {
        reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s, u"En cours"_s),
                    sampleIssue(u"MOB-3"_s)});
    }
};

TEST_F(CommandPaletteTest, AtItsRootItOffersActionsAndSixDestinations)
{
    EXPECT_FALSE(palette.isOpen());
    openRoot();
    EXPECT_TRUE(palette.isOpen());
    EXPECT_EQ(ids(), (QStringList{u"new"_s, u"layout"_s, u"completed"_s, u"appearance"_s,
                                  u"reload"_s, u"settings"_s, u"updates"_s, u"go-mine"_s,
                                  u"go-recent"_s, u"go-reported"_s, u"go-this-week"_s,
                                  u"go-last-week"_s, u"go-this-month"_s}));
    EXPECT_EQ(sectionTitles(), (QStringList{u"Actions"_s, u"Aller à"_s}));
    EXPECT_EQ(palette.placeholder(), u"Rechercher un ticket, une action, un projet…"_s);
    EXPECT_EQ(palette.title(), QString());
    EXPECT_EQ(palette.rows().first().sectionTitle, u"Actions"_s);
}

TEST_F(CommandPaletteTest, WithNothingSelectedAndNoFocusedIssueTheHeaderIsHidden)
{
    openRoot();
    EXPECT_TRUE(palette.capsules().isEmpty());
    EXPECT_EQ(rowOf(u"status"_s), -1);
    EXPECT_EQ(rowOf(u"copy-key"_s), -1);
}

TEST_F(CommandPaletteTest, TheHeaderShowsWhatItActsOn)
{
    store->setFocusedKey(u"MOB-2"_s);
    openRoot();
    EXPECT_EQ(palette.capsules(), QStringList{u"MOB-2"_s});
    store->setChecked({u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s, u"A-5"_s});
    EXPECT_EQ(palette.capsules(), (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s, u"+2"_s}));
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    EXPECT_EQ(palette.capsules(), QStringList{u"MOB-1"_s});
    EXPECT_EQ(palette.title(), u"Changer le statut"_s);
}

TEST_F(CommandPaletteTest, ThreeLettersFindAnIssueHereAtOnce)
{
    openRoot();
    palette.setQuery(u"mob-2"_s);
    ASSERT_EQ(ids().first(), u"issue:MOB-2"_s);
    palette.activate(0);
    EXPECT_EQ(store->focusedKey(), u"MOB-2"_s);
    EXPECT_EQ(store->inspectorKey(), u"MOB-2"_s);
    EXPECT_FALSE(store->palette());
}

TEST_F(CommandPaletteTest, TheUsersOpenIssuesAreFoundToo)
{
    answerEverything();
    service->issuesCalls.answerWith({sampleIssue(u"WEB-9"_s)});
    const TaskResult<void> refreshed(store->refreshMyIssues());
    openRoot();
    palette.setQuery(u"web-9"_s);
    EXPECT_EQ(ids().first(), u"issue:WEB-9"_s);
}

TEST_F(CommandPaletteTest, AChangeOfTheListChangesTheRows)
{
    openRoot();
    palette.setQuery(u"mob-4"_s);
    EXPECT_EQ(rowOf(u"issue:MOB-4"_s), -1);
    reloadWith({sampleIssue(u"MOB-4"_s)});
    EXPECT_EQ(rowOf(u"issue:MOB-4"_s), 0);
}

TEST_F(CommandPaletteTest, ANewQueryTakesTheHighlightToTheFirstRow)
{
    openRoot();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(palette.highlighted(), 2);
    palette.setQuery(u"m"_s);
    EXPECT_EQ(palette.highlighted(), 0);
}

TEST_F(CommandPaletteTest, ProjectsAreReachedBySearchingForThem)
{
    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"MOB"_s)});
    const TaskResult<void> started(store->startDemo());
    ASSERT_TRUE(started.isDone());
    openRoot();
    EXPECT_EQ(rowOf(u"go-MOB"_s), -1);
    palette.setQuery(u"sprint"_s);
    ASSERT_NE(rowOf(u"go-MOB-sprint"_s), -1);
    activate(u"go-MOB-sprint"_s);
    EXPECT_EQ(store->scope(), IssueScope::project(u"MOB"_s, ProjectView::Active));
}

TEST_F(CommandPaletteTest, RecapsTakeTheStoredSwitchForTheTeam)
{
    store->setActivityTeamWide(true);
    openRoot();
    activate(u"go-last-week"_s);
    EXPECT_EQ(store->scope(), IssueScope::activity({ActivityRange::Week, -1, true}));
}

TEST_F(CommandPaletteTest, TheLayoutIsSwitchedAndThePaletteCloses)
{
    openRoot();
    activate(u"layout"_s);
    EXPECT_EQ(store->layout(), LayoutMode::Board);
    EXPECT_FALSE(palette.isOpen());
    openRoot();
    EXPECT_EQ(titles().value(rowOf(u"layout"_s)), u"Afficher en liste"_s);
}

TEST_F(CommandPaletteTest, CompletedIssuesAreHiddenAndThatIsStored)
{
    openRoot();
    activate(u"completed"_s);
    EXPECT_FALSE(store->showCompleted());
    EXPECT_EQ(Preferences(preferencesPath).flag(u"showCompleted"_s), false);
}

TEST_F(CommandPaletteTest, TheAppearanceGoesOnToTheNext)
{
    openRoot();
    activate(u"appearance"_s);
    EXPECT_EQ(store->appearance(), AppearanceMode::Light);
}

TEST_F(CommandPaletteTest, ReloadingStartsAndDoesNotWait)
{
    openRoot();
    activate(u"reload"_s);
    EXPECT_FALSE(palette.isOpen());
    EXPECT_TRUE(store->isLoading());
}

TEST_F(CommandPaletteTest, SettingsAreAskedFor)
{
    QSignalSpy asked(store.get(), &AppStore::settingsRequested);
    openRoot();
    activate(u"settings"_s);
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(CommandPaletteTest, ASearchForUpdatesIsAskedFor)
{
    QSignalSpy asked(store.get(), &AppStore::updateCheckRequested);
    openRoot();
    activate(u"updates"_s);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_FALSE(palette.isOpen());
}

TEST_F(CommandPaletteTest, BranchKeyLinkAndBrowserAreTheTargets)
{
    store->setFocusedKey(u"MOB-2"_s);
    for (const auto *id : {"copy-key", "copy-branch", "copy-link", "browser"}) {
        openRoot();
        activate(QString::fromLatin1(id));
        EXPECT_FALSE(palette.isOpen()) << id;
    }
    EXPECT_EQ(desktop.copied.first(), u"MOB-2"_s);
    EXPECT_EQ(desktop.copied.at(1), known(u"MOB-2"_s).branchName());
    EXPECT_EQ(desktop.opened.size(), 1);
}

TEST_F(CommandPaletteTest, AWindowIsAskedForWithTheKey)
{
    QSignalSpy asked(store.get(), &AppStore::openWindowRequested);
    store->setFocusedKey(u"MOB-2"_s);
    openRoot();
    activate(u"window"_s);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.first().first(), u"MOB-2"_s);
}

TEST_F(CommandPaletteTest, AssigningToMeAssignsAllTargets)
{
    store->setChecked({u"MOB-1"_s, u"MOB-2"_s});
    openRoot();
    activate(u"me"_s);
    for (const auto &key : {u"MOB-1"_s, u"MOB-2"_s}) {
        ASSERT_TRUE(known(key).assignee);
        EXPECT_EQ(known(key).assignee->id, u"u1"_s);
    }
}

TEST_F(CommandPaletteTest, AnActionThatOpensAPickerChangesTheMode)
{
    store->setFocusedKey(u"MOB-2"_s);
    openRoot();
    palette.setQuery(u"statut"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(store->palette(), PaletteMode::picker(PickerKind::Status, {u"MOB-2"_s}));
    EXPECT_TRUE(palette.isPicker());
    EXPECT_EQ(palette.query(), QString());
    EXPECT_EQ(palette.highlighted(), 0);
}

TEST_F(CommandPaletteTest, WithoutRowsItSaysSo)
{
    openRoot();
    palette.setQuery(u"*"_s);
    EXPECT_EQ(palette.emptyText(), u"Aucun résultat"_s);
    EXPECT_EQ(palette.spokenState(), u"Aucun résultat"_s);
    palette.setQuery(u"mob-1"_s);
    EXPECT_EQ(palette.emptyText(), QString());
}

TEST_F(CommandPaletteTest, TheCountAndTheHighlightedRowAreSpoken)
{
    QSignalSpy spoken(&palette, &CommandPalette::spokenStateChanged);
    openRoot();
    EXPECT_EQ(palette.spokenState(), u"13 résultats. Nouveau ticket, 1 sur 13"_s);
    spoken.clear();
    press(Qt::Key_Down);
    EXPECT_GE(spoken.count(), 1);
    EXPECT_EQ(palette.spokenState(), u"13 résultats. Afficher en tableau, 2 sur 13"_s);
    palette.setQuery(u"mob-1"_s);
    EXPECT_EQ(palette.spokenState(), u"1 résultat. Résumé de MOB-1, MOB-1, 1 sur 1"_s);
}

TEST_F(CommandPaletteTest, ItsRowsStayWhenItClosesAndDoNothing)
{
    openRoot();
    const auto shown = ids();
    QSignalSpy closed(&palette, &CommandPalette::isOpenChanged);
    palette.close();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(ids(), shown);
    palette.activate(0);
    EXPECT_EQ(store->layout(), LayoutMode::List);
}

TEST_F(CommandPaletteTest, OpenedAgainItBeginsAnew)
{
    openRoot();
    palette.setQuery(u"mob"_s);
    press(Qt::Key_Down);
    palette.close();
    openRoot();
    EXPECT_EQ(palette.query(), QString());
    EXPECT_EQ(palette.highlighted(), 0);
    EXPECT_EQ(ids().first(), u"new"_s);
}

TEST_F(CommandPaletteTest, WhatIsTypedIsKeptWhileTheListIsReloaded)
{
    openRoot();
    palette.setQuery(u"mob"_s);
    reloadWith({});
    EXPECT_EQ(palette.query(), u"mob"_s);
    EXPECT_TRUE(palette.isOpen());
}
