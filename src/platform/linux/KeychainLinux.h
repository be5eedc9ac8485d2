#pragma once

#include "async/Turns.h"
#include "platform/Keychain.h"

class GLibCalls;

/// The desktop's Secret Service (GNOME Keyring, KWallet and others) through libsecret. Every operation looks the service
/// up anew, so a service that was restarted is found again. Qt's event loop must be GLib's, as it is unless it was told
/// otherwise; if it is not, every operation ends as timed out.
class KeychainLinux final : public Keychain
{
public:
    /// The reasons of a refusal that have words of ours; any other number is the service's own, and positive.
    enum Status : qint32 { Locked = -1, Absent = -2, TimedOut = -3 };

    /// How long a service may take to answer, and a user to whom the desktop shows a question.
    static constexpr std::chrono::seconds ServiceLimit{10};
    static constexpr std::chrono::seconds PromptLimit{180};

    /// `clock` outlives this object.
    explicit KeychainLinux(Clock &clock);
    ~KeychainLinux() override;

    QCoro::Task<Lookup> read(QString account) override;
    QCoro::Task<> save(QString token, QString account) override;
    QCoro::Task<> remove(QString account) override;

private:
    std::shared_ptr<GLibCalls> m_calls;
    Turns m_turns{1};
};
