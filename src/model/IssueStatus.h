#pragma once

#include "model/Enums.h"

#include <QHash>
#include <QString>

#include <optional>

/// One workflow status, as a value that crosses projects. Fixed at creation: made by the constructor or by `guessed`.
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
    /// Classifies a status by its name and by Jira's category key ("new", "indeterminate", "done"; may be absent).
    IssueStatus(QString id, QString name, const std::optional<QString> &jiraCategoryKey);

    /// A status made from nothing but a name, as in an issue's history; its id is "name:" and the folded name.
    static IssueStatus guessed(const QString &name);
    /// The French label of each canonical group key.
    static const QHash<QString, QString> &canonicalLabels();

    const QString &id() const { return m_id; }
    /// The name as Jira spells it.
    const QString &name() const { return m_name; }
    StatusCategory category() const { return m_category; }
    /// The key under which statuses of different projects that mean the same are merged, such as "inprogress".
    const QString &groupKey() const { return m_groupKey; }
    /// The fill of the status icon, 0 to 1; not 0 only for work in progress.
    double progress() const;
    /// What every screen calls the status: the canonical label of its group, else its name.
    QString displayName() const;

    bool operator==(const IssueStatus &) const = default;

private:
    QString m_id;
    QString m_name;
    StatusCategory m_category = StatusCategory::Todo;
    QString m_groupKey;
};

size_t qHash(const IssueStatus &status, size_t seed = 0);

/// One move that the workflow offers for an issue.
struct WorkflowTransition
{
    /// What the service wants back to perform it.
    QString id;
    /// The transition's own name, which need not be the target's.
    QString name;
    IssueStatus to;

    bool operator==(const WorkflowTransition &) const = default;
};
