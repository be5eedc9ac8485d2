#pragma once

#include "demo/DemoSite.h"
#include "model/IssueEdits.h"

#include <QDateTime>

/// How a demo's site changes. Every change is the signed-in user's and happens at the given instant. Unless an operation
/// says otherwise, an unknown key is no error: what belongs to the issue itself is skipped and the rest is done.
namespace DemoEdits {

/// Puts the key at the front of the recently opened issues.
void opened(DemoSite &site, const QString &key);

/// Moves the issue to the transition's target and logs it. Whether the workflow allows it is not checked.
void perform(DemoSite &site, const WorkflowTransition &transition, const QString &key,
             const QDateTime &now);

/// Changes one field, without a log entry. An unknown key fails with `JiraError` 404.
void update(DemoSite &site, const QString &key, const IssueFieldUpdate &fieldUpdate,
            const QDateTime &now);

/// Assigns and logs it; an absent user unassigns.
void assign(DemoSite &site, const QString &key, const std::optional<JiraUser> &user,
            const QDateTime &now);

/// Appends the comment to the issue's thread. The issue does not count as changed.
void append(DemoSite &site, const QString &key, const Comment &comment);

/// Creates the issue in the running sprint, in the status "À faire", and gives its key: the next number of the project,
/// which may be one that the site does not know. Identifiers of the draft that match nothing count as absent; a type
/// that matches nothing becomes a plain task.
QString create(DemoSite &site, const IssueDraft &draft, const QString &id, const QDateTime &now);

/// Adds attachments to the issue, which counts as changed.
void attach(DemoSite &site, const QString &key, const QList<Attachment> &attachments,
            const QDateTime &now);

/// Removes every attachment with this id. An unknown id is no error.
void detach(DemoSite &site, const QString &attachmentID);

} // namespace DemoEdits
