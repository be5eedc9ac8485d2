#include "simulator/jql/JqlHistory.h"

#include "simulator/jql/JqlDates.h"

using namespace Qt::StringLiterals;

namespace {

struct Period
{
    QDateTime from;
    QDateTime to;
};

/// The period of a clause; unlimited if the clause has none.
Period periodOf(const Site &site, const JqlClause &clause)
{
    if (!clause.during)
        return {QDateTime::fromMSecsSinceEpoch(0), site.now()};
    return {jqlInstant(site, clause.during->first).value_or(QDateTime()),
            jqlInstant(site, clause.during->second).value_or(QDateTime())};
}

QString presentValue(const SiteIssue &issue, const QString &field)
{
    return field == "status"_L1 ? issue.statusId : issue.assignee;
}

/// The changes of one field, the oldest first.
QList<SiteChange> changesOf(const SiteIssue &issue, const QString &field)
{
    QList<SiteChange> changes;
    std::ranges::copy_if(issue.history, std::back_inserter(changes),
                         [&](const SiteChange &change) { return change.field == field; });
    return changes;
}

} // namespace

bool hasChanged(const Site &site, const SiteIssue &issue, const JqlClause &clause)
{
    const Period period = periodOf(site, clause);
    const QString by = clause.by == u"currentUser()"_s ? site.me : clause.by.value_or(QString());
    return std::ranges::any_of(changesOf(issue, clause.field), [&](const SiteChange &change) {
        return change.date >= period.from && change.date <= period.to &&
               (by.isEmpty() || change.author == by);
    });
}

bool hasBeen(const Site &site, const SiteIssue &issue, const JqlClause &clause,
             const QString &value)
{
    const Period period = periodOf(site, clause);
    const QList<SiteChange> changes = changesOf(issue, clause.field);
    QString held = changes.isEmpty() ? presentValue(issue, clause.field) : changes.first().from;
    QDateTime since = issue.created;
    for (const SiteChange &change : changes) {
        if (held == value && since <= period.to && change.date >= period.from)
            return true;
        held = change.to;
        since = change.date;
    }
    return held == value && since <= period.to && site.now() >= period.from;
}
