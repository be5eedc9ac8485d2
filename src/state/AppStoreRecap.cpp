#include "state/AppStore.h"
#include "state/recap/ActivityRecap.h"

using namespace Qt::StringLiterals;

IssueStatus AppStore::statusNamed(const QString &name, const QString &projectKey) const
{
    return statusLookup().named(name, projectKey);
}

const StatusLookup &AppStore::statusLookup() const
{
    const Memo<StatusLookup>::Sources sources{m_projectStatuses.version(), m_issues.version(),
                                              m_myOpenIssues.version()};
    const auto compute = [this] {
        return StatusLookup({*m_projectStatuses, *m_issues, myOpenIssues()});
    };
    return m_recap.statuses.refreshed(sources, compute).value;
}

const ActivitySummary &AppStore::activitySummary() const
{
    const StatusLookup &statuses = statusLookup();
    const auto compute = [&] { return ::activitySummary(visibleIssues(), statuses); };
    return m_recap.summary
        .refreshed({derivation().visibleVersion(), m_recap.statuses.version}, compute)
        .value;
}

void AppStore::copyActivityRecap()
{
    const ActivityPeriod *period = m_scope->asActivity();
    if (!period || !*m_session)
        return;
    // Before the first answer, the report would say that there was no activity.
    if (!(*m_session)->fetchedAt.contains(*m_scope))
        return toast(u"Le récap n'est pas encore chargé"_s, u"arrow.clockwise"_s,
                     ToastKind::Notice);
    copy(activityReport(activitySummary(), *period, statusLookup(), m_context.clock.now(),
                        m_context.calendar),
         u"Récap"_s);
}

void AppStore::showPreviousPeriod()
{
    if (const ActivityPeriod *period = m_scope->asActivity())
        turnTo(previousPeriod(*period));
}

void AppStore::showNextPeriod()
{
    if (const ActivityPeriod *period = m_scope->asActivity())
        turnTo(nextPeriod(*period));
}

void AppStore::showRange(ActivityRange range)
{
    if (const ActivityPeriod *period = m_scope->asActivity())
        turnTo(withRange(*period, range));
}

void AppStore::showPeople(Recap::People people)
{
    if (const ActivityPeriod *period = m_scope->asActivity())
        turnTo(withPeople(*period, people));
}

void AppStore::turnTo(const ActivityPeriod &period)
{
    const Batch batch(*this);
    setActivityTeamWide(period.teamWide);
    select(IssueScope::activity(period));
}

void AppStore::refreshActivityHeader()
{
    const ActivityPeriod *period = m_scope->asActivity();
    m_activityHeader.set(
        period ? ::activityHeader(*period, activitySummary(), *m_now, m_context.calendar)
               : ActivityHeaderData());
}

std::optional<ActivityBadge> AppStore::badgeOf(const Issue &issue) const
{
    if (!m_scope->asActivity())
        return std::nullopt;
    return activityBadge(issue, statusLookup(), badgeUsers(), m_context.calendar);
}

const QHash<QString, JiraUser> &AppStore::badgeUsers() const
{
    // People become known when a project's assignable users arrive, or when a search finds new ones.
    const Memo<QHash<QString, JiraUser>>::Sources sources{derivation().menusVersion(),
                                                          m_me.version(), m_assignables.version(),
                                                          quint64(m_knownUsers.size())};
    const auto compute = [this] { return usersByName(mentionCandidates()); };
    return m_recap.users.refreshed(sources, compute).value;
}

/// Updates the badges of the rows if the statuses or the users have changed.
void AppStore::refreshBadges()
{
    std::pair<quint64, quint64> shown;
    if (m_scope->asActivity()) {
        statusLookup();
        badgeUsers();
        shown = {m_recap.statuses.version, m_recap.users.version};
    }
    if (std::exchange(m_fedBadges, shown) != shown)
        m_issueList.refreshBadges();
}
