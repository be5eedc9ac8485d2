#include "state/recap/ActivityRecap.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Detail = std::function<std::optional<QString>(const Issue &)>;

QString headline(const ActivityPeriod &period, const QDateTime &now, const UserCalendar &calendar)
{
    return "## "_L1 + period.title(now, calendar) + (period.teamWide ? u" (équipe)"_s : QString()) +
           u" — "_s + period.rangeLabel(now, calendar);
}

/// A section with its lines, followed by an empty line; nothing if there are no issues.
QStringList section(const QString &title, const IssueList &issues, ReportNames names,
                    const Detail &detail)
{
    if (issues.isEmpty())
        return {};
    QStringList lines{u"**%1 (%2)**"_s.arg(title, QString::number(issues.size()))};
    for (const SharedIssue &issue : issues)
        lines.append(reportLine(*issue, detail(*issue), names));
    lines.append(QString());
    return lines;
}

} // namespace

QString reportLine(const Issue &issue, const std::optional<QString> &detail, ReportNames names)
{
    QString line = "- "_L1 + issue.key + u' ' + issue.summary;
    if (detail)
        line += " _("_L1 + *detail + ")_"_L1;
    if (names == ReportNames::Shown && issue.assignee)
        line += u" — "_s + issue.assignee->firstName();
    return line;
}

std::optional<QString> movement(const Issue &issue, const StatusLookup &statuses)
{
    const ActivityEvent::StatusChanged *first = nullptr;
    const ActivityEvent::StatusChanged *last = nullptr;
    for (const ActivityEvent &event : issue.activity) {
        if (!event.statusChange())
            continue;
        first = first ? first : event.statusChange();
        last = event.statusChange();
    }
    if (!first)
        return std::nullopt;
    const auto label = [&](const QString &name) {
        return statuses.named(name, issue.projectKey).displayName();
    };
    return (first->from ? label(*first->from) : u"?"_s) + u" → "_s + label(last->to);
}

QString activityReport(const ActivitySummary &summary, const ActivityPeriod &period,
                       const StatusLookup &statuses, const QDateTime &now,
                       const UserCalendar &calendar)
{
    const ReportNames names = period.teamWide ? ReportNames::Shown : ReportNames::Hidden;
    const Detail none = [](const Issue &) { return std::optional<QString>(); };
    const Detail moved = [&](const Issue &issue) { return movement(issue, statuses); };

    const QStringList sections = section(u"✅ Terminés"_s, summary.completed, names, none) +
                                 section(u"🔄 Avancés"_s, summary.progressed, names, moved) +
                                 section(u"🆕 Créés"_s, summary.created, names, none);
    QStringList lines{headline(period, now, calendar), QString()};
    lines += sections.isEmpty() ? QStringList{u"_Aucune activité sur la période._"_s} : sections;
    return lines.join(u'\n');
}
