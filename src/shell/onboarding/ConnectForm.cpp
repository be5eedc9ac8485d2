#include "shell/onboarding/ConnectForm.h"

#include "async/Settled.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "platform/Wording.h"

using namespace Qt::StringLiterals;

namespace {

const auto TokenPage = u"https://id.atlassian.com/manage-profile/security/api-tokens"_s;

} // namespace

void ConnectForm::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    if (m_store) {
        const SignIn last = m_store->lastSignIn();
        setSite(QString(last.site).remove(u"https://"_s));
        setEmail(last.email);
    }
    Q_EMIT storeChanged();
}

void ConnectForm::setSite(const QString &site)
{
    m_site.set(site);
    refreshCanConnect();
}

void ConnectForm::setToken(const QString &token)
{
    m_token.set(token);
    refreshCanConnect();
}

QString ConnectForm::keychainHint()
{
    return Wording::localized(u"Le token reste dans le trousseau macOS."_s);
}

void ConnectForm::connect()
{
    if (m_store && canConnect())
        spawn(signIn());
}

QCoro::Task<> ConnectForm::signIn()
{
    setConnecting(true);
    m_error.set({});
    const auto outcome =
        co_await whileAlive(this, settled(nullptr, m_store->connect(*m_site, *m_email, *m_token)));
    if (outcome)
        setToken({});
    else
        m_error.set(outcome.error().message);
    setConnecting(false);
}

void ConnectForm::setConnecting(bool connecting)
{
    m_connecting.set(connecting);
    refreshCanConnect();
}

void ConnectForm::refreshCanConnect()
{
    m_canConnect.set(!*m_connecting && !m_site->trimmed().isEmpty() &&
                     !m_token->trimmed().isEmpty());
}

void ConnectForm::openTokenPage()
{
    if (m_store)
        m_store->openAddress(QUrl(TokenPage));
}
