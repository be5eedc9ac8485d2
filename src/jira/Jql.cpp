#include "jira/Jql.h"

#include "jira/JiraDate.h"

using namespace Qt::StringLiterals;

namespace {

QString inProject(const QString &key, QLatin1StringView rest)
{
    return "project = \""_L1 + key + "\" AND "_L1 + rest;
}

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/// The conditions for a time interval that the recap queries are composed of.
struct PeriodTerms
{
    PeriodTerms(const DateInterval &period, const QTimeZone &zone)
    {
        const QString from = quoted(JiraDate::jql(period.start, zone));
        const QString to = quoted(JiraDate::jql(period.end, zone));
        during = "DURING ("_L1 + from + ", "_L1 + to + u')';
        created = "created >= "_L1 + from + " AND created < "_L1 + to;
    }

    QString during;
    QString created;
};

} // namespace

QString Jql::myIssues()
{
    return u"assignee = currentUser() AND (statusCategory != Done OR updated >= -14d) ORDER BY updated DESC"_s;
}

QString Jql::recent()
{
    return u"issuekey in issueHistory() ORDER BY lastViewed DESC"_s;
}

QString Jql::reported()
{
    return u"reporter = currentUser() ORDER BY created DESC"_s;
}

QString Jql::project(const QString &key, ProjectView view)
{
    switch (view) {
    case ProjectView::All:
        return inProject(key,
                         "(statusCategory != Done OR updated >= -30d) ORDER BY updated DESC"_L1);
    case ProjectView::Active:
        return inProject(key, "sprint in openSprints() ORDER BY rank"_L1);
    case ProjectView::Backlog:
        return inProject(key, "statusCategory != Done AND (sprint is EMPTY OR sprint not in "
                              "openSprints()) ORDER BY rank"_L1);
    }
    return {};
}

QString Jql::projectWithoutSprints(const QString &key, ProjectView view)
{
    switch (view) {
    case ProjectView::All:
        return {};
    case ProjectView::Active:
        return inProject(key, "statusCategory = \"In Progress\" ORDER BY updated DESC"_L1);
    case ProjectView::Backlog:
        return inProject(key, "statusCategory = \"To Do\" ORDER BY created DESC"_L1);
    }
    return {};
}

QString Jql::personalRecap(const DateInterval &period, const QTimeZone &zone)
{
    const PeriodTerms terms(period, zone);
    return "(status CHANGED BY currentUser() "_L1 + terms.during +
           " OR (assignee WAS currentUser() "_L1 + terms.during + " AND status CHANGED "_L1 +
           terms.during + ") OR (reporter = currentUser() AND "_L1 + terms.created +
           ")) ORDER BY updated DESC"_L1;
}

QString Jql::teamRecap(const DateInterval &period, const QTimeZone &zone)
{
    const PeriodTerms terms(period, zone);
    return "(status CHANGED "_L1 + terms.during + " OR ("_L1 + terms.created +
           ")) ORDER BY updated DESC"_L1;
}

QString Jql::textSearch(const QString &words)
{
    QString escaped = words;
    escaped.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return "text ~ \""_L1 + escaped + "*\" ORDER BY updated DESC"_L1;
}
