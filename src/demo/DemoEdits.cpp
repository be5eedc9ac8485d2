#include "demo/DemoEdits.h"

#include "model/JiraError.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace DemoEdits {

namespace {

/// Applies the change to the issue and sets its date of last change; does nothing for an unknown key.
template <typename Change>
void edit(DemoSite &site, const QString &key, const QDateTime &now, Change change)
{
    const auto found = site.store.find(key);
    if (found == site.store.end())
        return;
    Issue issue = **found;
    change(issue);
    issue.updated = now;
    *found = std::move(issue);
}

void log(DemoSite &site, const QString &key, const QDateTime &now, ActivityEvent::Kind kind)
{
    site.events[key].append({now, DemoSeed::me(), std::move(kind)});
}

/// Stores the new value of an edit in its field.
struct Apply
{
    Issue &issue;

    void operator()(const IssueFieldUpdate::Summary &edit) const { issue.summary = edit.text; }
    void operator()(const IssueFieldUpdate::Description &edit) const
    {
        issue.description = edit.document;
    }
    void operator()(const IssueFieldUpdate::Priority &edit) const
    {
        issue.priority = edit.priority;
    }
    void operator()(const IssueFieldUpdate::Labels &edit) const { issue.labels = edit.labels; }
    void operator()(const IssueFieldUpdate::DueDate &edit) const { issue.dueDate = edit.day; }
};

/// The first item whose field equals the given text; nothing if there is no text or no such item.
template <typename T>
std::optional<T> firstWith(const QList<T> &items, auto field, const std::optional<QString> &wanted)
{
    const auto found = std::ranges::find_if(
        items, [&](const T &item) { return wanted && std::invoke(field, item) == *wanted; });
    return found != items.end() ? std::optional(*found) : std::nullopt;
}

IssueType typeOf(const IssueDraft &draft)
{
    const auto project = firstWith(DemoSeed::projects(), &Project::key, draft.projectKey);
    const QList<IssueType> types = project ? project->issueTypes : QList<IssueType>();
    const IssueType plainTask{u"10002"_s, u"Tâche"_s, false, 0};
    return firstWith(types, &IssueType::id, draft.issueTypeID).value_or(plainTask);
}

Issue fromDraft(const IssueDraft &draft, const QDateTime &now)
{
    Issue issue;
    issue.summary = draft.summary;
    issue.status = DemoSeed::statuses().at(qsizetype(DemoSeed::RowStatus::Todo));
    issue.priority = firstWith(DemoSeed::priorities(), &IssuePriority::id, draft.priorityID);
    issue.assignee = firstWith(DemoSeed::users(), &JiraUser::id, draft.assigneeID);
    issue.reporter = DemoSeed::me();
    issue.labels = draft.labels;
    issue.type = typeOf(draft);
    issue.projectKey = draft.projectKey;
    issue.created = now;
    issue.updated = now;
    issue.description = draft.description;
    return issue;
}

QString nextKey(DemoSite &site, const QString &projectKey)
{
    return projectKey + u'-' + QString::number(++site.counters[projectKey]);
}

} // namespace

void opened(DemoSite &site, const QString &key)
{
    site.history.removeAll(key);
    site.history.prepend(key);
}

void perform(DemoSite &site, const WorkflowTransition &transition, const QString &key,
             const QDateTime &now)
{
    std::optional<QString> from;
    edit(site, key, now, [&](Issue &issue) {
        from = issue.status.name();
        issue.status = transition.to;
    });
    log(site, key, now, ActivityEvent::StatusChanged{from, transition.to.name()});
}

void update(DemoSite &site, const QString &key, const IssueFieldUpdate &fieldUpdate,
            const QDateTime &now)
{
    if (!site.store.contains(key))
        throw JiraError(JiraError::Http{404, {}});
    edit(site, key, now, [&](Issue &issue) { std::visit(Apply{issue}, fieldUpdate.value); });
}

void assign(DemoSite &site, const QString &key, const std::optional<JiraUser> &user,
            const QDateTime &now)
{
    edit(site, key, now, [&](Issue &issue) { issue.assignee = user; });
    const auto name = user ? std::optional(user->name) : std::nullopt;
    log(site, key, now, ActivityEvent::AssigneeChanged{name});
}

void append(DemoSite &site, const QString &key, const Comment &comment)
{
    site.threads[key].append(comment);
}

QString create(DemoSite &site, const IssueDraft &draft, const QString &id, const QDateTime &now)
{
    Issue issue = fromDraft(draft, now);
    issue.id = id;
    issue.key = nextKey(site, draft.projectKey);
    const QString key = issue.key;
    site.store.insert(key, std::move(issue));
    site.sprint.insert(key);
    site.events.insert(key, {{now, DemoSeed::me(), ActivityEvent::Created{}}});
    return key;
}

void attach(DemoSite &site, const QString &key, const QList<Attachment> &attachments,
            const QDateTime &now)
{
    site.files[key].append(attachments);
    edit(site, key, now, [](Issue &) {});
}

void detach(DemoSite &site, const QString &attachmentID)
{
    for (QList<Attachment> &attachments : site.files)
        attachments.removeIf([&](const Attachment &a) { return a.id == attachmentID; });
}

} // namespace DemoEdits
