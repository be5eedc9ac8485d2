#pragma once

#include "model/Enums.h"
#include "model/UserCalendar.h"

#include <QString>

/// One week or month of recap, counted relative to now.
struct ActivityPeriod
{
    Q_GADGET
    Q_PROPERTY(Model::ActivityRange range MEMBER range CONSTANT FINAL)
    Q_PROPERTY(int offset MEMBER offset CONSTANT FINAL)
    Q_PROPERTY(bool teamWide MEMBER teamWide CONSTANT FINAL)

public:
    ActivityRange range = ActivityRange::Week;
    /// Periods from the current one: 0 is the current, -1 the one before.
    int offset = 0;
    /// The recap covers the whole team and not only the signed-in user.
    bool teamWide = false;

    /// The period's start and the next one's start. Weeks begin on the locale's first day.
    DateInterval interval(const QDateTime &now, const UserCalendar &calendar) const;
    /// "Cette semaine", "Semaine du 5 octobre", "Le mois dernier", "Septembre 2026"…
    QString title(const QDateTime &now, const UserCalendar &calendar) const;
    /// "du 26 oct. au 1 nov. 2026"; ends on the period's last day.
    QString rangeLabel(const QDateTime &now, const UserCalendar &calendar) const;

    bool operator==(const ActivityPeriod &) const = default;
};

size_t qHash(const ActivityPeriod &period, size_t seed = 0);
