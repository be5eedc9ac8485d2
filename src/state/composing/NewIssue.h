#pragma once

#include "model/IssueEdits.h"
#include "model/JiraUser.h"
#include "model/Project.h"

#include <QList>

#include <optional>

/// The types in which an issue without a parent can be created: those of the project's details, or, while these are
/// unknown, those of the project as it is listed. Sub-tasks are left out.
QList<IssueType> creatableTypes(const std::optional<Project> &details,
                                const std::optional<Project> &listed);

/// The type that a new issue has at first: the first task, else the first story, else the first type. Nothing if there
/// are no types.
std::optional<IssueType> defaultType(const QList<IssueType> &types);

/// What the user has entered for a new issue.
struct NewIssue
{
    QString projectKey;
    std::optional<QString> typeID;
    /// The title.
    QString summary;
    /// The description, as Markdown.
    QString details;
    std::optional<IssuePriority> priority;
    std::optional<JiraUser> assignee;
    QStringList labels;

    bool operator==(const NewIssue &) const = default;
};

/// True if the title contains a word and the project is known.
bool canCreate(const NewIssue &issue);

/// The issue as it is sent. White space around the title and the description is removed, and a description without words
/// is left out. A name of one of the users after an "@" in the description becomes a mention.
IssueDraft issueDraft(const NewIssue &issue, const QList<JiraUser> &users);
