#pragma once

#include "model/ActivityPeriod.h"
#include "state/recap/ActivitySummary.h"

#include <QList>

/// One counter of a recap's header.
struct StatPill
{
    Q_GADGET
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(int value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)

public:
    /// The name of a symbol. Its colour is determined by the theme.
    QString symbol;
    int value = 0;
    /// Always plural, whatever the value.
    QString label;

    bool operator==(const StatPill &) const = default;
};

/// The contents of a recap's header.
struct ActivityHeaderData
{
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString rangeLabel MEMBER rangeLabel CONSTANT FINAL)
    Q_PROPERTY(QString previousHelp MEMBER previousHelp CONSTANT FINAL)
    Q_PROPERTY(QString nextHelp MEMBER nextHelp CONSTANT FINAL)
    Q_PROPERTY(bool hasNext MEMBER hasNext CONSTANT FINAL)
    Q_PROPERTY(bool isWeek MEMBER isWeek CONSTANT FINAL)
    Q_PROPERTY(bool teamWide MEMBER teamWide CONSTANT FINAL)
    Q_PROPERTY(int pillCount READ pillCount CONSTANT FINAL)

public:
    QString title;
    /// The period's first and last day.
    QString rangeLabel;
    /// The tooltips of the buttons for the previous and the next period.
    QString previousHelp;
    QString nextHelp;
    /// False for the current period, which is the last.
    bool hasNext = false;
    /// The period is a week, not a month.
    bool isWeek = true;
    /// The recap covers the whole team.
    bool teamWide = false;
    /// The counters of completed, progressed and created issues; for a team also of contributors.
    QList<StatPill> pills;

    int pillCount() const { return int(pills.size()); }
    /// The counter at this position; an empty one if there is none.
    Q_INVOKABLE StatPill pill(int index) const { return pills.value(index); }

    bool operator==(const ActivityHeaderData &) const = default;
};

ActivityHeaderData activityHeader(const ActivityPeriod &period, const ActivitySummary &summary,
                                  const QDateTime &now, const UserCalendar &calendar);
