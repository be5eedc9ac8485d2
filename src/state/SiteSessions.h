#pragma once

#include "model/IssueService.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <functional>
#include <memory>
#include <variant>

/// What someone types to sign in.
struct SignIn
{
    QString site;
    /// Empty for a personal access token of a site of one's own.
    QString email;
    QString token;

    bool operator==(const SignIn &) const = default;
};

/// The way to sessions on real sites, and where credentials are kept, as the store needs it. UI thread only.
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
    /// There may be a saved session, but the system refused to hand it over.
    struct Blocked
    {
        /// What the user reads.
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
    /// A session with the saved credentials, which are not tried.
    virtual QCoro::Task<Saved> restore() = 0;
    /// A session with these credentials, which are neither tried nor kept. Fails with `JiraError::InvalidSite`.
    virtual Opened open(const SignIn &signIn) const = 0;
    /// Keeps the credentials for the next start. Fails with the words of the system's store of secrets.
    virtual QCoro::Task<> keep(SignIn signIn) = 0;
    /// Deletes the token of the last sign-in; never fails.
    virtual QCoro::Task<> forget() = 0;
};
