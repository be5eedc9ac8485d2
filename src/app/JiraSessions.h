#pragma once

#include "async/Turns.h"
#include "jira/CredentialsStore.h"
#include "state/SiteSessions.h"

#include <functional>

/// The sessions on Jira sites.
class JiraSessions final : public SiteSessions
{
public:
    /// Creates a back end for a site.
    using MakeClient = std::function<Service(const JiraCredentials &)>;
    /// Called with the credentials of each new session.
    using OnBegin = std::function<void(const JiraCredentials &)>;

    /// Both stores must outlive this object and the operations that it started.
    JiraSessions(Preferences &preferences, Keychain &keychain, MakeClient makeClient,
                 OnBegin onBegin);

    SignIn lastSignIn() const override;
    QCoro::Task<Saved> restore() override;
    Opened open(const SignIn &signIn) const override;
    QCoro::Task<> keep(SignIn signIn) override;
    QCoro::Task<> forget() override;

    /// Waits until all pending saves and removals of credentials are complete.
    QCoro::Task<> settled();

private:
    Opened opened(const JiraCredentials &credentials) const;

    // Shared with waiting operations, which may outlive this object.
    std::shared_ptr<CredentialsStore> m_credentials;
    MakeClient m_makeClient;
    OnBegin m_onBegin;
    /// The turns of the operations that change the stored credentials, so that they run one after the other.
    Turns m_turns{1};
};
