#pragma once

#include "model/Enums.h"

#include <QString>

/// The level that the name of a priority indicates, in French or English; `None` when it contains no known word.
PriorityLevel priorityLevelFromName(const QString &jiraName);
/// The French name of a level: "Urgente", "Haute", "Moyenne", "Basse", "Aucune priorité".
QString displayName(PriorityLevel level);

/// A priority of the site. Its level is derived from its name on construction.
class IssuePriority
{
    Q_GADGET
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(Model::PriorityLevel level READ level CONSTANT FINAL)
    Q_PROPERTY(QString displayName READ displayName CONSTANT FINAL)

public:
    IssuePriority() = default;
    /// `name` is the name as Jira spells it.
    IssuePriority(QString id, QString name);

    const QString &id() const { return m_id; }
    const QString &name() const { return m_name; }
    PriorityLevel level() const { return m_level; }
    /// The French name of each of Jira's five standard priorities; any other name as Jira spells it.
    QString displayName() const;

    bool operator==(const IssuePriority &) const = default;

private:
    QString m_id;
    QString m_name;
    PriorityLevel m_level = PriorityLevel::None;
};

size_t qHash(const IssuePriority &priority, size_t seed = 0);
