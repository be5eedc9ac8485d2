#include "state/AppStore.h"
#include "state/recap/ActivityRecap.h"

using namespace Qt::StringLiterals;

IssueStatus AppStore::statusNamed(const QString &name, const QString &projectKey) const
{
    return statusLookup().named(name, projectKey);
}

const StatusLookup &AppStore::statusLookup() const
{
    const StatusSources sources{*m_projectStatuses, *m_issues, *m_myOpenIssues};
    if (sources != m_statusSources) {
        m_statusLookup = StatusLookup(sources);
        m_statusSources = sources;
    }
    return m_statusLookup;
}

ActivitySummary AppStore::activitySummary() const
{
    return ::activitySummary(visibleIssues(), statusLookup());
}

void AppStore::copyActivityRecap()
{
    if (const ActivityPeriod *period = m_scope->asActivity())
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
    if (!m_badgeUsers)
        m_badgeUsers = usersByName(mentionCandidates());
    return activityBadge(issue, statusLookup(), *m_badgeUsers, m_context.calendar);
}
