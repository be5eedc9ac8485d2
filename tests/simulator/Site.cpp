#include "simulator/Site.h"

using namespace Qt::StringLiterals;

namespace {

/// The record with this identifier; null if there is none.
const auto *byId(const auto &records, const QString &id)
{
    const auto found = std::ranges::find(records, id, [](const auto &record) { return record.id; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

const SiteIssue *Site::issue(const QString &keyOrId) const
{
    const qsizetype at = m_byKey.value(keyOrId.toUpper(), m_byId.value(keyOrId, -1));
    return at < 0 ? nullptr : &m_issues.at(at);
}

SiteIssue *Site::issue(const QString &keyOrId)
{
    const SiteIssue *found = std::as_const(*this).issue(keyOrId);
    // Through the list, which a copy of the site may share until it is written to.
    return found ? &m_issues[found - m_issues.constData()] : nullptr;
}

const SiteUser *Site::user(const QString &accountId) const
{
    const auto found = std::ranges::find(users, accountId, &SiteUser::accountId);
    return found == users.end() ? nullptr : &*found;
}

const SiteProject *Site::project(const QString &keyOrId) const
{
    const auto found = std::ranges::find_if(projects, [&](const SiteProject &project) {
        return project.id == keyOrId || project.key.compare(keyOrId, Qt::CaseInsensitive) == 0;
    });
    return found == projects.end() ? nullptr : &*found;
}

const SiteProject &Site::projectOf(const SiteIssue &issue) const
{
    return *project(issue.projectKey);
}

const SiteStatus *Site::status(const SiteProject &project, const QString &id) const
{
    return byId(project.statuses, id);
}

const SiteStatus &Site::statusOf(const SiteIssue &issue) const
{
    return *status(projectOf(issue), issue.statusId);
}

const SiteIssueType *Site::type(const SiteProject &project, const QString &id) const
{
    return byId(project.types, id);
}

const SitePriority *Site::priority(const QString &id) const
{
    return byId(priorities, id);
}

const SiteSprint *Site::sprint(const QString &id) const
{
    return byId(sprints, id);
}

QList<const SiteIssue *> Site::subtasksOf(const SiteIssue &issue) const
{
    QList<const SiteIssue *> found;
    for (const SiteIssue &other : m_issues) {
        if (!other.parentKey.isEmpty() && other.parentKey == issue.key &&
            type(projectOf(other), other.typeId)->hierarchyLevel < 0)
            found += &other;
    }
    return found;
}

QList<SiteTransition> Site::transitionsOf(const SiteIssue &issue) const
{
    QList<SiteTransition> offered;
    for (const SiteTransition &transition : projectOf(issue).transitions) {
        if (transition.from.isEmpty() || transition.from.contains(issue.statusId))
            offered += transition;
    }
    return offered;
}

QString Site::newId()
{
    return QString::number(++m_lastId);
}

QString Site::newKey(const QString &projectKey)
{
    return projectKey + u'-' + QString::number(++m_lastNumbers[projectKey]);
}

SiteIssue &Site::add(SiteIssue issue)
{
    m_byKey.insert(issue.key, m_issues.size());
    m_byId.insert(issue.id, m_issues.size());
    m_issues += std::move(issue);
    return m_issues.last();
}

void Site::move(SiteIssue &issue, const QString &projectKey)
{
    const qsizetype at = m_byKey.value(issue.key);
    const QString before = std::exchange(issue.key, newKey(projectKey));
    issue.projectKey = projectKey;
    issue.statusId = projectOf(issue).statuses.first().id;
    issue.typeId = projectOf(issue).types.first().id;
    m_byKey.insert(issue.key, at);
    change(issue, u"Key"_s, before, issue.key);
}

void Site::perform(SiteIssue &issue, const SiteTransition &transition)
{
    const SiteStatus before = statusOf(issue);
    issue.statusId = transition.to;
    const SiteStatus after = statusOf(issue);
    record(issue, {.field = u"status"_s,
                   .from = before.id,
                   .fromName = before.name,
                   .to = after.id,
                   .toName = after.name});
}

void Site::assign(SiteIssue &issue, const QString &accountId)
{
    const QString before = std::exchange(issue.assignee, accountId);
    record(issue, {.field = u"assignee"_s,
                   .from = before,
                   .fromName = nameOf(before),
                   .to = accountId,
                   .toName = nameOf(accountId)});
}

void Site::change(SiteIssue &issue, const QString &field, const QString &from, const QString &to)
{
    record(issue, {.field = field, .fromName = from, .toName = to});
}

const SiteComment &Site::comment(SiteIssue &issue, SiteComment comment)
{
    comment.id = newId();
    comment.author = me;
    comment.created = now();
    issue.updated = comment.created;
    issue.comments += std::move(comment);
    return issue.comments.last();
}

const SiteAttachment &Site::attach(SiteIssue &issue, SiteAttachment attachment)
{
    attachment.id = newId();
    attachment.mediaId = u"media-"_s + attachment.id;
    attachment.author = me;
    attachment.created = now();
    record(issue, {.field = u"Attachment"_s, .to = attachment.id, .toName = attachment.filename});
    issue.attachments += std::move(attachment);
    return issue.attachments.last();
}

bool Site::removeAttachment(const QString &id)
{
    for (SiteIssue &issue : m_issues) {
        const auto removed =
            issue.attachments.removeIf([&](const SiteAttachment &one) { return one.id == id; });
        if (removed > 0) {
            record(issue, {.field = u"Attachment"_s, .from = id});
            return true;
        }
    }
    return false;
}

const SiteAttachment *Site::attachment(const QString &id) const
{
    for (const SiteIssue &issue : m_issues) {
        if (const SiteAttachment *found = byId(issue.attachments, id))
            return found;
    }
    return nullptr;
}

QString Site::nameOf(const QString &accountId) const
{
    const SiteUser *found = user(accountId);
    return found ? found->displayName : QString();
}

void Site::record(SiteIssue &issue, SiteChange change)
{
    change.date = now();
    change.author = me;
    issue.updated = change.date;
    issue.history += std::move(change);
}
