#pragma once

#include "model/Enums.h"
#include "model/dates/UserCalendar.h"

#include <QString>

/// One week or one month of the recap, counted relative to the current one.
struct ActivityPeriod
{
    Q_GADGET
    Q_PROPERTY(Model::ActivityRange range MEMBER range CONSTANT FINAL)
    Q_PROPERTY(int offset MEMBER offset CONSTANT FINAL)
    Q_PROPERTY(bool teamWide MEMBER teamWide CONSTANT FINAL)

public:
    ActivityRange range = ActivityRange::Week;
    /// The number of periods after the current one: 0 is the current period, -1 the previous one.
    int offset = 0;
    /// True if the recap covers the whole team, false if it covers only the signed-in user.
    bool teamWide = false;

    /// The interval from the start of the period to the start of the next one. Weeks begin on the locale's first day of
    /// the week.
    DateInterval interval(const QDateTime &now, const UserCalendar &calendar) const;
    /// The title of the period: "Cette semaine", "Semaine du 5 octobre", "Le mois dernier", "Septembre 2026" and so on.
    QString title(const QDateTime &now, const UserCalendar &calendar) const;
    /// The first and the last day of the period, both included: "du 26 oct. au 1 nov. 2026".
    QString rangeLabel(const QDateTime &now, const UserCalendar &calendar) const;

    bool operator==(const ActivityPeriod &) const = default;
};

size_t qHash(const ActivityPeriod &period, size_t seed = 0);
