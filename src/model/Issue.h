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

/// A reference to an issue with only its main fields, used for parents and sub-tasks.
struct IssueRef
{
    QString id;
    QString key;
    QString summary;
    std::optional<IssueStatus> status;
    std::optional<IssueType> type;

    bool operator==(const IssueRef &) const = default;
};

/// One issue of the site. This is the central record of the program.
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
    /// Jira's numeric identifier, as a string.
    QString id;
    /// The key that users see, such as "ABC-12". Dictionaries and selections identify issues by it.
    QString key;
    QString summary;
    IssueStatus status;
    /// Absent when the site does not report one.
    std::optional<IssuePriority> priority;
    /// Absent when unassigned.
    std::optional<JiraUser> assignee;
    std::optional<JiraUser> reporter;
    /// In the order returned by the service.
    QStringList labels;
    std::optional<IssueType> type;
    QString projectKey;
    QDateTime created;
    QDateTime updated;
    /// A calendar day without a time or zone.
    std::optional<QDate> dueDate;
    std::optional<ADFNode> description;
    std::optional<IssueRef> parent;
    QList<IssueRef> subtasks;
    /// True only for an issue that was fetched individually. Only then are the description, the sub-tasks and the
    /// attachments known to be complete.
    bool hasDetails = false;
    /// The history within a period; filled only for the activity scope.
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

    /// The level by which lists sort and group; `None` for an issue without a priority.
    PriorityLevel priorityLevel() const
    {
        return priority ? priority->level() : PriorityLevel::None;
    }
    /// The number after the last dash of the key; 0 if there is none.
    qint64 number() const;
    /// "feature/", the key, and the slug of the summary after a dash; without the dash if the slug is empty.
    QString branchName() const;
    /// The latest event; if several have the latest date, the first of them.
    std::optional<ActivityEvent> lastActivity() const;

    bool operator==(const Issue &) const = default;
};

/// The element of every list of issues.
using SharedIssue = Shared<Issue>;
using IssueList = QList<SharedIssue>;
