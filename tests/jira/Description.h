#pragma once

#include "model/Comment.h"
#include "model/Issue.h"
#include "model/Project.h"

#include <QString>
#include <QStringList>

/// Describes records as text for case files, with one line for each field that has a value.
namespace Description {

QString of(const JiraUser &user);
QString of(const IssueStatus &status);
QString of(const IssuePriority &priority);
QString of(const IssueType &type);
QString of(const WorkflowTransition &transition);
QString of(const Project &project);
QString of(const IssueRef &issue);
QString of(const Attachment &attachment);
QString of(const ActivityEvent &event);
QString of(const Comment &comment);
QString of(const Issue &issue);

template <typename Record>
QString of(const QList<Record> &records)
{
    QStringList lines;
    for (const Record &record : records)
        lines.append(of(record));
    return lines.isEmpty() ? QStringLiteral("none") : lines.join(u'\n');
}

} // namespace Description
