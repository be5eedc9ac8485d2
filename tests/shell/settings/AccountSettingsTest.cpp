#include "model/JiraError.h"
#include "shell/settings/SettingsFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto Site = u"https://exemple.atlassian.net"_s;
const auto Form = u"Connexion Jira Cloud"_s;

} // namespace

class AccountPage : public SettingsFixture
{
protected:
    void openOnSite()
    {
        saveCredentials(Site, u"noam@exemple.fr"_s, u"jeton"_s);
        openSignedOut();
        ASSERT_TRUE(QTest::qWaitFor([&] { return store().phase() == AppStore::Phase::Ready; }));
    }
    void fill(const QString &token)
    {
        ASSERT_TRUE(tabTo(QAccessible::EditableText, u"Site Jira"_s));
        typeHere(u"exemple"_s);
        pressHere(Qt::Key_Tab);
        pressHere(Qt::Key_Tab);
        typeHere(token);
    }
};

TEST_F(AccountPage, InADemoSessionBothSectionsStandOneAboveTheOther)
{
    openOnDemo();
    showSettings();
    const QRect account = here(QAccessible::Heading, u"Mode démo"_s).box;
    const QRect form = here(QAccessible::Heading, Form).box;
    EXPECT_LT(account.bottom(), form.top());
    here(QAccessible::StaticText, u"Site : "_s);
    here(QAccessible::StaticText, u"Projets : 1"_s);
    here(QAccessible::Button, u"Quitter la démo"_s);
    here(QAccessible::StaticText, u"Pour Jira Data Center, laisse l'e-mail vide"_s);
}

TEST_F(AccountPage, WhileSignedOutOnlyTheFormStands)
{
    openSignedOut();
    showSettings();
    here(QAccessible::Heading, Form);
    EXPECT_EQ(spokenIn(settings(), QAccessible::Heading).size(), 1);
    here(QAccessible::EditableText, u"Token API"_s);
}

TEST_F(AccountPage, WhileLaunchingOnlyTheFormStands)
{
    saveCredentials(Site, u"noam@exemple.fr"_s, u"jeton"_s);
    beforeOpening = [this] { keychain->reads.hold(); };
    openLaunching();
    showSettings();
    here(QAccessible::Heading, Form);
    EXPECT_EQ(spokenIn(settings(), QAccessible::Heading).size(), 1);
}

TEST_F(AccountPage, AConnectedUserSeesTheAccountAndNoForm)
{
    openOnSite();
    showSettings();
    here(QAccessible::Heading, u"Connecté à Jira Cloud"_s);
    EXPECT_FALSE(isHere(QAccessible::Heading, Form));
    EXPECT_FALSE(isHere(QAccessible::EditableText, u"Token API"_s));
    here(QAccessible::StaticText, u"Noam Talvère"_s);
    here(QAccessible::StaticText, u"Projets : 1"_s);
    here(QAccessible::Button, u"Se déconnecter"_s);
}

TEST_F(AccountPage, ADemoUserConnectsARealSiteAndTheSectionIsReplacedInPlace)
{
    openOnDemo();
    showSettings();
    fill(u"jeton"_s);
    pressHere(Qt::Key_Return);
    here(QAccessible::Heading, u"Connecté à Jira Cloud"_s);
    EXPECT_TRUE(isGoneHere(QAccessible::Heading, Form));
    EXPECT_FALSE(store().isDemo());
    EXPECT_EQ(clientsMade.size(), 1);
    EXPECT_FALSE(isHere(QAccessible::Heading, u"Mode démo"_s));
}

TEST_F(AccountPage, ARefusedSignInSaysWhyAndKeepsTheDemo)
{
    openOnDemo();
    showSettings();
    service->currentUserCalls.failWith(JiraError(JiraError::Http{401, {}}));
    fill(u"jeton"_s);
    pressHere(Qt::Key_Return);
    here(QAccessible::AlertMessage, u"Jira a refusé les identifiants (401)"_s);
    EXPECT_TRUE(store().isDemo());
    here(QAccessible::Heading, u"Mode démo"_s);
}

TEST_F(AccountPage, LeavingTheDemoLeavesTheFormAndTheKeyboardWorks)
{
    openOnDemo();
    showSettings();
    ASSERT_TRUE(tabTo(QAccessible::Button, u"Quitter la démo"_s));
    pressHere(Qt::Key_Space);
    EXPECT_TRUE(isGoneHere(QAccessible::Heading, u"Mode démo"_s));
    EXPECT_EQ(store().phase(), AppStore::Phase::SignedOut);
    here(QAccessible::Heading, Form);
    EXPECT_TRUE(tabTo(QAccessible::EditableText, u"Site Jira"_s));
}

TEST_F(AccountPage, ASignOutWhileTheSettingsAreOpenShowsTheFormWithTheLastSite)
{
    openOnSite();
    showSettings();
    clickHere(QAccessible::Button, u"Se déconnecter"_s);
    here(QAccessible::Heading, Form);
    EXPECT_EQ(here(QAccessible::EditableText, u"Site Jira"_s).value, u"exemple.atlassian.net"_s);
    EXPECT_FALSE(isHere(QAccessible::Heading, u"Connecté à Jira Cloud"_s));
    EXPECT_TRUE(keychain->items.empty());
}

TEST_F(AccountPage, ASecondSessionShowsItsOwnAccount)
{
    openOnSite();
    showSettings();
    here(QAccessible::StaticText, u"Noam Talvère"_s);
    store().signOut();
    service->currentUserCalls.answerWith(
        JiraUser{u"u2"_s, u"Lise Aubrac"_s, u"lise@exemple.fr"_s, {}});
    here(QAccessible::Heading, Form);
    ASSERT_TRUE(tabTo(QAccessible::EditableText, u"Token API"_s));
    typeHere(u"autre"_s);
    pressHere(Qt::Key_Return);
    here(QAccessible::StaticText, u"Lise Aubrac, lise@exemple.fr"_s);
    EXPECT_FALSE(isHere(QAccessible::StaticText, u"Noam Talvère"_s));
}

TEST_F(AccountPage, AScreenReaderThatPressesTheDisabledButtonSendsNothing)
{
    openSignedOut();
    showSettings();
    const int before = service->currentUserCalls.count();
    EXPECT_TRUE(pressAction(settings(), QAccessible::Button, u"Se connecter"_s));
    settleHere();
    EXPECT_EQ(service->currentUserCalls.count(), before);
}

TEST_F(AccountPage, AnAnswerAfterTheWindowWasClosedStillOpensTheSession)
{
    openSignedOut();
    showSettings();
    service->currentUserCalls.hold();
    fill(u"jeton"_s);
    pressHere(Qt::Key_Return);
    ASSERT_EQ(service->currentUserCalls.count(), 1);
    settings().close();
    QCoreApplication::processEvents();
    service->currentUserCalls.last().finish(JiraUser{u"u1"_s, u"Noam Talvère"_s, {}, {}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return store().phase() == AppStore::Phase::Ready; }));
    EXPECT_FALSE(store().isDemo());
    EXPECT_FALSE(app->scenes().settingsWindow());
}

TEST_F(AccountPage, ALongSiteNameStaysInTheCard)
{
    service->site = u"une-equipe."_s.repeated(18) + u"example"_s;
    openOnSite();
    showSettings();
    const QRect site = here(QAccessible::StaticText, u"Site : "_s).box;
    EXPECT_LE(site.right(), 576);
    EXPECT_GT(site.height(), 40);
    EXPECT_LT(site.bottom(), here(QAccessible::StaticText, u"Projets : "_s).box.top() + 2);
}
