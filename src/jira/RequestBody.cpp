#include "jira/RequestBody.h"

#include "jira/JiraDate.h"
#include "richtext/ADFCoding.h"

using namespace Qt::StringLiterals;

namespace {

using Object = JSONValue::Object;

JSONValue listOf(const QStringList &texts)
{
    return JSONValue::Array(texts.begin(), texts.end());
}

JSONValue withID(const QString &id)
{
    return Object{{u"id"_s, id}};
}

struct FieldOfUpdate
{
    Object operator()(const IssueFieldUpdate::Summary &summary) const
    {
        return {{u"summary"_s, summary.text}};
    }
    Object operator()(const IssueFieldUpdate::Description &description) const
    {
        const auto &document = description.document;
        return {{u"description"_s, document ? ADFCoding::jsonValueFrom(*document) : JSONValue()}};
    }
    Object operator()(const IssueFieldUpdate::Priority &priority) const
    {
        return {{u"priority"_s, withID(priority.priority.id())}};
    }
    Object operator()(const IssueFieldUpdate::Labels &labels) const
    {
        return {{u"labels"_s, listOf(labels.labels)}};
    }
    Object operator()(const IssueFieldUpdate::DueDate &due) const
    {
        return {{u"duedate"_s, due.day ? JSONValue(JiraDate::dayText(*due.day)) : JSONValue()}};
    }
};

/// The property that marks a comment in a service project as internal.
JSONValue agentsOnly()
{
    const Object property{{u"key"_s, u"sd.public.comment"_s},
                          {u"value"_s, Object{{u"internal"_s, true}}}};
    return JSONValue::Array{property};
}

} // namespace

QByteArray RequestBody::transition(const WorkflowTransition &transition)
{
    return ADFCoding::encode(Object{{u"transition"_s, withID(transition.id)}});
}

QByteArray RequestBody::update(const IssueFieldUpdate &update)
{
    return ADFCoding::encode(Object{{u"fields"_s, std::visit(FieldOfUpdate(), update.value)}});
}

QByteArray RequestBody::assignee(const std::optional<JiraUser> &user)
{
    return ADFCoding::encode(Object{{u"accountId"_s, user ? JSONValue(user->id) : JSONValue()}});
}

QByteArray RequestBody::comment(const ADFNode &body, CommentAudience audience)
{
    Object comment{{u"body"_s, ADFCoding::jsonValueFrom(body)}};
    if (audience == CommentAudience::Agents)
        comment[u"properties"_s] = agentsOnly();
    return ADFCoding::encode(comment);
}

QByteArray RequestBody::create(const IssueDraft &draft)
{
    Object fields{{u"project"_s, Object{{u"key"_s, draft.projectKey}}},
                  {u"summary"_s, draft.summary}};
    if (draft.issueTypeID)
        fields[u"issuetype"_s] = withID(*draft.issueTypeID);
    if (draft.description)
        fields[u"description"_s] = ADFCoding::jsonValueFrom(*draft.description);
    if (draft.priorityID)
        fields[u"priority"_s] = withID(*draft.priorityID);
    if (draft.assigneeID)
        fields[u"assignee"_s] = Object{{u"accountId"_s, *draft.assigneeID}};
    if (!draft.labels.isEmpty())
        fields[u"labels"_s] = listOf(draft.labels);
    return ADFCoding::encode(Object{{u"fields"_s, fields}});
}
