#include "shell/settings/Account.h"

using namespace Qt::StringLiterals;

void Account::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::phaseChanged, this, &Account::changed);
        connect(m_store, &AppStore::sessionChanged, this, &Account::changed);
        connect(m_store, &AppStore::meChanged, this, &Account::changed);
    }
    Q_EMIT changed();
}

bool Account::isOpen() const
{
    return m_store && m_store->phase() == AppStore::Phase::Ready;
}

bool Account::isDemo() const
{
    return m_store && m_store->isDemo();
}

bool Account::needsForm() const
{
    return !isOpen() || isDemo();
}

QString Account::title() const
{
    return isDemo() ? u"Mode démo"_s : u"Connecté à Jira Cloud"_s;
}

QString Account::signOutTitle() const
{
    return isDemo() ? u"Quitter la démo"_s : u"Se déconnecter"_s;
}

QString Account::email() const
{
    const auto &me = m_store ? m_store->me() : std::nullopt;
    return me ? me->email.value_or(QString()) : QString();
}
