#pragma once

#include "model/Failure.h"
#include "platform/Clock.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <memory>
#include <variant>

/// The system's store for secrets. It holds one secret text per account. Operations do not block, return their results
/// on the UI thread, and run one after the other in the order of the calls. The system may ask the user for permission
/// during an operation. When this object is destroyed, waiting operations end with `Cancelled`.
class Keychain
{
public:
    struct Found
    {
        QString token;
        bool operator==(const Found &) const = default;
    };
    /// The store or the user did not release the secret: the store is locked, missing or does not respond.
    struct Failed
    {
        /// The system's error code.
        qint32 status = 0;
        /// The system's description of the error, in a form that can be put in parentheses; empty if it has none.
        QString reason;
        bool operator==(const Failed &) const = default;
    };
    struct Missing
    {
        bool operator==(const Missing &) const = default;
    };
    using Lookup = std::variant<Found, Failed, Missing>;

    /// The store did not save or delete a secret.
    class Failure final : public ::Failure
    {
    public:
        /// `text` is the text for the user. If it is empty, the text contains the error code instead.
        explicit Failure(qint32 status, const QString &text = {});

        qint32 status() const { return m_status; }

    private:
        qint32 m_status;
    };

    /// The service name under which all items of this program are stored.
    static QString serviceName();
    /// The label of an account's item, which the system's own tool for secrets displays.
    static QString label(const QString &account);
    /// Creates the store for the operating system that the program runs on. `clock` must outlive it.
    static std::unique_ptr<Keychain> ofThisSystem(Clock &clock);

    Keychain() = default;
    virtual ~Keychain() = default;
    Keychain(const Keychain &) = delete;
    Keychain &operator=(const Keychain &) = delete;

    /// The secret of the account. A secret that is not valid text counts as missing.
    virtual QCoro::Task<Lookup> read(QString account) = 0;
    /// Saves the secret and replaces the previous one. Fails with `Keychain::Failure`; after a failure the account may
    /// have no secret.
    virtual QCoro::Task<> save(QString token, QString account) = 0;
    /// Deletes the secret, if there is one. Fails with `Keychain::Failure`; the secret may then still be there.
    virtual QCoro::Task<> remove(QString account) = 0;
};
