#pragma once

#include "model/JiraError.h"
#include "state/SiteSessions.h"
#include "support/ScriptedCall.h"

/// Sessions on sites that a test controls. By default no sign-in is saved, and saving and deleting one succeed.
class ScriptedSessions final : public SiteSessions
{
public:
    /// The service of every opened session.
    Service service;
    /// Called by each opened session when it begins.
    std::function<void()> onBegin = [] {};
    SignIn last;
    /// Whether `open` accepts the entered site address.
    bool isSiteValid = true;
    /// What was entered for each `open`, in order.
    mutable QList<SignIn> opened;
    ScriptedCalls<Saved> restoreCalls;
    ScriptedCalls<void, SignIn> keepCalls;
    ScriptedCalls<void> forgetCalls;

    ScriptedSessions()
    {
        restoreCalls.answerWith(None());
        keepCalls.answerWith();
        forgetCalls.answerWith();
    }

    /// The number of requests that the keyring would have received.
    int asked() const { return restoreCalls.count() + keepCalls.count() + forgetCalls.count(); }
    void cancelPending()
    {
        restoreCalls.cancelPending();
        keepCalls.cancelPending();
        forgetCalls.cancelPending();
    }

    SignIn lastSignIn() const override { return last; }
    QCoro::Task<Saved> restore() override { return restoreCalls.call({}); }
    Opened open(const SignIn &signIn) const override
    {
        opened += signIn;
        if (!isSiteValid)
            throw JiraError(JiraError::InvalidSite{});
        return {service, onBegin};
    }
    QCoro::Task<> keep(SignIn signIn) override { return keepCalls.call({}, signIn); }
    QCoro::Task<> forget() override { return forgetCalls.call({}); }
};
