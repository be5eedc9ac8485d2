#pragma once

#include "async/Turns.h"
#include "jira/CredentialsStore.h"
#include "state/SiteSessions.h"

#include <functional>

/// Sessions on Jira sites.
class JiraSessions final : public SiteSessions
{
public:
    /// Opens a back end on a site.
    using MakeClient = std::function<Service(const JiraCredentials &)>;
    /// Is told of the credentials with which a session begins.
    using OnBegin = std::function<void(const JiraCredentials &)>;

    /// Both stores outlive this object and what it began.
    JiraSessions(Preferences &preferences, Keychain &keychain, MakeClient makeClient,
                 OnBegin onBegin);

    SignIn lastSignIn() const override;
    QCoro::Task<Saved> restore() override;
    Service open(const SignIn &signIn) const override;
    QCoro::Task<> keep(SignIn signIn) override;
    QCoro::Task<> forget() override;

    /// Waits until what was to be kept or forgotten is.
    QCoro::Task<> settled();

private:
    // Shared with what waits for its turn, which may outlast this object.
    std::shared_ptr<CredentialsStore> m_credentials;
    MakeClient m_makeClient;
    OnBegin m_onBegin;
    /// Of those that change what is kept.
    Turns m_turns{1};
};
