#pragma once

#include "async/Turns.h"
#include "platform/Keychain.h"

class GLibCalls;

/// The desktop's Secret Service (GNOME Keyring, KWallet and others), used through libsecret. Every operation connects
/// to the service again, so a restarted service is found. Qt must run on the event loop of GLib, which is the default
/// on Linux. With another event loop, every operation ends with a timeout.
class KeychainLinux final : public Keychain
{
public:
    /// The error codes for which the program has its own text. Every other code is the service's own and positive.
    enum Status : qint32 { Locked = -1, Absent = -2, TimedOut = -3 };

    /// The time limits for a response of the service and for an operation in which the desktop may ask the user.
    static constexpr std::chrono::seconds ServiceLimit{10};
    static constexpr std::chrono::seconds PromptLimit{180};

    /// `clock` must outlive this object.
    explicit KeychainLinux(Clock &clock);
    ~KeychainLinux() override;

    QCoro::Task<Lookup> read(QString account) override;
    QCoro::Task<> save(QString token, QString account) override;
    QCoro::Task<> remove(QString account) override;

private:
    std::shared_ptr<GLibCalls> m_calls;
    Turns m_turns{1};
};
