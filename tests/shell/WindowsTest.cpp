#include "app/WindowFixture.h"

#include <QQuickGraphicsConfiguration>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class Windows : public WindowFixture
{
protected:
    Windows()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    Scenes &scenes() { return app->scenes(); }
    void openIssue(const QString &key) { Q_EMIT store().openWindowRequested(key); }
};

TEST_F(Windows, ControlReturnOpensTheFocusedIssueInAWindowOfItsOwn)
{
    press(Qt::Key_Down);
    press(Qt::Key_Return, Qt::ControlModifier);

    auto *issue = scenes().issueWindow(u"MOB-1"_s);
    ASSERT_TRUE(issue);
    EXPECT_TRUE(issue->isVisible());
    EXPECT_EQ(issue->title(), u"MOB-1 – Résumé de MOB-1"_s);
    EXPECT_EQ(issue->size(), QSize(760, 820));
    EXPECT_FALSE(spokenIn(*issue, QAccessible::Heading, u"Résumé de MOB-1"_s).isEmpty());
    EXPECT_FALSE(spokenIn(*issue, QAccessible::Button, u"Statut : À faire"_s).isEmpty());
    EXPECT_TRUE(spokenIn(*issue, QAccessible::Button, u"Fermer"_s).isEmpty());
}

TEST_F(Windows, NoWindowComparesDepths)
{
    openIssue(u"MOB-1"_s);
    scenes().showSettings();
    for (const auto *window :
         {app->mainWindow(), scenes().issueWindow(u"MOB-1"_s), scenes().settingsWindow()}) {
        ASSERT_TRUE(window);
        EXPECT_FALSE(window->graphicsConfiguration().isDepthBufferEnabledFor2D());
    }
}

TEST_F(Windows, AskingTwiceForTheWindowOfOneKeyShowsOneWindow)
{
    openIssue(u"MOB-1"_s);
    auto *first = scenes().issueWindow(u"MOB-1"_s);
    const auto before = QGuiApplication::allWindows().size();
    openIssue(u"MOB-1"_s);
    EXPECT_EQ(scenes().issueWindow(u"MOB-1"_s), first);
    EXPECT_EQ(QGuiApplication::allWindows().size(), before);
}

TEST_F(Windows, EachKeyHasAWindowOfItsOwn)
{
    openIssue(u"MOB-1"_s);
    openIssue(u"MOB-2"_s);
    EXPECT_NE(scenes().issueWindow(u"MOB-1"_s), scenes().issueWindow(u"MOB-2"_s));
}

TEST_F(Windows, AClosedIssueWindowIsGone)
{
    openIssue(u"MOB-1"_s);
    const QPointer<QQuickWindow> issue = scenes().issueWindow(u"MOB-1"_s);
    issue->close();
    EXPECT_FALSE(scenes().issueWindow(u"MOB-1"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return issue.isNull(); }));
    openIssue(u"MOB-1"_s);
    EXPECT_TRUE(scenes().issueWindow(u"MOB-1"_s));
}

TEST_F(Windows, TheMenusOfAnIssueWindowLeaveThePaletteOfTheMainOne)
{
    openIssue(u"MOB-1"_s);
    auto *issue = scenes().issueWindow(u"MOB-1"_s);
    issue->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(issue));
    store().run(Command::TogglePalette);
    ASSERT_TRUE(store().palette());
    QTest::keyClick(issue, Qt::Key_F10);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !spokenIn(*issue, QAccessible::MenuItem, u"Réglages…"_s).isEmpty(); }));
    EXPECT_TRUE(store().palette());
}

TEST_F(Windows, EscapeClosesWhatIsOpenInAnIssueWindowThenTheWindow)
{
    openIssue(u"MOB-1"_s);
    const QPointer<QQuickWindow> issue = scenes().issueWindow(u"MOB-1"_s);
    issue->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(issue));
    const auto isOpen = [&] { return !spokenIn(*issue, QAccessible::Dialog).isEmpty(); };
    const auto chip = spokenIn(*issue, QAccessible::Button, u"Statut : À faire"_s).first();
    QTest::mouseClick(issue, Qt::LeftButton, {}, chip.box.center());
    ASSERT_TRUE(QTest::qWaitFor(isOpen));
    QTest::keyClick(issue, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !issue || !isOpen(); }));
    ASSERT_TRUE(issue);

    QTest::keyClick(issue, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return issue.isNull(); }));
}

TEST_F(Windows, KeysOfAnIssueWindowAreNoCommandsOfTheMainWindow)
{
    openIssue(u"MOB-1"_s);
    QTest::keyClick(scenes().issueWindow(u"MOB-1"_s), Qt::Key_2);
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(Windows, AnIssueWindowShowsAChangeOfItsIssue)
{
    openIssue(u"MOB-1"_s);
    service->updateCalls.answerWith();
    store().rename(u"MOB-1"_s, u"Autrement"_s);
    EXPECT_EQ(scenes().issueWindow(u"MOB-1"_s)->title(), u"MOB-1 – Autrement"_s);
}

TEST_F(Windows, SettingsHaveOneWindowWhichTheShortcutsAreShownIn)
{
    Q_EMIT store().shortcutsRequested();
    auto *settings = scenes().settingsWindow();
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->size(), QSize(600, 560));
    EXPECT_EQ(spokenIn(*settings, QAccessible::ListItem, u"Palette de commandes : Ctrl+K"_s).size(),
              1);
    Q_EMIT store().settingsRequested();
    EXPECT_EQ(scenes().settingsWindow(), settings);
    settings->close();
    EXPECT_FALSE(scenes().settingsWindow());
}

TEST_F(Windows, TheTabsOfTheSettingsAreSpokenAsPageTabs)
{
    Q_EMIT store().settingsRequested();
    auto *settings = scenes().settingsWindow();
    ASSERT_TRUE(settings);
    EXPECT_EQ(spokenIn(*settings, QAccessible::PageTabList, u"Réglages"_s).size(), 1);
    EXPECT_EQ(spokenIn(*settings, QAccessible::PageTab, u"Raccourcis"_s).size(), 1);
}

TEST_F(Windows, ThePaletteOpensAnIssueInAWindow)
{
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"b-2"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(scenes().issueWindow(u"MOB-2"_s));
    EXPECT_FALSE(store().showInspector());
}

TEST_F(Windows, ControlAndTheCommaOpenTheSettings)
{
    press(Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_TRUE(scenes().settingsWindow());
    QTest::keyClick(scenes().settingsWindow(), Qt::Key_Escape);
    EXPECT_FALSE(scenes().settingsWindow());
}
