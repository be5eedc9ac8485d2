#include "jira/SiteRequests.h"

#include "jira/IssueSearch.h"

using namespace Qt::StringLiterals;

namespace {

using Method = JiraRequest::Method;

QStringList apiPath(const QStringList &segments)
{
    return QStringList{u"rest"_s, u"api"_s, u"3"_s} + segments;
}

JiraRequest get(const QStringList &segments, const QMap<QString, QString> &query = {})
{
    return {.method = Method::Get, .path = apiPath(segments), .query = query, .body = {}};
}

JiraRequest send(Method method, const QStringList &segments, const QByteArray &body)
{
    return {.method = method, .path = apiPath(segments), .query = {}, .body = body};
}

} // namespace

JiraRequest SiteRequests::currentUser()
{
    return get({u"myself"_s});
}

JiraRequest SiteRequests::projects(qsizetype startAt)
{
    return get({u"project"_s, u"search"_s}, {{u"maxResults"_s, u"100"_s},
                                             {u"startAt"_s, QString::number(startAt)},
                                             {u"orderBy"_s, u"name"_s}});
}

JiraRequest SiteRequests::project(const QString &key)
{
    return get({u"project"_s, key});
}

JiraRequest SiteRequests::statuses(const QString &projectKey)
{
    return get({u"project"_s, projectKey, u"statuses"_s});
}

JiraRequest SiteRequests::priorities()
{
    return get({u"priority"_s, u"search"_s}, {{u"maxResults"_s, u"100"_s}});
}

JiraRequest SiteRequests::prioritiesOfOlderSites()
{
    return get({u"priority"_s});
}

JiraRequest SiteRequests::assignableUsers(const QString &projectKey)
{
    return get({u"user"_s, u"assignable"_s, u"search"_s},
               {{u"project"_s, projectKey}, {u"maxResults"_s, u"200"_s}});
}

JiraRequest SiteRequests::searchUsers(const QString &query)
{
    return get({u"user"_s, u"search"_s}, {{u"query"_s, query}, {u"maxResults"_s, u"20"_s}});
}

JiraRequest SiteRequests::issue(const QString &key)
{
    const QStringList fields = listFields() + QStringList{u"description"_s, u"attachment"_s};
    return get({u"issue"_s, key},
               {{u"fields"_s, fields.join(u',')}, {u"expand"_s, u"renderedFields"_s}});
}

JiraRequest SiteRequests::comments(const QString &key)
{
    return get({u"issue"_s, key, u"comment"_s}, {{u"orderBy"_s, u"created"_s},
                                                 {u"maxResults"_s, u"100"_s},
                                                 {u"expand"_s, u"renderedBody"_s}});
}

JiraRequest SiteRequests::transitions(const QString &key)
{
    return get({u"issue"_s, key, u"transitions"_s});
}

JiraRequest SiteRequests::perform(const WorkflowTransition &transition, const QString &key)
{
    return send(Method::Post, {u"issue"_s, key, u"transitions"_s},
                RequestBody::transition(transition));
}

JiraRequest SiteRequests::update(const QString &key, const IssueFieldUpdate &update)
{
    return send(Method::Put, {u"issue"_s, key}, RequestBody::update(update));
}

JiraRequest SiteRequests::assign(const QString &key, const std::optional<JiraUser> &user)
{
    return send(Method::Put, {u"issue"_s, key, u"assignee"_s}, RequestBody::assignee(user));
}

JiraRequest SiteRequests::addComment(const QString &key, const ADFNode &body,
                                     CommentAudience audience)
{
    return send(Method::Post, {u"issue"_s, key, u"comment"_s},
                RequestBody::comment(body, audience));
}

JiraRequest SiteRequests::create(const IssueDraft &draft)
{
    return send(Method::Post, {u"issue"_s}, RequestBody::create(draft));
}

JiraRequest SiteRequests::attachments(const QString &key)
{
    return {.method = Method::Post,
            .path = apiPath({u"issue"_s, key, u"attachments"_s}),
            .query = {},
            .body = {}};
}

JiraRequest SiteRequests::deleteAttachment(const QString &id)
{
    return {
        .method = Method::Delete, .path = apiPath({u"attachment"_s, id}), .query = {}, .body = {}};
}
