#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto DemoModeKey = u"demoMode"_s;
constexpr auto RefreshPeriod = 120s;

QCoro::Task<> nothingToDo()
{
    co_return;
}

/// Tells the user if the token of the last sign-in stays in the keyring, because the next start would use it.
QCoro::Task<> forgetToken(AppStore *store, QCoro::Task<> removal)
{
    const auto removed = co_await whileAlive(store, settled(nullptr, std::move(removal)));
    if (!removed && !removed.error().isCancellation)
        store->toast(u"Le token est resté dans le trousseau. "_s + removed.error().message,
                     u"exclamationmark.triangle.fill"_s, ToastKind::Error);
}

/// The value of an outcome, or its failure thrown for the caller to show.
template <typename T>
T valueOf(const Settled<T> &outcome)
{
    if (outcome) {
        if constexpr (std::is_void_v<T>)
            return;
        else
            return *outcome;
    }
    if (outcome.error().isCancellation)
        throw Cancelled();
    throw Failure(outcome.error().message);
}

} // namespace

QCoro::Task<> AppStore::bootstrap()
{
    if (std::exchange(m_didBootstrap, true))
        return nothingToDo();
    if (startsWithDemo())
        return unlessGone(this, activate({m_context.makeDemo()}, Session::Kind::Demo, {}));
    return restoreSavedSession();
}

bool AppStore::startsWithDemo() const
{
    return m_context.preferences.flag(DemoModeKey).value_or(false);
}

QCoro::Task<> AppStore::startDemo()
{
    m_context.preferences.setFlag(DemoModeKey, true);
    return unlessGone(this, activate({m_context.makeDemo()}, Session::Kind::Demo, {}));
}

void AppStore::openDemo()
{
    spawn(startDemo());
}

QCoro::Task<> AppStore::restoreSavedSession()
{
    const Newest::Mark attempt = m_openings.begin();
    const auto saved = co_await whileAlive(this, settled(nullptr, m_context.sessions.restore()));
    if (!isNewest(attempt))
        co_return;
    if (!saved)
        co_return showSignIn(saved.error().message);
    if (const auto *blocked = std::get_if<SiteSessions::Blocked>(&*saved))
        co_return showSignIn(blocked->text);
    const auto *opened = std::get_if<SiteSessions::Opened>(&*saved);
    if (!opened)
        co_return showSignIn(*m_credentialsIssue);
    m_credentialsIssue.set(std::nullopt);
    co_await unlessGone(this, activate(*opened, Session::Kind::Site, {}));
}

void AppStore::showSignIn(const std::optional<QString> &issue)
{
    m_credentialsIssue.set(issue);
    m_phase.set(Phase::SignedOut);
}

void AppStore::retrySavedSession()
{
    spawn(restoreSavedSession());
}

QCoro::Task<> AppStore::connect(QString site, QString email, QString token)
{
    const SignIn signIn{site, email.trimmed(), token.trimmed()};
    const SiteSessions::Opened opened = m_context.sessions.open(signIn);
    const Newest::Mark attempt = m_openings.begin();
    const auto user =
        co_await whileAlive(this, settled(opened.service, opened.service->currentUser()));
    if (!isNewest(attempt))
        throw Cancelled();
    const JiraUser account = valueOf(user);
    const auto kept = co_await whileAlive(this, settled(nullptr, m_context.sessions.keep(signIn)));
    if (!isNewest(attempt)) {
        // Another session has begun, or a sign-out came, while the token was being stored.
        if (kept)
            spawn(forgetToken(this, m_context.sessions.forget()));
        throw Cancelled();
    }
    valueOf(kept);
    m_credentialsIssue.set(std::nullopt);
    m_context.preferences.setFlag(DemoModeKey, false);
    co_await unlessGone(this, activate(opened, Session::Kind::Site, account));
}

void AppStore::signOut()
{
    if (!isDemo())
        spawn(forgetToken(this, m_context.sessions.forget()));
    const Batch batch(*this);
    m_context.preferences.setFlag(DemoModeKey, false);
    endSession();
    m_phase.set(Phase::SignedOut);
}

