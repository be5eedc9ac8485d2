#pragma once

#include "model/Enums.h"

#include <QHash>
#include <QString>

#include <optional>

/// A workflow status, comparable across projects. It does not change after construction; the constructor and `guessed`
/// create it.
class IssueStatus
{
    Q_GADGET
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(Model::StatusCategory category READ category CONSTANT FINAL)
    Q_PROPERTY(QString groupKey READ groupKey CONSTANT FINAL)
    Q_PROPERTY(double progress READ progress CONSTANT FINAL)
    Q_PROPERTY(QString displayName READ displayName CONSTANT FINAL)

public:
    IssueStatus() = default;
    /// Classifies a status by its name and by the key of its Jira category ("new", "indeterminate", "done"; may be
    /// absent).
    IssueStatus(QString id, QString name, const std::optional<QString> &jiraCategoryKey);

    /// Creates a status from its name alone, as it occurs in an issue's history. The id is "name:" followed by the
    /// folded name.
    static IssueStatus guessed(const QString &name);
    /// Maps each canonical group key to its French label.
    static const QHash<QString, QString> &canonicalLabels();

    const QString &id() const { return m_id; }
    /// The name as Jira spells it.
    const QString &name() const { return m_name; }
    StatusCategory category() const { return m_category; }
    /// The key that groups equivalent statuses of different projects, such as "inprogress".
    const QString &groupKey() const { return m_groupKey; }
    /// How much of the status icon is filled, from 0 to 1. Only statuses of the category in progress have a value other
    /// than 0.
    double progress() const;
    /// The name to display: the canonical label of the group, or the status's own name if the group has none.
    QString displayName() const;

    bool operator==(const IssueStatus &) const = default;

private:
    QString m_id;
    QString m_name;
    StatusCategory m_category = StatusCategory::Todo;
    QString m_groupKey;
};

size_t qHash(const IssueStatus &status, size_t seed = 0);

/// A transition that the workflow offers for an issue.
struct WorkflowTransition
{
    /// The identifier that the service expects when the transition is performed.
    QString id;
    /// The transition's own name, which may differ from the name of the target status.
    QString name;
    IssueStatus to;

    bool operator==(const WorkflowTransition &) const = default;
};
