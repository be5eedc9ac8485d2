#pragma once

#include "model/Enums.h"

#include <QString>

/// A type of issue.
struct IssueType
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(Model::IssueTypeKind kind READ kind CONSTANT FINAL)

public:
    using Kind = Model::IssueTypeKind;

    QString id;
    QString name;
    bool isSubtask = false;
    /// The level in Jira's hierarchy: negative for sub-tasks, 0 for standard issues, positive for the levels above,
    /// such as epics.
    qint64 hierarchyLevel = 0;

    /// The kind of the type, derived from its name and level.
    Kind kind() const;

    bool operator==(const IssueType &) const = default;
};

size_t qHash(const IssueType &type, size_t seed = 0);
