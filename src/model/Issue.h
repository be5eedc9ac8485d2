#pragma once

#include "model/ADFNode.h"
#include "model/ActivityEvent.h"
#include "model/Attachment.h"
#include "model/IssuePriority.h"
#include "model/IssueStatus.h"
#include "model/IssueType.h"
#include "model/JiraUser.h"
#include "model/Shared.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// A light reference to an issue, for parents and sub-tasks.
struct IssueRef
{
    QString id;
    QString key;
    QString summary;
    std::optional<IssueStatus> status;
    std::optional<IssueType> type;

    bool operator==(const IssueRef &) const = default;
};

/// The central record.
struct Issue
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString key MEMBER key CONSTANT FINAL)
    Q_PROPERTY(QString summary MEMBER summary CONSTANT FINAL)
    Q_PROPERTY(IssueStatus status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(bool hasPriority READ hasPriority CONSTANT FINAL)
    Q_PROPERTY(Model::PriorityLevel priorityLevel READ priorityLevel CONSTANT FINAL)
    Q_PROPERTY(IssuePriority priorityOrEmpty READ priorityOrEmpty CONSTANT FINAL)
    Q_PROPERTY(bool hasAssignee READ hasAssignee CONSTANT FINAL)
    Q_PROPERTY(JiraUser assigneeOrEmpty READ assigneeOrEmpty CONSTANT FINAL)
    Q_PROPERTY(QStringList labels MEMBER labels CONSTANT FINAL)
    Q_PROPERTY(bool hasType READ hasType CONSTANT FINAL)
    Q_PROPERTY(IssueType typeOrEmpty READ typeOrEmpty CONSTANT FINAL)
    Q_PROPERTY(bool hasDueDate READ hasDueDate CONSTANT FINAL)
    Q_PROPERTY(bool hasParent READ hasParent CONSTANT FINAL)
    Q_PROPERTY(QString parentSummary READ parentSummary CONSTANT FINAL)

public:
    /// Jira's numeric identifier, as text.
    QString id;
    /// What users see and what every dictionary and selection uses.
    QString key;
    QString summary;
    IssueStatus status;
    /// Absent when the site does not report one.
    std::optional<IssuePriority> priority;
    /// Absent when unassigned.
    std::optional<JiraUser> assignee;
    std::optional<JiraUser> reporter;
    /// In the service's order.
    QStringList labels;
    std::optional<IssueType> type;
    QString projectKey;
    QDateTime created;
    QDateTime updated;
    /// A calendar day, never an instant.
    std::optional<QDate> dueDate;
    std::optional<ADFNode> description;
    std::optional<IssueRef> parent;
    QList<IssueRef> subtasks;
    /// Set only by the fetch of a single issue: description, sub-tasks and attachments can be trusted as complete.
    bool hasDetails = false;
    /// The history within a period; filled only by the activity scope.
    QList<ActivityEvent> activity;
    QList<Attachment> attachments;

    bool hasPriority() const { return priority.has_value(); }
    IssuePriority priorityOrEmpty() const { return priority.value_or(IssuePriority()); }
    bool hasAssignee() const { return assignee.has_value(); }
    JiraUser assigneeOrEmpty() const { return assignee.value_or(JiraUser()); }
    bool hasType() const { return type.has_value(); }
    IssueType typeOrEmpty() const { return type.value_or(IssueType()); }
    bool hasDueDate() const { return dueDate.has_value(); }
    bool hasParent() const { return parent.has_value(); }
    QString parentSummary() const { return parent ? parent->summary : QString(); }

    /// The level that lists sort and group by; an issue without a priority counts as `None`.
    PriorityLevel priorityLevel() const
    {
        return priority ? priority->level() : PriorityLevel::None;
    }
    /// What follows the last dash of the key, as a number; 0 if there is none.
    qint64 number() const;
    /// "feature/", the key, and the slug of the summary.
    QString branchName() const;
    /// The latest event; of events with one date the first.
    std::optional<ActivityEvent> lastActivity() const;

    bool operator==(const Issue &) const = default;
};

/// The element of every list of issues.
using SharedIssue = Shared<Issue>;
using IssueList = QList<SharedIssue>;
