#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "model/JiraError.h"
#include "state/AppStore.h"
#include "state/edits/TransitionChoice.h"

namespace {

/// Takes the issue to the wished status by its workflow, as it is at this moment; gives the status really reached.
QCoro::Task<IssueStatus> moved(std::shared_ptr<IssueService> service, QString key,
                               IssueStatus wished)
{
    const auto offered = co_await service->transitions(key);
    const auto chosen = transitionTo(wished, offered);
    if (!chosen)
        throw JiraError(JiraError::TransitionUnavailable{wished.name()});
    co_await service->perform(*chosen, key);
    co_return chosen->to;
}

} // namespace

void AppStore::setStatus(const IssueStatus &status, const QStringList &keys)
{
    if (!*m_service)
        return;
    QList<OptimisticEdit> edits;
    for (const SharedIssue &issue : knownIssues(keys)) {
        if (const auto edit = statusEdit(*issue, status, m_context.clock.now()))
            edits += *edit;
    }
    show(edits);
    for (const OptimisticEdit &edit : edits)
        spawn(transition(edit, status));
}

QCoro::Task<> AppStore::transition(OptimisticEdit edit, IssueStatus wished)
{
    const auto service = *m_service;
    const auto turn = co_await whileAlive(this, m_transitionTurns.next());
    const auto reached =
        co_await whileAlive(this, settled(service, moved(service, edit.key, wished)));
    if (!reached) {
        undo(edit, reached.error());
        co_return;
    }
    mutate({{edit.key, [&reached](Issue &issue) { issue.status = *reached; }}});
    // What the workflow offers depends on the present status.
    const auto offered =
        co_await whileAlive(this, settled(service, service->transitions(edit.key)));
    if (offered)
        m_transitions.insert(edit.key, *offered);
    else
        m_transitions.remove(edit.key);
}
