#include "shell/updates/UpdatesFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class UpdateAlertSheet : public UpdatesFixture
{
protected:
    void open()
    {
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }
    ReleaseInfo running()
    {
        ReleaseInfo same = release();
        same.version = u"1.3.2"_s;
        same.build = u"132"_s;
        return same;
    }
};

TEST_F(UpdateAlertSheet, TheMenuSaysThatEverythingIsUpToDate)
{
    open();
    offer(running());
    press(Qt::Key_F10);
    click(await(QAccessible::MenuItem, u"Rechercher les mises à jour…"_s));
    await(QAccessible::Dialog, u"Velmora est à jour"_s);
    find(QAccessible::StaticText, u"Tu utilises la dernière version (1.3.2 (132))."_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Velmora est à jour"_s));
    EXPECT_EQ(transport->feeds.count(), 1);
}

TEST_F(UpdateAlertSheet, ThePaletteLooksForUpdatesToo)
{
    open();
    offer(running());
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"mises à jour"_s);
    press(Qt::Key_Return);
    await(QAccessible::Dialog, u"Velmora est à jour"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Velmora est à jour"_s));
}

TEST_F(UpdateAlertSheet, WithAutomaticChecksOffTheMenuStillChecks)
{
    open();
    updater().setAutomaticChecks(false);
    offer(running());
    store().run(Command::CheckForUpdates);
    await(QAccessible::Dialog, u"Velmora est à jour"_s);
}

TEST_F(UpdateAlertSheet, AReadyReleaseIsInstalledByTheFirstButton)
{
    open();
    offer(release(u"Des **listes** plus rapides"_s));
    store().run(Command::CheckForUpdates);
    await(QAccessible::Dialog, u"Velmora 1.4.0 est prêt à être installé"_s);
    find(QAccessible::StaticText, u"Des listes plus rapides"_s);
    EXPECT_TRUE(find(QAccessible::Button, u"Redémarrer et installer"_s).state.focused);
    press(Qt::Key_Return);
    EXPECT_TRUE(updater().state().is(Kind::Installing));
}

TEST_F(UpdateAlertSheet, LaterKeepsTheReleaseReady)
{
    open();
    offer(release());
    store().run(Command::CheckForUpdates);
    click(await(QAccessible::Button, u"Plus tard"_s));
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"prêt à être installé"_s));
    EXPECT_TRUE(updater().state().is(Kind::Ready));
    EXPECT_TRUE(bundles->started.isEmpty());
}

TEST_F(UpdateAlertSheet, AFailureIsAnAlertWithTheReason)
{
    open();
    failFeed(503);
    store().run(Command::CheckForUpdates);
    await(QAccessible::Dialog, u"Mise à jour impossible"_s);
    find(QAccessible::AlertMessage, u"Le serveur de mises à jour a répondu 503."_s);
    click(find(QAccessible::Button, u"OK"_s));
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Mise à jour impossible"_s));
}

TEST_F(UpdateAlertSheet, AVeryLongReasonScrollsAndLeavesTheButtonInTheWindow)
{
    open();
    transport->feeds.failWith(Failure(u"une très longue raison "_s.repeated(400)));
    store().run(Command::CheckForUpdates);
    await(QAccessible::Dialog, u"Mise à jour impossible"_s);
    const QRect button = find(QAccessible::Button, u"OK"_s).box;
    EXPECT_TRUE(QRect(QPoint(), window().size()).contains(button));
}

TEST_F(UpdateAlertSheet, ItBringsTheMainWindowBack)
{
    open();
    offer(running());
    showSettings();
    window().close();
    ASSERT_FALSE(window().isVisible());
    store().run(Command::CheckForUpdates);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window().isVisible(); }));
    await(QAccessible::Dialog, u"Velmora est à jour"_s);
}

TEST_F(UpdateAlertSheet, ADownloadByTheTimerIsNotDisturbedAndGivesNoAlert)
{
    open();
    offerWithoutArchive(release());
    clock->advance(Updater::FirstCheckAfter);
    ASSERT_TRUE(reaches(Kind::Downloading));
    store().run(Command::CheckForUpdates);
    settle();
    EXPECT_TRUE(spokenIn(window(), QAccessible::Dialog).isEmpty());
    EXPECT_EQ(transport->feeds.count(), 1);
}
