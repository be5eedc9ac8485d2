#pragma once

#include "model/IssueService.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <functional>
#include <memory>
#include <variant>

/// The input of the sign-in form.
struct SignIn
{
    QString site;
    /// Empty for a personal access token of a self-hosted site.
    QString email;
    QString token;

    bool operator==(const SignIn &) const = default;
};

/// The interface through which the store opens sessions on real sites and keeps credentials. UI thread only.
class SiteSessions
{
public:
    using Service = std::shared_ptr<IssueService>;
    /// A back end that is ready for a session.
    struct Opened
    {
        Service service;
        /// To be called when the session begins.
        std::function<void()> onBegin = [] {};
    };
    /// There may be a saved session, but the system refused access to it.
    struct Blocked
    {
        /// The message for the user.
        QString text;
    };
    /// No session is saved.
    struct None
    {
    };
    using Saved = std::variant<Opened, Blocked, None>;

    SiteSessions() = default;
    virtual ~SiteSessions() = default;
    SiteSessions(const SiteSessions &) = delete;
    SiteSessions &operator=(const SiteSessions &) = delete;

    /// The site and the e-mail of the last sign-in, also after a sign-out; no token.
    virtual SignIn lastSignIn() const = 0;
    /// Opens a session with the saved credentials, which are not verified.
    virtual QCoro::Task<Saved> restore() = 0;
    /// Opens a session with these credentials, which are neither verified nor saved. Fails with
    /// `JiraError::InvalidSite`, and with `Failure` for an e-mail or a token that cannot be one.
    virtual Opened open(const SignIn &signIn) const = 0;
    /// Saves the credentials for the next start. Fails with the message of the system's secret store.
    virtual QCoro::Task<> keep(SignIn signIn) = 0;
    /// Deletes the token of the last sign-in. Fails with the message of the system's secret store.
    virtual QCoro::Task<> forget() = 0;
};
