#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "derivation/IssueDerivationIndex.h"
#include "state/AppStore.h"
#include "state/edits/IssueUpkeep.h"

namespace {

/// How many projects of one list get their metadata fetched, so that a list across many does not flood the service.
constexpr qsizetype MetaPerReload = 8;

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
    m_issues.set(m_scopeCache.value(scope).issues());
    m_focusedKey.set(std::nullopt);
    m_checked.set({});
    m_loadError.set(std::nullopt);
    refresh();
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
    spawn(completeSession());
    spawn(reload());
}

QCoro::Task<> AppStore::reload()
{
    const auto service = *m_service;
    if (!service)
        co_return;
    const int generation = ++m_generation;
    const IssueScope scope = *m_scope;
    m_isLoading.set(true);
    const auto outcome = co_await whileAlive(this, settled(service, service->issues(scope)));
    if (generation != m_generation)
        co_return;
    takeReloaded(scope, outcome);
    // Before the others, which may be of the same project: whoever comes second does not wait.
    std::optional<QCoro::Task<>> own;
    if (const auto *project = scope.asProject())
        own = loadProjectMeta(project->key);
    startProjectMeta();
    if (own)
        co_await whileAlive(this, std::move(*own));
}

void AppStore::takeReloaded(const IssueScope &scope, const Settled<IssueList> &outcome)
{
    const Batch batch(*this);
    if (outcome) {
        // What has not changed stays the same object, so that the lists derived from it need not look inside.
        const IssueList issues = reusingRecords(*outcome, *m_issues);
        m_issues.set(issues);
        m_scopeCache.insert(scope, issues);
        mergeIntoDetails();
        uncheckUnlisted();
        m_loadError.set(std::nullopt);
    } else if (!outcome.error().isCancellation) {
        m_loadError.set(outcome.error().message);
    }
    m_isLoading.set(false);
}

void AppStore::startProjectMeta()
{
    for (const QString &key : someProjectKeys(*m_issues))
        spawn(loadProjectMeta(key));
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
    const auto service = *m_service;
    if (!service)
        co_return;
    const IssueScope scope = IssueScope::myIssues();
    const auto mine = co_await whileAlive(this, settled(service, service->issues(scope)));
    if (!mine || isOverFor(service))
        co_return;
    m_scopeCache.insert(scope, *mine);
    setMyOpenIssues(openIssues(*mine));
}

void AppStore::setMyOpenIssues(const IssueList &issues)
{
    m_myOpenKeys.reset();
    m_myOpenIssues.set(issues);
}

QHash<IssueScope, IssueList> AppStore::scopeCache() const
{
    QHash<IssueScope, IssueList> lists;
    for (auto list = m_scopeCache.cbegin(); list != m_scopeCache.cend(); ++list)
        lists.insert(list.key(), list->issues());
    return lists;
}

QCoro::Task<IssueList> AppStore::searchRemote(QString text, std::stop_token stop)
{
    const auto service = *m_service;
    if (!service)
        co_return IssueList();
    const auto found = co_await whileAlive(this, settled(service, service->search(text, stop)));
    co_return found.value_or(IssueList());
}

std::optional<SharedIssue> AppStore::issue(const QString &key) const
{
    const auto opened = m_details->constFind(key);
    if (opened != m_details->constEnd())
        return *opened;
    if (const auto row = derivation().rowOf(key))
        return (*m_issues)[*row];
    const auto row = myOpenRowOf(key);
    return row ? std::optional((*m_myOpenIssues)[*row]) : std::nullopt;
}

std::optional<Project> AppStore::project(const QString &key) const
{
    const auto detailed = m_projectDetails->constFind(key);
    if (detailed != m_projectDetails->constEnd())
        return *detailed;
    const auto listed = std::ranges::find(*m_projects, key, &Project::key);
    return listed == m_projects->end() ? std::nullopt : std::optional(*listed);
}
