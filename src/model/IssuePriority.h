#pragma once

#include "model/Enums.h"

#include <QString>

/// The level that a priority's name means, in French or English; `None` when no word is known.
PriorityLevel priorityLevelFromName(const QString &jiraName);
/// What every screen calls a level: "Urgente", "Haute", "Moyenne", "Basse", "Aucune priorité".
QString displayName(PriorityLevel level);

/// A priority of the site. The level is derived from the name at creation.
class IssuePriority
{
    Q_GADGET
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(Model::PriorityLevel level READ level CONSTANT FINAL)
    Q_PROPERTY(QString displayName READ displayName CONSTANT FINAL)

public:
    IssuePriority() = default;
    IssuePriority(QString id, QString name);

    const QString &id() const { return m_id; }
    const QString &name() const { return m_name; }
    PriorityLevel level() const { return m_level; }
    /// A French word for Jira's five standard names; every other name as Jira spells it.
    QString displayName() const;

    bool operator==(const IssuePriority &) const = default;

private:
    QString m_id;
    QString m_name;
    PriorityLevel m_level = PriorityLevel::None;
};

size_t qHash(const IssuePriority &priority, size_t seed = 0);
