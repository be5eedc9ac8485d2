#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "model/JiraError.h"
#include "state/AppStore.h"
#include "state/edits/TransitionChoice.h"

/// Moves the issue to the wished status with a transition of its current workflow. Returns the reached status.
QCoro::Task<IssueStatus> AppStore::moved(QString key, IssueStatus wished)
{
    Session *const session = m_session->get();
    const auto service = session->service();
    const auto offered = co_await whileAlive(session, service->transitions(key));
    const auto chosen = transitionTo(wished, offered);
    if (!chosen)
        throw JiraError(JiraError::TransitionUnavailable{wished.name()});
    co_await whileAlive(session, service->perform(*chosen, key));
    co_return chosen->to;
}

void AppStore::setStatus(const IssueStatus &status, const QStringList &keys)
{
    if (!*m_session)
        return;
    QList<OptimisticEdit> edits;
    for (const SharedIssue &issue : knownIssues(keys)) {
        if (const auto edit = statusEdit(*issue, status, m_context.clock.now()))
            edits += *edit;
    }
    const auto ids = show(edits);
    for (qsizetype i = 0; i < ids.size(); ++i)
        spawn(transition(edits[i].key, ids[i], status));
}

QCoro::Task<> AppStore::transition(QString key, OpenEdits::Id id, IssueStatus wished)
{
    Session *const session = m_session->get();
    const auto service = session->service();
    const PendingWrites::Token write = m_writes.begin();
    const auto turn = co_await whileAlive(session, session->transitionTurns.next());
    const auto reached = co_await whileAlive(session, settled(service, moved(key, wished)));
    if (!reached) {
        undo(id, reached.error());
        co_return;
    }
    showConfirmed(session->edits.confirm(id, *reached, m_context.clock.now()));
    // The offered transitions depend on the current status.
    const OpenEdits::Reading reading = session->edits.beginReading(m_context.clock.now());
    const auto offered = co_await whileAlive(session, settled(service, service->transitions(key)));
    if (session->edits.mayLackStatus(key, reading))
        co_return;
    if (offered)
        m_transitions.insert(key, *offered);
    else
        m_transitions.remove(key);
}
