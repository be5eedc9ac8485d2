#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "derivation/IssueDerivationIndex.h"
#include "state/AppStore.h"
#include "state/edits/IssueUpkeep.h"

namespace {

/// The maximum number of projects whose metadata is fetched for one list, to limit the number of requests.
constexpr qsizetype MetaPerReload = 8;

bool hasKey(const IssueList &issues, const QString &key)
{
    return std::ranges::any_of(issues, [&](const SharedIssue &issue) { return issue->key == key; });
}

QStringList someProjectKeys(const IssueList &issues)
{
    QStringList keys;
    for (const auto &issue : issues) {
        if (keys.size() == MetaPerReload)
            break;
        if (!keys.contains(issue->projectKey))
            keys += issue->projectKey;
    }
    return keys;
}

} // namespace

void AppStore::select(const IssueScope &scope)
{
    if (scope == *m_scope)
        return;
    const Batch batch(*this);
    m_scope.set(scope);
    m_issues.set(m_scopeCache.value(scope).list());
    m_focusedKey.set(std::nullopt);
    m_checked.set({});
    m_loadError.set(std::nullopt);
    spawn(reload());
}

void AppStore::setSidebarSelection(const std::optional<IssueScope> &scope)
{
    if (!scope)
        return;
    const ActivityPeriod *row = scope->asActivity();
    if (!row)
        return select(*scope);
    ActivityPeriod period = *row;
    period.teamWide = *m_activityTeamWide;
    select(IssueScope::activity(period));
}

void AppStore::refresh()
{
    spawn(refreshForUser());
}

QCoro::Task<> AppStore::refreshForUser()
{
    Session *const session = m_session->get();
    if (!session)
        co_return;
    spawn(completeSession());
    co_await whileAlive(session, reloadList(AskedBy::User));
    // Fetched here if the start of the session could not.
    if (!session->hasMyIssues)
        co_await whileAlive(session, reloadMyIssues());
}

QCoro::Task<> AppStore::reload()
{
    return unlessGone(this, reloadList(AskedBy::Program));
}

QCoro::Task<> AppStore::reloadList(AskedBy askedBy)
{
    Session *const session = m_session->get();
    if (!session)
        co_return;
    const auto service = session->service();
    const Newest::Mark mark = session->reloads.begin();
    const OpenEdits::Reading reading = session->edits.beginReading(m_context.clock.now());
    const IssueScope scope = *m_scope;
    m_isLoading.set(true);
    const auto outcome = co_await whileAlive(session, settled(service, service->issues(scope)));
    if (!isNewest(mark))
        co_return;
    if (outcome)
        takeReloaded(scope, *outcome, reading);
    else
        takeReloadFailure(outcome.error(), askedBy);
    // Started before the others, which may be for the same project, because a second caller does not wait for the
    // result.
    std::optional<QCoro::Task<>> own;
    if (const auto *project = scope.asProject())
        own = fetchProjectMeta(project->key);
    startProjectMeta();
    if (own)
        co_await whileAlive(session, std::move(*own));
}

void AppStore::takeReloaded(const IssueScope &scope, const IssueList &answer,
                            const OpenEdits::Reading &reading)
{
    const Batch batch(*this);
    const IssueList fresh = withJustCreated(current(answer, reading), scope, reading);
    // Unchanged records stay the same objects, so that comparisons of the derived lists are fast.
    const IssueList issues = reusingRecords(fresh, *m_issues);
    m_issues.set(issues);
    m_scopeCache.insert(scope, IndexedIssues(issues));
    (*m_session)->fetchedAt.insert(scope, m_context.clock.now());
    mergeIntoDetails();
    uncheckUnlisted();
    m_loadError.set(std::nullopt);
    m_isLoading.set(false);
}

/// The list is kept. If it is empty, the screen shows the failure instead of a toast.
void AppStore::takeReloadFailure(const TaskFailure &failure, AskedBy askedBy)
{
    const Batch batch(*this);
    if (!failure.isCancellation)
        m_loadError.set(failure.message);
    if (askedBy == AskedBy::User && !m_issues->isEmpty())
        report(failure);
    m_isLoading.set(false);
}

