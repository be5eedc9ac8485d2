#include "shell/updates/UpdatesFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class UpdatesPage : public UpdatesFixture
{
protected:
    void open()
    {
        choose(u"updates"_s);
        openOnDemo();
        showSettings();
    }
    void openWithoutFeed()
    {
        runningApp.feed.clear();
        open();
    }
};

TEST_F(UpdatesPage, ItNamesTheVersionAndTheBuild)
{
    open();
    here(QAccessible::StaticText, u"Version : 1.3.2"_s);
    here(QAccessible::StaticText, u"Build : 132"_s);
    EXPECT_FALSE(isHere(QAccessible::StaticText, u"Dernière vérification"_s));
    here(QAccessible::Notification, u"Pas encore vérifié"_s);
}

TEST_F(UpdatesPage, UpToDateIsSaidWithTheTimeOfTheCheck)
{
    open();
    ReleaseInfo same = release();
    same.version = u"1.3.2"_s;
    same.build = u"132"_s;
    offer(same);
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    here(QAccessible::Notification, u"Velmora est à jour"_s);
    here(QAccessible::StaticText, u"Dernière vérification : "_s);
    EXPECT_TRUE(isEnabledHere(u"Rechercher maintenant"_s));
}

TEST_F(UpdatesPage, WithNoFeedAnywhereTheButtonIsDisabledAndTheFootnoteSaysWhy)
{
    openWithoutFeed();
    EXPECT_FALSE(isEnabledHere(u"Rechercher maintenant"_s));
    here(QAccessible::StaticText, u"Aucun canal configuré"_s);
    EXPECT_TRUE(pressAction(settings(), QAccessible::Button, u"Rechercher maintenant"_s));
    settleHere();
    EXPECT_TRUE(updater().state().is(Kind::Idle)) << "pressed by a screen reader";
    EXPECT_EQ(transport->feeds.count(), 0);
}

TEST_F(UpdatesPage, AfterTypingAnAddressTheButtonIsEnabledAtOnceAndTheFootnoteChanges)
{
    openWithoutFeed();
    ASSERT_TRUE(tabTo(QAccessible::EditableText, u"Canal"_s));
    typeHere(u"https:"_s);
    here(QAccessible::StaticText, u"Chaque mise à jour est vérifiée"_s);
    typeHere(u"//exemple.fr/latest.json"_s);
    EXPECT_TRUE(isEnabledHere(u"Rechercher maintenant"_s));
    EXPECT_EQ(updater().customFeed(), u"https://exemple.fr/latest.json"_s);
    EXPECT_EQ(Preferences(preferencesPath).text(u"updates.feed"_s),
              u"https://exemple.fr/latest.json"_s);
    pressHere(Qt::Key_A, Qt::ControlModifier);
    pressHere(Qt::Key_Backspace);
    EXPECT_FALSE(isEnabledHere(u"Rechercher maintenant"_s));
    here(QAccessible::StaticText, u"Aucun canal configuré"_s);
}

TEST_F(UpdatesPage, AFailureWithALongTextWrapsAndTheButtonIsThereForARetry)
{
    open();
    transport->feeds.failWith(Failure(u"une raison assez longue "_s.repeated(30)));
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    const Spoken status = here(QAccessible::AlertMessage, u"une raison assez longue"_s);
    const Spoken button = here(QAccessible::Button, u"Rechercher maintenant"_s);
    EXPECT_GT(status.box.height(), 100);
    EXPECT_LT(status.box.right(), button.box.left());
    EXPECT_TRUE(isEnabledHere(u"Rechercher maintenant"_s));
    failFeed(404);
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Rechercher maintenant"_s));
    pressHere(Qt::Key_Space);
    here(QAccessible::AlertMessage, u"Le serveur de mises à jour a répondu 404."_s);
}

TEST_F(UpdatesPage, AnEndlessWordWrapsToo)
{
    open();
    transport->feeds.failWith(Failure(QString(4000, u'x')));
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    const Spoken status = here(QAccessible::AlertMessage, u"xxxx"_s);
    EXPECT_LT(status.box.right(), here(QAccessible::Button, u"Rechercher maintenant"_s).box.left());
}

