#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/DocumentComposing.h"

namespace {

/// The edits that the issues need; `makeEdit` gives none for an issue that is as wished.
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
    show(edits);
    for (const OptimisticEdit &edit : edits)
        spawn(commit(edit));
}

void AppStore::show(const QList<OptimisticEdit> &edits)
{
    IssueChanges changes;
    for (const OptimisticEdit &edit : edits)
        changes.insert(edit.key, [&edit](Issue &issue) { edit.apply(issue); });
    mutate(changes);
}

QCoro::Task<> AppStore::commit(OptimisticEdit edit)
{
    const auto service = *m_service;
    if (!service)
        co_return;
    const auto outcome = co_await whileAlive(this, settled(service, sent(service, edit)));
    if (!outcome)
        undo(edit, outcome.error());
}

void AppStore::undo(const OptimisticEdit &edit, const TaskFailure &failure)
{
    const Batch batch(*this);
    mutate({{edit.key, [&edit](Issue &issue) { edit.revert(issue); }}});
    report(failure);
}

void AppStore::mutate(const IssueChanges &changes)
{
    const Batch batch(*this);
    if (auto issues = changedInList(*m_issues, changes))
        m_issues.set(*std::move(issues));
    if (auto details = changedInDetails(*m_details, changes))
        m_details.set(*std::move(details));
    if (auto mine = changedInList(*m_myOpenIssues, changes))
        m_myOpenIssues.set(*std::move(mine));
    if (auto lists = changedInScopes(m_scopeCache, changes))
        m_scopeCache = *std::move(lists);
}

IssueList AppStore::knownIssues(const QStringList &keys) const
{
    return issuesWithKeys(keys, *m_details, {*m_issues, *m_myOpenIssues});
}
