#pragma once

#include "jira/wire/AttachmentDTO.h"
#include "jira/wire/ChangelogDTO.h"
#include "jira/wire/IssueTypeDTO.h"
#include "jira/wire/ParentDTO.h"
#include "jira/wire/PriorityDTO.h"
#include "jira/wire/ProjectDTO.h"
#include "jira/wire/StatusDTO.h"
#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/Issue.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <tuple>

/// The fields of an issue in Jira's JSON. Only the requested fields are present.
struct FieldsDTO
{
    std::optional<QString> summary;
    std::optional<StatusDTO> status;
    std::optional<PriorityDTO> priority;
    std::optional<UserDTO> assignee;
    std::optional<UserDTO> reporter;
    std::optional<QStringList> labels;
    std::optional<IssueTypeDTO> issuetype;
    std::optional<ProjectDTO> project;
    std::optional<QDateTime> created;
    std::optional<QDateTime> updated;
    std::optional<QDate> duedate;
    std::optional<ADFNode> description;
    std::optional<ParentDTO> parent;
    std::optional<QList<ParentDTO>> subtasks;
    std::optional<QList<AttachmentDTO>> attachment;

    static constexpr auto wireMembers()
    {
        return std::tuple(
            WireMember{"summary", &FieldsDTO::summary}, WireMember{"status", &FieldsDTO::status},
            WireMember{"priority", &FieldsDTO::priority},
            WireMember{"assignee", &FieldsDTO::assignee},
            WireMember{"reporter", &FieldsDTO::reporter}, WireMember{"labels", &FieldsDTO::labels},
            WireMember{"issuetype", &FieldsDTO::issuetype},
            WireMember{"project", &FieldsDTO::project}, WireMember{"created", &FieldsDTO::created},
            WireMember{"updated", &FieldsDTO::updated}, WireMember{"duedate", &FieldsDTO::duedate},
            WireMember{"description", &FieldsDTO::description},
            WireMember{"parent", &FieldsDTO::parent}, WireMember{"subtasks", &FieldsDTO::subtasks},
            WireMember{"attachment", &FieldsDTO::attachment});
    }
};

/// The fields that Jira rendered as HTML.
struct RenderedFieldsDTO
{
    std::optional<QString> description;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"description", &RenderedFieldsDTO::description});
    }
};

/// An issue in Jira's JSON.
struct IssueDTO
{
    QString id;
    QString key;
    FieldsDTO fields;
    std::optional<ChangelogDTO> changelog;
    std::optional<RenderedFieldsDTO> renderedFields;

    /// Converts to a domain record. Missing values get a default; `now` replaces dates that are missing or invalid.
    /// `hasDetails` is false, because only the code that fetches a single issue knows that its record is complete.
    Issue model(const QDateTime &now) const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &IssueDTO::id}, WireMember{"key", &IssueDTO::key},
                          WireMember{"fields", &IssueDTO::fields},
                          WireMember{"changelog", &IssueDTO::changelog},
                          WireMember{"renderedFields", &IssueDTO::renderedFields});
    }
};
