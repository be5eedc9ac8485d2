#pragma once

#include "demo/DemoSite.h"
#include "model/IssueEdits.h"

#include <QDateTime>

/// The changes to a demo site. Every change is made by the signed-in user at the given time. Unless stated otherwise,
/// an unknown key is not an error: the change to the issue itself is skipped and the rest is done.
namespace DemoEdits {

/// Adds the key at the start of the list of recently opened issues.
void opened(DemoSite &site, const QString &key);

/// Sets the issue's status to the target of the transition and adds a log entry. It is not checked whether the workflow
/// allows the transition.
void perform(DemoSite &site, const WorkflowTransition &transition, const QString &key,
             const QDateTime &now);

/// Changes one field, without a log entry. Fails for an unknown key with `JiraError` 404.
void update(DemoSite &site, const QString &key, const IssueFieldUpdate &fieldUpdate,
            const QDateTime &now);

/// Changes the assignee and adds a log entry; an absent user unassigns the issue.
void assign(DemoSite &site, const QString &key, const std::optional<JiraUser> &user,
            const QDateTime &now);

/// Appends the comment to the issue's comments. The issue's date of last change stays the same.
void append(DemoSite &site, const QString &key, const Comment &comment);

/// Creates the issue in the running sprint with the status "À faire" and returns its key, which has the next number of
/// the project. The project may be unknown to the site. Unknown identifiers in the draft count as absent; without a
/// known type, the issue becomes a plain task.
QString create(DemoSite &site, const IssueDraft &draft, const QString &id, const QDateTime &now);

/// Adds attachments to the issue and updates its date of last change.
void attach(DemoSite &site, const QString &key, const QList<Attachment> &attachments,
            const QDateTime &now);

/// Removes every attachment with this id. An unknown id is not an error.
void detach(DemoSite &site, const QString &attachmentID);

} // namespace DemoEdits
