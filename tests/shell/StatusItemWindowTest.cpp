#include "app/WindowFixture.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class StatusItemInTheProcess : public WindowFixture
{
protected:
    StatusItemInTheProcess()
    {
        serve({u"MOB-1"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
    }

    AppDelegate &delegate() { return app->delegate(); }
    void choose(const QString &text)
    {
        for (auto *action : delegate().statusItem()->menu().actions()) {
            if (action->text() == text)
                return action->trigger();
        }
        FAIL() << "no " << text.toStdString();
    }
};

TEST_F(StatusItemInTheProcess, WhereNoneIsShownTheProcessEndsWithItsLastWindow)
{
    QSignalSpy quit(&delegate(), &AppDelegate::quitRequested);
    EXPECT_FALSE(delegate().statusItem());
    window().close();
    EXPECT_EQ(quit.count(), 1);
}

TEST_F(StatusItemInTheProcess, AnotherWindowThatIsOpenKeepsTheProcess)
{
    QSignalSpy quit(&delegate(), &AppDelegate::quitRequested);
    Q_EMIT store().openWindowRequested(u"MOB-1"_s);
    window().close();
    EXPECT_EQ(quit.count(), 0);
    app->scenes().issueWindow(u"MOB-1"_s)->close();
    EXPECT_EQ(quit.count(), 1);
}

TEST_F(StatusItemInTheProcess, WhereItCanBeSeenTheProcessLivesOnAndTheWindowComesBack)
{
    QSignalSpy quit(&delegate(), &AppDelegate::quitRequested);
    statusHost->setIsPresent(true);
    ASSERT_TRUE(delegate().statusItem());
    window().close();
    EXPECT_EQ(quit.count(), 0);
    EXPECT_FALSE(window().isVisible());

    auto *before = &window();
    choose(u"Ouvrir Velmora"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(&window(), before);
}

TEST_F(StatusItemInTheProcess, NewIssueWithTheMainWindowClosedFirstOpensThatWindow)
{
    statusHost->setIsPresent(true);
    ASSERT_TRUE(delegate().statusItem());
    window().close();
    ASSERT_FALSE(window().isVisible());
    choose(u"Nouveau ticket…"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(store().isCreating());
}

TEST_F(StatusItemInTheProcess, AVisibleMainWindowIsNotDoubled)
{
    statusHost->setIsPresent(true);
    const auto before = QGuiApplication::allWindows().size();
    choose(u"Ouvrir Velmora"_s);
    EXPECT_EQ(QGuiApplication::allWindows().size(), before);
}

TEST_F(StatusItemInTheProcess, AnIssueOpensInAWindowOfItsOwn)
{
    statusHost->setIsPresent(true);
    window().close();
    choose(u"MOB-1  Résumé de MOB-1"_s);
    ASSERT_TRUE(app->scenes().issueWindow(u"MOB-1"_s));
    EXPECT_FALSE(window().isVisible());
}

TEST_F(StatusItemInTheProcess, QuittingEndsTheProcess)
{
    QSignalSpy quit(&delegate(), &AppDelegate::quitRequested);
    statusHost->setIsPresent(true);
    choose(u"Quitter"_s);
    EXPECT_EQ(quit.count(), 1);
}

TEST_F(StatusItemInTheProcess, WhenTheItemsGoAwayNobodyIsLeftWithAProcessThatCannotBeSeen)
{
    statusHost->setIsPresent(true);
    window().close();
    statusHost->setIsPresent(false);
    EXPECT_FALSE(delegate().statusItem());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(StatusItemInTheProcess, WhenTheItemsGoAwayBesideAWindowTheWindowIsEnough)
{
    statusHost->setIsPresent(true);
    statusHost->setIsPresent(false);
    QSignalSpy quit(&delegate(), &AppDelegate::quitRequested);
    window().close();
    EXPECT_EQ(quit.count(), 1);
}
