#include "platform/linux/KeychainLinux.h"

#include "platform/linux/KeychainRefusal.h"
#include "platform/linux/SecretSteps.h"

#include <QStringDecoder>

namespace {

using SecretSteps::Calls;

Keychain::Lookup lookupOf(const QByteArray &secret)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString token = decoder(secret);
    if (decoder.hasError())
        return Keychain::Missing();
    return Keychain::Found{token};
}

QCoro::Task<Keychain::Lookup> readThrough(Calls calls, QString account)
{
    const auto service = co_await SecretSteps::open(calls);
    auto items = co_await SecretSteps::find(calls, service, account);
    if (items.empty())
        co_return Keychain::Missing();
    items.resize(1);
    co_await SecretSteps::unlock(calls, service, items);
    const QByteArray secret = co_await SecretSteps::secretOf(calls, items.front());
    co_return lookupOf(secret);
}

/// Deletes all items of the account. If they are locked, the desktop asks the user; no item is deleted if one of them
/// stays locked.
QCoro::Task<> clear(Calls calls, SecretSteps::Service service, QString account)
{
    const auto items = co_await SecretSteps::find(calls, service, account);
    co_await SecretSteps::unlock(calls, service, items);
    for (const auto &item : items)
        co_await SecretSteps::erase(calls, item);
}

/// The old item is deleted first, so that no item is left after a failed save.
QCoro::Task<> saveThrough(Calls calls, QString token, QString account)
{
    const auto service = co_await SecretSteps::open(calls);
    co_await clear(calls, service, account);
    co_await SecretSteps::store(calls, service, account, token.toUtf8());
}

QCoro::Task<> removeThrough(Calls calls, QString account)
{
    const auto service = co_await SecretSteps::open(calls);
    co_await clear(calls, service, account);
}

} // namespace

KeychainLinux::KeychainLinux(Clock &clock) : m_calls(std::make_shared<GLibCalls>(clock)) {}

KeychainLinux::~KeychainLinux()
{
    m_calls->close();
}

// An operation does not use this object after it got its turn, because the object may have been destroyed by then.

QCoro::Task<Keychain::Lookup> KeychainLinux::read(QString account)
{
    const auto calls = m_calls;
    const auto turn = co_await m_turns.next();
    try {
        co_return co_await readThrough(calls, account);
    } catch (const KeychainRefusal &refusal) {
        co_return asLookup(refusal);
    }
}

QCoro::Task<> KeychainLinux::save(QString token, QString account)
{
    const auto calls = m_calls;
    const auto turn = co_await m_turns.next();
    try {
        co_await saveThrough(calls, token, account);
    } catch (const KeychainRefusal &refusal) {
        throw asFailure(refusal);
    }
}

QCoro::Task<> KeychainLinux::remove(QString account)
{
    const auto calls = m_calls;
    const auto turn = co_await m_turns.next();
    try {
        co_await removeThrough(calls, account);
    } catch (const KeychainRefusal &refusal) {
        throw asFailure(refusal);
    }
}

std::unique_ptr<Keychain> Keychain::ofThisSystem(Clock &clock)
{
    return std::make_unique<KeychainLinux>(clock);
}
