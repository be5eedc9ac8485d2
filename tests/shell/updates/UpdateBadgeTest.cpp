#include "shell/updates/UpdatesFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class UpdateBadge : public UpdatesFixture
{
protected:
    int footOfTheSidebar() { return find(QAccessible::List, u"Vues et projets"_s).box.bottom(); }
};

TEST_F(UpdateBadge, AnAvailableReleaseIsDownloadedByAClick)
{
    openWithAvailable(release());
    click(find(QAccessible::Button, u"Velmora 1.4.0 disponible, Télécharger"_s));
    EXPECT_EQ(transport->archives.count(), 1);
    EXPECT_TRUE(updater().state().is(Kind::Downloading));
}

TEST_F(UpdateBadge, WhileDownloadingItCannotBePressed)
{
    openWithAvailable(release());
    click(find(QAccessible::Button, u"Télécharger"_s));
    const Spoken row =
        await(QAccessible::Button, u"Téléchargement de 1.4.0, Vérification de la signature"_s);
    click(row);
    EXPECT_TRUE(pressAction(window(), QAccessible::Button, u"Téléchargement"_s));
    EXPECT_EQ(transport->archives.count(), 1);
    EXPECT_TRUE(updater().state().is(Kind::Downloading));
}

TEST_F(UpdateBadge, AReadyReleaseIsInstalledByTheKeyboard)
{
    openWithReady(release(u"Des **listes** plus rapides"_s));
    find(QAccessible::Button, u"Velmora 1.4.0 prête, Redémarrer pour installer"_s);
    bool isFocused = false;
    for (int i = 0; i < 20 && !isFocused; ++i) {
        press(Qt::Key_Tab);
        isFocused = find(QAccessible::Button, u"Velmora 1.4.0 prête"_s).state.focused;
    }
    ASSERT_TRUE(isFocused);
    press(Qt::Key_Return);
    EXPECT_TRUE(updater().state().is(Kind::Installing));
    EXPECT_FALSE(bundles->started.isEmpty());
    EXPECT_TRUE(isGone(QAccessible::Button, u"Velmora 1.4.0"_s));
}

TEST_F(UpdateBadge, ItTakesNoRoomWhenEverythingIsUpToDate)
{
    openOnDemo();
    settle();
    const int before = footOfTheSidebar();
    ReleaseInfo same = release();
    same.version = u"1.3.2"_s;
    same.build = u"132"_s;
    offer(same);
    clock->advance(Updater::FirstCheckAfter);
    ASSERT_TRUE(reaches(Kind::UpToDate));
    settle();
    EXPECT_EQ(footOfTheSidebar(), before);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"Velmora"_s).isEmpty());
}

TEST_F(UpdateBadge, ItStandsAboveTheDemoBadgeAndTheListEndsAboveIt)
{
    openWithAvailable(release());
    const QRect badge = find(QAccessible::Button, u"Velmora 1.4.0 disponible"_s).box;
    const QRect demo = find(QAccessible::Button, u"Mode démo"_s).box;
    EXPECT_EQ(demo.top() - badge.bottom() - 1, 10);
    EXPECT_LT(footOfTheSidebar(), badge.top());
    EXPECT_EQ(badge.height(), 47);
    EXPECT_EQ(badge.left(), demo.left());
}

TEST_F(UpdateBadge, AFailureTakesTheBadgeAway)
{
    openWithAvailable(release());
    transport->archives.answerBy([](const QUrl &) { return ScriptedTransport::archive("other"); });
    click(find(QAccessible::Button, u"Télécharger"_s));
    EXPECT_TRUE(reaches(Kind::Failed));
    EXPECT_TRUE(isGone(QAccessible::Button, u"1.4.0"_s));
}

TEST_F(UpdateBadge, ALongVersionStaysInTheBadge)
{
    ReleaseInfo long_ = release();
    long_.version = u"1.4.0-"_s.repeated(40);
    openWithAvailable(long_);
    const QRect badge = find(QAccessible::Button, u"disponible"_s).box;
    EXPECT_EQ(badge.height(), 47);
    EXPECT_LE(badge.right(), find(QAccessible::Button, u"Mode démo"_s).box.right());
}

TEST_F(UpdateBadge, AProgramOutsideABundleIsNeverReplaced)
{
    runningApp = {.path = u"/home/person/build"_s};
    beforeOpening = [this] { bundles->canReplace = false; };
    openOnDemo();
    updater().setCustomFeed(Feed);
    offer(release());
    clock->advance(Updater::FirstCheckAfter);
    ASSERT_TRUE(reaches(Kind::Ready));
    click(await(QAccessible::Button, u"Velmora 1.4.0 prête"_s));
    EXPECT_EQ(updater().state().failureOrEmpty(),
              u"Impossible d'écrire dans « /home/person ». Installe la mise à jour à la main."_s);
    EXPECT_TRUE(bundles->started.isEmpty());
    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
}

TEST_F(UpdateBadge, AProgramWithoutAFeedAsksNobody)
{
    runningApp = {.path = u"/home/person/build"_s};
    openOnDemo();
    clock->advance(Updater::FirstCheckAfter);
    clock->advance(Updater::CheckEvery);
    EXPECT_EQ(transport->feeds.count(), 0);
    EXPECT_TRUE(updater().state().is(Kind::Idle));
}

TEST_F(UpdateBadge, ItStaysAfterASignOutAndANewSession)
{
    openWithReady(release());
    store().signOut();
    settle();
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"Velmora 1.4.0"_s).isEmpty());
    store().openDemo();
    await(QAccessible::Button, u"Velmora 1.4.0 prête"_s);
}

TEST_F(UpdateBadge, InstallingQuitsAsTheUserDoesAndWaitsForWhatIsBeingSent)
{
    openWithReady(release());
    serve({u"MOB-1"_s});
    reload();
    store().rename(u"MOB-1"_s, u"Titre neuf"_s);
    click(find(QAccessible::Button, u"Velmora 1.4.0 prête"_s));
    QCoreApplication::processEvents();
    clock->advance(std::chrono::seconds(1));
    await(QAccessible::Dialog, u"Enregistrement en cours…"_s);
}
