#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/edits/DocumentComposing.h"

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

/// The issue by the key it is asked for: one that was moved on the site is opened by its former key, and stands under that
/// one here.
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

/// Changes all copies of the issues. Gives the numbers of the edits; none without a session, where nothing is sent.
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

/// The copies of the issue show the value already, unless another edit of the same field ended in between.
void AppStore::showConfirmed(const std::optional<OptimisticEdit> &confirmed)
{
    if (confirmed)
        mutate({{confirmed->key, [&confirmed](Issue &issue) { confirmed->layOver(issue); }}});
}

void AppStore::mutate(const IssueChanges &changes)
{
    const Batch batch(*this);
    ListedRecords records;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto row = derivation().rowOf(change.key());
        if (auto record = row ? changed((*m_issues)[*row], *change) : std::nullopt)
            records.emplace(quint32(*row), *std::move(record));
    }
    const auto untouched = m_scopeCache.constFind(*m_scope);
    const bool isOneList =
        untouched != m_scopeCache.constEnd() && untouched->isSharedWith(*m_issues);
    replaceListed(records, isOneList ? InCache::Follow : InCache::Stay);
    if (auto details = changedInDetails(*m_details, changes))
        m_details.set(*std::move(details));
    mutateMine(changes);
    for (auto list = m_scopeCache.begin(); list != m_scopeCache.end(); ++list) {
        if (!isOneList || list.key() != *m_scope)
            list->change(changes);
    }
}

/// A list that several hold is changed while only one of them holds it; so nothing is copied but the records.
void AppStore::replaceListed(const ListedRecords &records, InCache inCache)
{
    if (records.empty())
        return;
    IssueRows rows;
    for (const auto &[row, record] : records)
        rows.push_back(row);
    auto *const cached = inCache == InCache::Follow ? &m_scopeCache[*m_scope] : nullptr;
    m_derivation.letGo();
    if (cached)
        cached->letGo();
    m_issues.edit([&](IssueList &issues) {
        for (const auto &[row, record] : records)
            issues[row] = record;
        if (cached)
            cached->follow(issues, rows);
        m_derivation.takeBack(issues, rows);
    });
}

void AppStore::mutateMine(const IssueChanges &changes)
{
    ListedRecords records;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto row = myOpenRowOf(change.key());
        if (auto record = row ? changed((*m_myOpenIssues)[*row], *change) : std::nullopt)
            records.emplace(quint32(*row), *std::move(record));
    }
    if (records.empty())
        return;
    m_myOpenIssues.edit([&](IssueList &issues) {
        for (const auto &[row, record] : records) {
            issues[row] = record;
            m_myOpenKeys->relocate(int(row), record->key);
        }
    });
}

std::optional<int> AppStore::myOpenRowOf(const QString &key) const
{
    if (!m_myOpenKeys)
        m_myOpenKeys = keyIndexOf(*m_myOpenIssues);
    return m_myOpenKeys->find(key);
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
