#pragma once

#include "platform/Keychain.h"

/// The user's keychain. Its calls are synchronous and may wait for the system's own question to the user; each is made
/// from the event loop, never within the caller's turn, so that the window stands first.
class KeychainMac final : public Keychain
{
public:
    /// `clock` outlives this object.
    explicit KeychainMac(Clock &clock) : m_clock(clock) {}

    QCoro::Task<Lookup> read(QString account) override;
    QCoro::Task<> save(QString token, QString account) override;
    QCoro::Task<> remove(QString account) override;

private:
    Clock &m_clock;
};