TEST_F(UpdatesPage, TurningTheChecksOffDisablesTheSecondToggleWithoutChangingIt)
{
    open();
    const auto second = u"Les télécharger en arrière-plan"_s;
    EXPECT_TRUE(here(QAccessible::CheckBox, second).state.checked);
    clickHere(QAccessible::CheckBox, u"Rechercher les mises à jour automatiquement"_s);
    EXPECT_FALSE(updater().automaticChecks());
    EXPECT_FALSE(isEnabledHere(second));
    EXPECT_TRUE(here(QAccessible::CheckBox, second).state.checked);
    pressAction(settings(), QAccessible::CheckBox, second);
    EXPECT_TRUE(updater().automaticDownloads()) << "pressed by a screen reader";
    clickHere(QAccessible::CheckBox, u"Rechercher les mises à jour automatiquement"_s);
    clickHere(QAccessible::CheckBox, second);
    EXPECT_FALSE(updater().automaticDownloads());
}

TEST_F(UpdatesPage, WhileCheckingAndDownloadingThereIsNoButton)
{
    open();
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    here(QAccessible::Notification, u"Recherche…"_s);
    EXPECT_TRUE(isGoneHere(QAccessible::Button, u"Rechercher maintenant"_s));
    transport->feeds.last().finish({.status = 200, .body = release().encoded()});
    here(QAccessible::Notification, u"Téléchargement de 1.4.0"_s);
    EXPECT_FALSE(isHere(QAccessible::Button, u"Re"_s));
}

TEST_F(UpdatesPage, AReadyReleaseShowsItsNotesAndIsInstalled)
{
    open();
    offer(release(u"**Tableau plus rapide**\n\n- Le glisser-déposer garde sa place."_s));
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    here(QAccessible::Notification, u"Version 1.4.0 prête"_s);
    here(QAccessible::Document, u"Notes de version"_s);
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Redémarrer et installer"_s));
    pressHere(Qt::Key_Return);
    here(QAccessible::Notification, u"Installation…"_s);
    EXPECT_FALSE(isHere(QAccessible::Document, u"Notes de version"_s));
    EXPECT_FALSE(isHere(QAccessible::Button, u"Re"_s));
}

TEST_F(UpdatesPage, AReleaseWithoutNotesShowsNoBlock)
{
    open();
    offer(release());
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    here(QAccessible::Notification, u"Version 1.4.0 prête"_s);
    EXPECT_FALSE(isHere(QAccessible::Document, u"Notes de version"_s));
}

TEST_F(UpdatesPage, TenThousandLinesOfNotesAreScrolledByThePage)
{
    open();
    offer(release(u"Une ligne.\n\n"_s.repeated(5000)));
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    here(QAccessible::Notification, u"Version 1.4.0 prête"_s);
    EXPECT_GT(here(QAccessible::Document, u"Notes de version"_s).box.height(), 50000);
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Redémarrer et installer"_s));
    settleHere();
    const QRect button = here(QAccessible::Button, u"Redémarrer et installer"_s).box;
    EXPECT_TRUE(QRect(0, 76, 600, 484).contains(button));
}

TEST_F(UpdatesPage, AnAnswerAfterTheWindowWasClosedIsShownWhenItOpensAgain)
{
    open();
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    settings().close();
    QCoreApplication::processEvents();
    transport->feeds.last().finish({.status = 500, .body = {}});
    ASSERT_TRUE(reaches(Kind::Failed));
    showSettings();
    here(QAccessible::AlertMessage, u"Le serveur de mises à jour a répondu 500."_s);
}

TEST_F(UpdatesPage, TheTimeOfTheLastCheckFollowsTheTimeZoneOfTheUser)
{
    open();
    offer(release());
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    const QString before = here(QAccessible::StaticText, u"Dernière vérification"_s).name;
    calendar->change({QLocale(u"fr_FR"_s), QTimeZone("Asia/Tokyo")});
    EXPECT_NE(here(QAccessible::StaticText, u"Dernière vérification"_s).name, before);
}

TEST_F(UpdatesPage, ItSurvivesASignOut)
{
    open();
    offer(release());
    clickHere(QAccessible::Button, u"Rechercher maintenant"_s);
    store().signOut();
    settleHere();
    here(QAccessible::Notification, u"Version 1.4.0 prête"_s);
}
