#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct SiteStatus
{
    QString id;
    QString name;
    /// "new", "indeterminate" or "done".
    QString category;
};

struct SitePriority
{
    QString id;
    QString name;
};

/// A transition of a workflow.
struct SiteTransition
{
    QString id;
    QString name;
    /// The ids of the statuses that it can start from; an empty list means all.
    QStringList from;
    QString to;
};

struct SiteIssueType
{
    QString id;
    QString name;
    int hierarchyLevel = 0;
};

struct SiteSprint
{
    enum class State { Open, Future, Closed };

    QString id;
    QString name;
    State state = State::Open;
};

struct SiteProject
{
    QString id;
    QString key;
    QString name;
    /// "software", "business" or "service_desk".
    QString typeKey;
    QList<SiteIssueType> types;
    /// The workflow of all issue types of the project.
    QList<SiteStatus> statuses;
    QList<SiteTransition> transitions;
    bool hasSprints = true;
};
