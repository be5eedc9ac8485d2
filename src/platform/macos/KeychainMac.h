#pragma once

#include "platform/Keychain.h"

/// The user's keychain. Its functions are synchronous and may block while the system asks the user. Each is therefore
/// called from the event loop and not directly in the caller's function, so that the window is displayed first.
class KeychainMac final : public Keychain
{
public:
    /// `clock` must outlive this object.
    explicit KeychainMac(Clock &clock) : m_clock(clock) {}

    QCoro::Task<Lookup> read(QString account) override;
    QCoro::Task<> save(QString token, QString account) override;
    QCoro::Task<> remove(QString account) override;

private:
    Clock &m_clock;
};
