#pragma once

#include "model/JiraError.h"
#include "state/SiteSessions.h"
#include "support/ScriptedCall.h"

/// Sessions on sites in the hands of a test. Nothing is saved, and everything is kept, until a test says otherwise.
class ScriptedSessions final : public SiteSessions
{
public:
    /// The back end of every session opened.
    Service service;
    /// What each session opened calls when it begins.
    std::function<void()> onBegin = [] {};
    SignIn last;
    /// Whether `open` takes what was typed for the address of a site.
    bool isSiteValid = true;
    /// What was typed at each `open`, in order.
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

    /// How often the store of secrets would have been asked.
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
