#pragma once

#include "platform/Keychain.h"
#include "support/ScriptedCall.h"

#include <map>

/// A store for secrets under the control of a test. It works like a real one until a test scripts one of its
/// operations.
class FakeKeychain final : public Keychain
{
public:
    /// The tokens by account.
    std::map<QString, QString> items;
    ScriptedCalls<Lookup, QString> reads;
    /// The arguments are the token and the account.
    ScriptedCalls<void, QString, QString> saves;
    ScriptedCalls<void, QString> removals;

    FakeKeychain()
    {
        reads.answerBy([this](const QString &account) { return lookUp(account); });
        saves.answerBy([this](const QString &token, const QString &account) {
            items[account] = token;
            return std::monostate();
        });
        removals.answerBy([this](const QString &account) {
            items.erase(account);
            return std::monostate();
        });
    }
    ~FakeKeychain() override
    {
        reads.cancelPending();
        saves.cancelPending();
        removals.cancelPending();
    }

    /// The number of operations that were called.
    int asked() const { return reads.count() + saves.count() + removals.count(); }

    QCoro::Task<Lookup> read(QString account) override { return reads.call({}, account); }
    QCoro::Task<> save(QString token, QString account) override
    {
        return saves.call({}, token, account);
    }
    QCoro::Task<> remove(QString account) override { return removals.call({}, account); }

private:
    Lookup lookUp(const QString &account) const
    {
        const auto found = items.find(account);
        return found == items.end() ? Lookup(Missing()) : Lookup(Found{found->second});
    }
};
