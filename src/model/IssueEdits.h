#pragma once

#include "model/ADFNode.h"
#include "model/IssuePriority.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

/// A change to one field of an issue. An absent value clears the field.
struct IssueFieldUpdate
{
    struct Summary
    {
        QString text;
        bool operator==(const Summary &) const = default;
    };
    struct Description
    {
        std::optional<ADFNode> document;
        bool operator==(const Description &) const = default;
    };
    struct Priority
    {
        IssuePriority priority;
        bool operator==(const Priority &) const = default;
    };
    struct Labels
    {
        QStringList labels;
        bool operator==(const Labels &) const = default;
    };
    struct DueDate
    {
        std::optional<QDate> day;
        bool operator==(const DueDate &) const = default;
    };

    std::variant<Summary, Description, Priority, Labels, DueDate> value;

    bool operator==(const IssueFieldUpdate &) const = default;
};

/// The contents of the screen that creates an issue. Absent fields are left to the site's defaults.
struct IssueDraft
{
    QString projectKey;
    std::optional<QString> issueTypeID;
    QString summary;
    std::optional<ADFNode> description;
    std::optional<QString> priorityID;
    std::optional<QString> assigneeID;
    QStringList labels;

    bool operator==(const IssueDraft &) const = default;
};
