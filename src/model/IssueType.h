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
    /// Jira's level: negative for sub-tasks, 0 for the ordinary level, positive above it.
    qint64 hierarchyLevel = 0;

    /// The family of the type, from its name and level.
    Kind kind() const;

    bool operator==(const IssueType &) const = default;
};

size_t qHash(const IssueType &type, size_t seed = 0);
