#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/edits/DocumentComposing.h"

namespace {

/// The edits that the issues need; `makeEdit` returns nothing for an issue that already has the wanted value.
template <typename MakeEdit>
QList<OptimisticEdit> neededEdits(const IssueList &issues, const MakeEdit &makeEdit)
{
    QList<OptimisticEdit> edits;
    for (const SharedIssue &issue : issues) {
        if (std::optional<OptimisticEdit> edit = makeEdit(*issue))
            edits += *std::move(edit);
    }
    return edits;
}

/// The issue with the requested key. An issue that was moved on the site can be opened by its former key, and is then
/// stored under that key.
SharedIssue underKey(const SharedIssue &issue, const QString &key)
{
    if (issue->key == key)
        return issue;
    Issue copy = *issue;
    copy.key = key;
    return copy;
}

QCoro::Task<> sent(std::shared_ptr<IssueService> service, OptimisticEdit edit)
{
    const auto *assignment = std::get_if<FieldEdit<&Issue::assignee>>(&edit.change);
    const auto *removal = std::get_if<AttachmentRemoval>(&edit.change);
    if (assignment)
        co_await service->assign(edit.key, assignment->after);
    else if (removal)
        co_await service->deleteAttachment(removal->attachment.id);
    else if (const auto update = edit.fieldUpdate())
        co_await service->update(edit.key, *update);
}

} // namespace

void AppStore::setPriority(const IssuePriority &priority, const QStringList &keys)
{
    carryOut(neededEdits(knownIssues(keys),
                         [&](const Issue &issue) { return priorityEdit(issue, priority); }));
}

void AppStore::assign(const QStringList &keys, const std::optional<JiraUser> &user)
{
    carryOut(neededEdits(knownIssues(keys),
                         [&](const Issue &issue) { return assigneeEdit(issue, user); }));
    spawn(refreshMyIssues());
}

void AppStore::toggleLabel(const QString &label, const QStringList &keys)
{
    carryOut(labelToggleEdits(knownIssues(keys), label));
}

void AppStore::addLabel(const QString &label, const QStringList &keys)
{
    IssueList issues = knownIssues(keys);
    issues.removeIf([&](const SharedIssue &issue) { return issue->labels.contains(label); });
    carryOut(neededEdits(issues, [&](const Issue &issue) {
        return labelsEdit(issue, issue.labels + QStringList{label});
    }));
}

void AppStore::setLabels(const QStringList &labels, const QString &key)
{
    carryOut(neededEdits(knownIssues({key}),
                         [&](const Issue &issue) { return labelsEdit(issue, labels); }));
}

void AppStore::rename(const QString &key, const QString &title)
{
    carryOut(neededEdits(knownIssues({key}),
                         [&](const Issue &issue) { return summaryEdit(issue, title); }));
}

void AppStore::setDescription(const QString &markdown, const QString &key)
{
    carryOut(neededEdits(knownIssues({key}), [&](const Issue &issue) {
        return descriptionEdit(
            issue, composedDescription(markdown, issue.description, mentionCandidates(key)));
    }));
}

void AppStore::setDueDate(const std::optional<QDate> &day, const QString &key)
{
    carryOut(neededEdits(knownIssues({key}),
                         [&](const Issue &issue) { return dueDateEdit(issue, day); }));
}

void AppStore::carryOut(const QList<OptimisticEdit> &edits)
{
    const auto ids = show(edits);
    for (qsizetype i = 0; i < ids.size(); ++i)
        spawn(commit(edits[i], ids[i]));
}

/// Applies the edits to all copies of the issues. Returns the ids of the edits; none without a session, because then
/// nothing is sent.
QList<OpenEdits::Id> AppStore::show(const QList<OptimisticEdit> &edits)
{
    QList<OpenEdits::Id> ids;
    IssueChanges changes;
    for (const OptimisticEdit &edit : edits) {
        if (Session *const session = m_session->get()) {
            const auto shown = issue(edit.key);
            ids += session->edits.open(edit, shown ? (*shown)->updated : QDateTime());
        }
        changes.insert(edit.key, [&edit](Issue &issue) { edit.apply(issue); });
    }
    mutate(changes);
    return ids;
}

QCoro::Task<> AppStore::commit(OptimisticEdit edit, OpenEdits::Id id)
{
    Session *const session = m_session->get();
    const auto service = session->service();
    const PendingWrites::Token write = m_writes.begin();
    const auto outcome = co_await whileAlive(session, settled(service, sent(service, edit)));
    if (outcome)
        showConfirmed(session->edits.confirm(id, m_context.clock.now()));
    else
        undo(id, outcome.error());
}

void AppStore::undo(OpenEdits::Id id, const TaskFailure &failure)
{
    const Batch batch(*this);
    const OptimisticEdit undone = (*m_session)->edits.refuse(id);
    mutate({{undone.key, [&undone](Issue &issue) { undone.apply(issue); }}});
    reportRefusal(failure);
}

/// Shows the value of a confirmed edit. The copies of the issue already have it, unless another edit of the same field
/// ended in between.
void AppStore::showConfirmed(const std::optional<OptimisticEdit> &confirmed)
{
    if (confirmed)
        mutate({{confirmed->key, [&confirmed](Issue &issue) { confirmed->layOver(issue); }}});
}

void AppStore::mutate(const IssueChanges &changes)
{
    const Batch batch(*this);
    const IssueList shown = *m_issues;
    const auto rowOf = [this](const QString &key) { return derivation().rowOf(key); };
    IssueList issues = shown;
    if (applyChanges(issues, changes, rowOf))
        m_issues.set(std::move(issues));
    if (auto details = changedInDetails(*m_details, changes))
        m_details.set(*std::move(details));
    if (m_myOpenIssues->hasAnyOf(changes)) {
        IndexedIssues mine = *m_myOpenIssues;
        mine.apply(changes);
        m_myOpenIssues.set(std::move(mine));
    }
    for (IndexedIssues &remembered : m_scopeCache) {
        // The list of the present scope is usually the shown one itself.
        if (remembered.list().isSharedWith(shown))
            remembered = IndexedIssues(*m_issues);
        else
            remembered.apply(changes);
    }
}

IssueList AppStore::knownIssues(const QStringList &keys) const
{
    IssueList known;
    QSet<QString> met;
    for (const QString &key : keys) {
        if (met.contains(key))
            continue;
        met.insert(key);
        if (const auto found = issue(key))
            known.append(underKey(*found, key));
    }
    return known;
}