/// What still runs for the session ends here, and so does every attempt to open another one.
void AppStore::endSession()
{
    m_openings.end();
    m_refreshTimer.reset();
    m_minuteTimer.reset();
    m_session.set(nullptr);
    resetData();
    m_me.set(std::nullopt);
    m_uploads.forgetAll();
    m_uploading.set({});
}

void AppStore::resetData()
{
    const Batch batch(*this);
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
    m_myOpenIssues.set({});
    m_scopeCache.clear();
    m_focusedKey.set(std::nullopt);
    m_checked.set({});
    m_inspectorKey.set(std::nullopt);
    m_filters.set({});
    m_filterText.set({});
    m_scope.set(IssueScope::myIssues());
    m_loadError.set(std::nullopt);
    m_isLoading.set(false);
}

/// No failure ends the session: the list area says what went wrong, and each refresh tries again.
QCoro::Task<> AppStore::activate(SiteSessions::Opened opened, Session::Kind kind,
                                 std::optional<JiraUser> knownUser)
{
    Session *const session = open(opened, kind);
    if (knownUser) {
        m_me.set(knownUser);
        session->basics.hasAccount = true;
    }
    const auto failure = co_await whileAlive(session, fetchBasics());
    if (failure)
        m_loadError.set(failure);
    co_await whileAlive(session, reloadList(AskedBy::Program));
    co_await whileAlive(session, reloadMyIssues());
    startAutoRefresh();
}

Session *AppStore::open(const SiteSessions::Opened &opened, Session::Kind kind)
{
    const Batch batch(*this);
    endSession();
    m_session.set(std::make_shared<Session>(opened.service, kind));
    opened.onBegin();
    // The empty list shows loading rows until the first answer.
    m_isLoading.set(true);
    m_phase.set(Phase::Ready);
    startMinutes();
    return m_session->get();
}

/// Returns the message for the user if the account or the projects cannot be fetched; nothing on success.
QCoro::Task<std::optional<QString>> AppStore::fetchBasics()
{
    Session *const session = m_session->get();
    session->basics.areUnderWay = true;
    const auto failure = co_await whileAlive(session, fetchMissingBasics());
    session->basics.areUnderWay = false;
    co_return failure;
}

QCoro::Task<std::optional<QString>> AppStore::fetchMissingBasics()
{
    Session *const session = m_session->get();
    const auto service = session->service();
    if (!session->basics.hasAccount) {
        const auto account = co_await whileAlive(session, settled(service, service->currentUser()));
        if (!account)
            co_return account.error().message;
        m_me.set(*account);
        session->basics.hasAccount = true;
    }
    std::stop_source stop;
    std::optional<QCoro::Task<Settled<QList<IssuePriority>>>> priorities;
    if (!session->basics.hasPriorities)
        priorities = settled(service, service->priorities(stop.get_token()));
    if (!session->basics.hasProjects) {
        const auto projects = co_await whileAlive(session, settled(service, service->projects()));
        if (!projects) {
            stop.request_stop();
            if (priorities)
                co_await whileAlive(session, *std::move(priorities));
            co_return projects.error().message;
        }
        m_projects.set(*projects);
        session->basics.hasProjects = true;
    }
    if (priorities) {
        const auto fetched = co_await whileAlive(session, *std::move(priorities));
        m_priorities.set(fetched.value_or(QList<IssuePriority>()));
        session->basics.hasPriorities = fetched.has_value();
    }
    co_return std::nullopt;
}

/// Fetches what the start of the session could not. A further failure is not shown here, because the reload of the list
/// reports it.
QCoro::Task<> AppStore::completeSession()
{
    Session *const session = m_session->get();
    if (session && !session->basics.areComplete() && !session->basics.areUnderWay)
        co_await whileAlive(session, fetchBasics());
}

void AppStore::startAutoRefresh()
{
    m_refreshTimer = m_context.clock.every(RefreshPeriod, [this] { spawn(refreshInBackground()); });
}

/// A program in the background makes no requests at all.
QCoro::Task<> AppStore::refreshInBackground()
{
    Session *const session = m_session->get();
    if (!session || !m_context.desktop.isApplicationActive())
        co_return;
    spawn(completeSession());
    co_await whileAlive(session, reloadList(AskedBy::Program));
    co_await whileAlive(session, reloadMyIssues());
}
