#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto DemoModeKey = u"demoMode"_s;
constexpr auto RefreshPeriod = 120s;

} // namespace

QCoro::Task<> AppStore::bootstrap()
{
    if (std::exchange(m_didBootstrap, true))
        co_return;
    if (startsWithDemo())
        co_await whileAlive(this, activate(m_context.makeDemo(), SessionKind::Demo, std::nullopt));
    else
        co_await whileAlive(this, restoreSavedSession());
}

bool AppStore::startsWithDemo() const
{
    return m_context.preferences.flag(DemoModeKey).value_or(false);
}

QCoro::Task<> AppStore::startDemo()
{
    m_context.preferences.setFlag(DemoModeKey, true);
    resetData();
    co_await whileAlive(this, activate(m_context.makeDemo(), SessionKind::Demo, std::nullopt));
}

void AppStore::openDemo()
{
    spawn(startDemo());
}

QCoro::Task<> AppStore::restoreSavedSession()
{
    const int sessionCount = m_sessionCount;
    const auto saved = co_await whileAlive(this, m_context.sessions.restore());
    if (sessionCount != m_sessionCount)
        co_return;
    if (const auto *service = std::get_if<SiteSessions::Service>(&saved)) {
        m_credentialsIssue.set(std::nullopt);
        co_await whileAlive(this, activate(*service, SessionKind::Real, std::nullopt));
        co_return;
    }
    if (const auto *blocked = std::get_if<SiteSessions::Blocked>(&saved))
        m_credentialsIssue.set(blocked->text);
    m_phase.set(Phase::SignedOut);
}

void AppStore::retrySavedSession()
{
    spawn(restoreSavedSession());
}

QCoro::Task<> AppStore::connect(QString site, QString email, QString token)
{
    const SignIn signIn{site, email.trimmed(), token.trimmed()};
    const auto service = m_context.sessions.open(signIn);
    const JiraUser user = co_await whileAlive(this, service->currentUser());
    co_await whileAlive(this, m_context.sessions.keep(signIn));
    m_credentialsIssue.set(std::nullopt);
    m_context.preferences.setFlag(DemoModeKey, false);
    resetData();
    co_await whileAlive(this, activate(service, SessionKind::Real, user));
}

void AppStore::signOut()
{
    if (!*m_isDemo)
        spawn(m_context.sessions.forget());
    const Batch batch(*this);
    ++m_sessionCount;
    m_context.preferences.setFlag(DemoModeKey, false);
    resetData();
    m_service.set(nullptr);
    m_isDemo.set(false);
    m_me.set(std::nullopt);
    m_refreshTimer.reset();
    m_minuteTimer.reset();
    m_phase.set(Phase::SignedOut);
}

void AppStore::resetData()
{
    const Batch batch(*this);
    ++m_generation;
    m_projects.set({});
    m_priorities.set({});
    m_issues.set({});
    m_details.set({});
    m_detailErrors.set({});
    m_comments.set({});
    m_transitions.set({});
    m_projectStatuses.set({});
    m_assignables.set({});
    m_projectDetails.set({});
    setMyOpenIssues({});
    m_scopeCache.clear();
    m_loadedMeta.clear();
    m_focusedKey.set(std::nullopt);
    m_checked.set({});
    m_inspectorKey.set(std::nullopt);
    m_filters.set({});
    m_filterText.set({});
    m_scope.set(IssueScope::myIssues());
    m_loadError.set(std::nullopt);
    m_isLoading.set(false);
}

/// Nothing that fails here ends the session: the list area says what went wrong, and each refresh tries again. The
/// next session ends this, so that nothing of one site comes into the lists of another.
QCoro::Task<> AppStore::activate(std::shared_ptr<IssueService> service, SessionKind kind,
                                 std::optional<JiraUser> knownUser)
{
    open(service, kind);
    try {
        co_await whileAlive(this, fetchAccount(service, knownUser));
        co_await whileAlive(this, fetchSite(service));
    } catch (const Failure &failure) {
        requireCurrent(service);
        m_isIncomplete = true;
        m_loadError.set(failure.message());
    }
    co_await whileAlive(this, reload());
    co_await whileAlive(this, refreshMyIssues());
    requireCurrent(service);
    startAutoRefresh();
}

void AppStore::open(std::shared_ptr<IssueService> service, SessionKind kind)
{
    const Batch batch(*this);
    ++m_sessionCount;
    m_isIncomplete = false;
    m_service.set(std::move(service));
    m_isDemo.set(kind == SessionKind::Demo);
    m_phase.set(Phase::Ready);
    startMinutes();
}

QCoro::Task<> AppStore::fetchAccount(std::shared_ptr<IssueService> service,
                                     std::optional<JiraUser> knownUser)
{
    if (!knownUser)
        knownUser = co_await whileAlive(this, service->currentUser());
    requireCurrent(service);
    m_me.set(knownUser);
}

QCoro::Task<> AppStore::fetchSite(std::shared_ptr<IssueService> service)
{
    std::stop_source stop;
    auto projectsTask = settled(service, service->projects());
    auto prioritiesTask = settled(service, service->priorities(stop.get_token()));
    const auto projects = co_await whileAlive(this, std::move(projectsTask));
    if (!projects) {
        stop.request_stop();
        co_await whileAlive(this, std::move(prioritiesTask));
        throw Failure(projects.error().message);
    }
    requireCurrent(service);
    m_projects.set(*projects);
    const auto priorities = co_await whileAlive(this, std::move(prioritiesTask));
    requireCurrent(service);
    m_priorities.set(priorities.value_or(QList<IssuePriority>()));
}

bool AppStore::isOverFor(const std::shared_ptr<IssueService> &service) const
{
    return *m_service && *m_service != service;
}

void AppStore::requireCurrent(const std::shared_ptr<IssueService> &service) const
{
    if (isOverFor(service))
        throw Cancelled();
}

/// The list's own reload tells when the site still cannot be reached.
QCoro::Task<> AppStore::completeSession()
{
    const auto service = *m_service;
    if (!service || !std::exchange(m_isIncomplete, false))
        co_return;
    try {
        co_await whileAlive(this, fetchAccount(service, *m_me));
        co_await whileAlive(this, fetchSite(service));
    } catch (const Failure &) {
        requireCurrent(service);
        m_isIncomplete = true;
    }
}

void AppStore::startAutoRefresh()
{
    m_refreshTimer = m_context.clock.every(RefreshPeriod, [this] { spawn(refreshInBackground()); });
}

/// A program in the background makes no requests at all.
QCoro::Task<> AppStore::refreshInBackground()
{
    if (*m_phase != Phase::Ready || !m_context.desktop.isApplicationActive())
        co_return;
    spawn(completeSession());
    co_await whileAlive(this, reload());
    co_await whileAlive(this, refreshMyIssues());
}
