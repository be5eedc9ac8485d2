#include "shell/onboarding/ConnectForm.h"

#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

namespace {

const JiraError Refused(JiraError::Http{401, {}});

class ConnectFormTest : public AppStoreFixture
{
protected:
    ~ConnectFormTest() override { form.reset(); }

    void makeForm()
    {
        form = std::make_unique<ConnectForm>();
        form->setStore(store.get());
    }
    void fill(const QString &site, const QString &email, const QString &token)
    {
        form->setSite(site);
        form->setEmail(email);
        form->setToken(token);
    }

    std::unique_ptr<ConnectForm> form;
};

TEST_F(ConnectFormTest, withNothingStoredTheFieldsAreEmpty)
{
    makeForm();

    EXPECT_TRUE(form->site().isEmpty() && form->email().isEmpty() && form->token().isEmpty());
    EXPECT_FALSE(form->canConnect());
}

TEST_F(ConnectFormTest, aStoredSiteShowsWithoutItsSchemeAndTheTokenIsNotReadBack)
{
    sessions.last = {u"https://exemple.atlassian.net"_s, u"noam@exemple.fr"_s, u"jeton"_s};
    makeForm();

    EXPECT_EQ(form->site(), u"exemple.atlassian.net"_s);
    EXPECT_EQ(form->email(), u"noam@exemple.fr"_s);
    EXPECT_TRUE(form->token().isEmpty());
}

TEST_F(ConnectFormTest, aStoredPlainHttpSiteKeepsItsScheme)
{
    sessions.last = {u"http://10.0.0.7:8080"_s, {}, {}};
    makeForm();

    EXPECT_EQ(form->site(), u"http://10.0.0.7:8080"_s);
}

TEST_F(ConnectFormTest, aSiteOfBlanksLeavesTheButtonDisabled)
{
    makeForm();
    fill(u" \t\n"_s, u"noam@exemple.fr"_s, u"jeton"_s);

    EXPECT_FALSE(form->canConnect());
}

TEST_F(ConnectFormTest, aTokenOfBlanksLeavesTheButtonDisabled)
{
    makeForm();
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u" \n"_s);

    EXPECT_FALSE(form->canConnect());
}

TEST_F(ConnectFormTest, anEmptyEmailWithSiteAndTokenEnablesTheButton)
{
    makeForm();
    fill(u"jira.exemple.fr"_s, {}, u"jeton"_s);

    EXPECT_TRUE(form->canConnect());
}

TEST_F(ConnectFormTest, connectingWithTheButtonDisabledDoesNothing)
{
    makeForm();
    fill(u"  "_s, {}, u"jeton"_s);
    form->connect();

    EXPECT_FALSE(form->connecting());
    EXPECT_TRUE(sessions.opened.isEmpty());
}

TEST_F(ConnectFormTest, whileItConnectsTheButtonIsDisabledAndTheOldErrorIsGone)
{
    makeForm();
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s);
    form->connect();
    service->currentUserCalls[0].fail(Refused);
    ASSERT_FALSE(form->error().isEmpty());
    form->connect();
    form->connect();

    EXPECT_TRUE(form->connecting());
    EXPECT_FALSE(form->canConnect());
    EXPECT_TRUE(form->error().isEmpty());
    EXPECT_EQ(sessions.opened.size(), 2) << "the second press finds it connecting";
}

TEST_F(ConnectFormTest, aFailedSignInSaysWhyAndKeepsTheTokenToBeMended)
{
    makeForm();
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jetno"_s);
    form->connect();
    service->currentUserCalls[0].fail(Refused);

    EXPECT_EQ(form->error(),
              u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s);
    EXPECT_EQ(form->token(), u"jetno"_s);
    EXPECT_EQ(form->site(), u"exemple"_s);
    EXPECT_TRUE(form->canConnect());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(ConnectFormTest, anInvalidSiteSaysSo)
{
    sessions.keepCalls.hold();
    makeForm();
    fill(u"://"_s, {}, u"jeton"_s);
    sessions.isSiteValid = false;
    form->connect();

    EXPECT_EQ(form->error(), JiraError(JiraError::InvalidSite{}).message());
    EXPECT_FALSE(form->connecting());
}

TEST_F(ConnectFormTest, aRefusalOfTheStoreOfSecretsIsToldToo)
{
    sessions.keepCalls.failWith(Failure(u"Le trousseau est verrouillé."_s));
    makeForm();
    fill(u"exemple"_s, {}, u"jeton"_s);
    form->connect();
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));

    EXPECT_EQ(form->error(), u"Le trousseau est verrouillé."_s);
}

TEST_F(ConnectFormTest, afterSuccessTheTokenIsGoneFromTheForm)
{
    answerEverything();
    makeForm();
    fill(u"exemple"_s, {}, u"jeton"_s);
    form->connect();

    EXPECT_EQ(store->phase(), AppStore::Phase::Ready);
    EXPECT_TRUE(form->token().isEmpty());
    EXPECT_FALSE(form->connecting());
    EXPECT_TRUE(form->error().isEmpty());
}

TEST_F(ConnectFormTest, aFormThatGoesDuringASignInDoesNotHinderIt)
{
    makeForm();
    fill(u"exemple"_s, {}, u"jeton"_s);
    form->connect();
    form.reset();
    answerEverything();
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));

    EXPECT_EQ(store->phase(), AppStore::Phase::Ready);
}

TEST_F(ConnectFormTest, anErrorCanBeDismissed)
{
    makeForm();
    fill(u"exemple"_s, {}, u"jeton"_s);
    form->connect();
    service->currentUserCalls[0].fail(Refused);
    form->dismissError();

    EXPECT_TRUE(form->error().isEmpty());
}

TEST_F(ConnectFormTest, thePageOfTokensOpensInTheBrowser)
{
    makeForm();
    form->openTokenPage();

    EXPECT_EQ(desktop.opened,
              QList{QUrl(u"https://id.atlassian.com/manage-profile/security/api-tokens"_s)});
}

} // namespace
