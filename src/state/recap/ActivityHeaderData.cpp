#include "state/recap/ActivityHeaderData.h"

#include "state/recap/ActivityNavigation.h"

using namespace Qt::StringLiterals;

namespace {

QList<StatPill> statPills(const ActivitySummary &summary, const ActivityPeriod &period)
{
    QList<StatPill> pills{
        {u"checkmark.circle.fill"_s, int(summary.completed.size()), u"terminés"_s},
        {u"arrow.forward.circle.fill"_s, int(summary.progressed.size()), u"avancés"_s},
        {u"plus.circle.fill"_s, int(summary.created.size()), u"créés"_s},
    };
    if (period.teamWide)
        pills.append({u"person.2.circle.fill"_s, int(summary.contributors.size()), u"personnes"_s});
    return pills;
}

} // namespace

ActivityHeaderData activityHeader(const ActivityPeriod &period, const ActivitySummary &summary,
                                  const QDateTime &now, const UserCalendar &calendar)
{
    const bool isWeek = period.range == ActivityRange::Week;
    return {
        .title = period.title(now, calendar),
        .rangeLabel = period.rangeLabel(now, calendar),
        .previousHelp = isWeek ? u"Semaine précédente"_s : u"Mois précédent"_s,
        .nextHelp = isWeek ? u"Semaine suivante"_s : u"Mois suivant"_s,
        .hasNext = hasNextPeriod(period),
        .isWeek = isWeek,
        .teamWide = period.teamWide,
        .pills = statPills(summary, period),
    };
}
