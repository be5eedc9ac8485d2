#pragma once

#include "screens/composer/Composition.h"
#include "support/ManualClock.h"
#include "support/ScriptedCall.h"

/// A composition with known users, whose comments and files go where a test sees them.
class ScriptedComposition : public Composition
{
public:
    ScriptedComposition() { restart(); }

    using Composition::restart;

    ManualClock time;
    QList<JiraUser> people;
    ScriptedCalls<QList<JiraUser>, QString> searches;
    ScriptedCalls<bool, OutgoingComment> posts;
    ScriptedCalls<QList<Attachment>, QList<QUrl>> uploads;

protected:
    Clock &clock() override { return time; }
    QList<JiraUser> candidates() const override { return people; }
    QCoro::Task<QList<JiraUser>> search(QString words, std::stop_token stop) override
    {
        return searches.call(std::move(stop), std::move(words));
    }
    QCoro::Task<bool> post(OutgoingComment comment) override
    {
        return posts.call({}, std::move(comment));
    }
    QCoro::Task<QList<Attachment>> upload(QList<QUrl> files) override
    {
        return uploads.call({}, std::move(files));
    }
};
