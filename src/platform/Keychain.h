#pragma once

#include "model/Failure.h"
#include "platform/Clock.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <memory>
#include <variant>

/// The system's store of secrets: one secret text per account. Operations never block, answer on the UI thread, and run
/// one after the other in the order of their calls; the system may ask the user for leave while one is under way. What
/// is still waiting when this object goes ends with `Cancelled`.
class Keychain
{
public:
    struct Found
    {
        QString token;
        bool operator==(const Found &) const = default;
    };
    /// The store, or the user, refused to hand the secret over: it is locked, absent or silent.
    struct Failed
    {
        /// The system's number for the reason.
        qint32 status = 0;
        /// The system's words for it, fit to stand in brackets; empty when it has none.
        QString reason;
        bool operator==(const Failed &) const = default;
    };
    struct Missing
    {
        bool operator==(const Missing &) const = default;
    };
    using Lookup = std::variant<Found, Failed, Missing>;

    /// The store refused to keep a secret.
    class Failure final : public ::Failure
    {
    public:
        /// `text` is what the user reads; without one, the number is told.
        explicit Failure(qint32 status, const QString &text = {});

        qint32 status() const { return m_status; }

    private:
        qint32 m_status;
    };

    /// The name under which all items of this program stand.
    static QString serviceName();
    /// What the system's own tool for secrets shows.
    static QString label(const QString &account);
    /// The store of the system that the program runs on. `clock` outlives it.
    static std::unique_ptr<Keychain> ofThisSystem(Clock &clock);

    Keychain() = default;
    virtual ~Keychain() = default;
    Keychain(const Keychain &) = delete;
    Keychain &operator=(const Keychain &) = delete;

    /// A secret that is no text reads as missing.
    virtual QCoro::Task<Lookup> read(QString account) = 0;
    /// Puts the secret in the place of the one before. Fails with `Keychain::Failure`, and then there may be none.
    virtual QCoro::Task<> save(QString token, QString account) = 0;
    /// Fails never: what cannot be deleted stays.
    virtual QCoro::Task<> remove(QString account) = 0;
};
