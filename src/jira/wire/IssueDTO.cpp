#include "jira/wire/IssueDTO.h"

#include "jira/wire/Models.h"
#include "richtext/AttachmentRefs.h"

using namespace Qt::StringLiterals;

namespace {

IssueStatus statusOf(const FieldsDTO &fields)
{
    return fields.status ? fields.status->model() : IssueStatus(u"?"_s, u"Inconnu"_s, std::nullopt);
}

/// The key of the project in the response; if it is missing, the part of the issue's key before the first dash.
QString projectKeyOf(const IssueDTO &issue)
{
    if (issue.fields.project)
        return issue.fields.project->key;
    return issue.key.split(u'-', Qt::SkipEmptyParts).value(0);
}

std::optional<ADFNode> descriptionOf(const IssueDTO &issue)
{
    if (!issue.renderedFields)
        return issue.fields.description;
    const QString html = issue.renderedFields->description.value_or(QString());
    return AttachmentRefs::tied(issue.fields.description, AttachmentRefs::ids(html));
}

} // namespace

Issue IssueDTO::model(const QDateTime &now) const
{
    Issue issue;
    issue.id = id;
    issue.key = key;
    issue.summary = fields.summary.value_or(u"(sans titre)"_s);
    issue.status = statusOf(fields);
    issue.priority = modelOf(fields.priority);
    issue.assignee = modelOf(fields.assignee);
    issue.reporter = modelOf(fields.reporter);
    issue.labels = fields.labels.value_or(QStringList());
    issue.type = modelOf(fields.issuetype);
    issue.projectKey = projectKeyOf(*this);
    issue.created = fields.created.value_or(now);
    issue.updated = fields.updated.value_or(now);
    issue.dueDate = fields.duedate;
    issue.description = descriptionOf(*this);
    issue.parent = modelOf(fields.parent);
    issue.subtasks = modelsOf(fields.subtasks);
    issue.attachments = modelsOf(fields.attachment, now);
    if (changelog)
        issue.activity =
            changelog->events({issue.created, issue.reporter, ActivityEvent::Created{}});
    return issue;
}
