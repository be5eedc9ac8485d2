#include "app/JiraSessions.h"

namespace {

JiraCredentials credentialsOf(const SignIn &signIn)
{
    return JiraCredentials::typed(signIn.site, signIn.email, signIn.token);
}

} // namespace

JiraSessions::JiraSessions(Preferences &preferences, Keychain &keychain, MakeClient makeClient,
                           OnBegin onBegin)
    : m_credentials(std::make_shared<CredentialsStore>(preferences, keychain)),
      m_makeClient(std::move(makeClient)),
      m_onBegin(std::move(onBegin))
{
}

SignIn JiraSessions::lastSignIn() const
{
    return {m_credentials->site(), m_credentials->email(), {}};
}

QCoro::Task<SiteSessions::Saved> JiraSessions::restore()
{
    const CredentialsStore::Stored stored = co_await m_credentials->load();
    if (const auto *blocked = std::get_if<CredentialsStore::Blocked>(&stored))
        co_return Blocked{blocked->text};
    if (const auto *credentials = std::get_if<JiraCredentials>(&stored)) {
        co_return opened(*credentials);
    }
    co_return None();
}

SiteSessions::Opened JiraSessions::open(const SignIn &signIn) const
{
    return opened(credentialsOf(signIn));
}

SiteSessions::Opened JiraSessions::opened(const JiraCredentials &credentials) const
{
    return {m_makeClient(credentials),
            [credentials, onBegin = m_onBegin] { onBegin(credentials); }};
}

QCoro::Task<> JiraSessions::keep(SignIn signIn)
{
    const JiraCredentials credentials = credentialsOf(signIn);
    const auto store = m_credentials;
    const auto turn = co_await m_turns.next();
    co_await store->save(credentials);
}

QCoro::Task<> JiraSessions::forget()
{
    const auto store = m_credentials;
    const auto turn = co_await m_turns.next();
    co_await store->removeToken();
}

QCoro::Task<> JiraSessions::settled()
{
    co_await m_turns.next();
}