/// The answer of a search as it is shown: each issue once, and with the confirmed edits.
IssueList AppStore::current(const IssueList &answer, const OpenEdits::Reading &reading)
{
    return (*m_session)
        ->edits.laidOver(withoutRepeatedKeys(answer), reading, OpenEdits::Source::Search);
}

/// The fetched list, preceded by the recently created issues that belong to it but that the search does not find yet.
/// Only issues that have been opened are added.
IssueList AppStore::withJustCreated(const IssueList &fresh, const IssueScope &scope,
                                    const OpenEdits::Reading &reading) const
{
    const OpenEdits &edits = (*m_session)->edits;
    IssueList missing;
    for (const SharedIssue &opened : *m_details) {
        if (edits.isJustCreated(opened->key, reading.beganAt()) &&
            belongsTo(*opened, scope, *m_me) && !hasKey(fresh, opened->key))
            missing += opened;
    }
    return missing + fresh;
}

void AppStore::startProjectMeta()
{
    for (const QString &key : someProjectKeys(*m_issues))
        spawn(fetchProjectMeta(key));
}

void AppStore::mergeIntoDetails()
{
    IssueMap details = *m_details;
    for (auto known = m_details->cbegin(); known != m_details->cend(); ++known) {
        if (const auto row = derivation().rowOf(known.key()))
            details.insert(known.key(), mergedIntoDetails(*m_issues->at(*row), **known));
    }
    m_details.set(std::move(details));
}

void AppStore::uncheckUnlisted()
{
    QSet<QString> checked = *m_checked;
    checked.removeIf([this](const QString &key) { return !derivation().rowOf(key); });
    m_checked.set(checked);
}

QCoro::Task<> AppStore::refreshMyIssues()
{
    return unlessGone(this, reloadMyIssues());
}

QCoro::Task<> AppStore::reloadMyIssues()
{
    Session *const session = m_session->get();
    if (!session)
        co_return;
    const auto service = session->service();
    const OpenEdits::Reading reading = session->edits.beginReading(m_context.clock.now());
    const IssueScope scope = IssueScope::myIssues();
    const auto answer = co_await whileAlive(session, settled(service, service->issues(scope)));
    if (!answer)
        co_return;
    session->hasMyIssues = true;
    session->fetchedAt.insert(scope, m_context.clock.now());
    const IssueList mine = withJustCreated(current(*answer, reading), scope, reading);
    m_scopeCache.insert(scope, IndexedIssues(mine));
    m_myOpenIssues.set(IndexedIssues(openIssues(mine)));
}

QCoro::Task<IssueList> AppStore::searchRemote(QString text, std::stop_token stop)
{
    return unlessGone(this, foundIssues(text, stop), IssueList());
}

QCoro::Task<IssueList> AppStore::foundIssues(QString text, std::stop_token stop)
{
    Session *const session = m_session->get();
    if (!session)
        co_return IssueList();
    const auto service = session->service();
    const OpenEdits::Reading reading = session->edits.beginReading(m_context.clock.now());
    const auto found = co_await whileAlive(session, settled(service, service->search(text, stop)));
    co_return found ? current(*found, reading) : IssueList();
}

std::optional<SharedIssue> AppStore::issue(const QString &key) const
{
    const auto opened = m_details->constFind(key);
    if (opened != m_details->constEnd())
        return *opened;
    if (const auto row = derivation().rowOf(key))
        return (*m_issues)[*row];
    const auto mine = m_myOpenIssues->rowOf(key);
    return mine ? std::optional(m_myOpenIssues->list()[*mine]) : std::nullopt;
}

std::optional<Project> AppStore::project(const QString &key) const
{
    const auto detailed = m_projectDetails->constFind(key);
    if (detailed != m_projectDetails->constEnd())
        return *detailed;
    const auto listed = std::ranges::find(*m_projects, key, &Project::key);
    return listed == m_projects->end() ? std::nullopt : std::optional(*listed);
}
