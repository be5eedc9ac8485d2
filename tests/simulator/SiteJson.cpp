#include "simulator/SiteJson.h"

#include "simulator/SiteHtml.h"

using namespace Qt::StringLiterals;

namespace {

QString rest(const Site &site, const QString &path)
{
    return site.address.toString() + u"/rest/api/3/"_s + path;
}

/// The addresses of a picture in all sizes, from the one without a size.
QJsonObject avatars(const QString &address)
{
    QJsonObject urls;
    for (const QString &size : {u"16"_s, u"24"_s, u"32"_s, u"48"_s})
        urls.insert(size + u'x' + size, address + u"?size="_s + size);
    return urls;
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonValue userOrNull(const Site &site, const QString &accountId)
{
    return accountId.isEmpty() ? QJsonValue() : SiteJson::user(site, accountId);
}

QString categoryName(const QString &category)
{
    static const QHash<QString, QString> names = {
        {u"new"_s, u"À faire"_s}, {u"indeterminate"_s, u"En cours"_s}, {u"done"_s, u"Terminé"_s}};
    return names.value(category);
}

/// The fields of a parent or sub-task within another issue.
QJsonObject reference(const Site &site, const SiteIssue &issue)
{
    return {{u"id"_s, issue.id},
            {u"key"_s, issue.key},
            {u"self"_s, rest(site, u"issue/"_s + issue.id)},
            {u"fields"_s,
             QJsonObject{{u"summary"_s, issue.summary},
                         {u"status"_s, SiteJson::status(site, site.statusOf(issue))},
                         {u"issuetype"_s,
                          SiteJson::type(site, *site.type(site.projectOf(issue), issue.typeId))}}}};
}

QJsonArray references(const Site &site, const QList<const SiteIssue *> &issues)
{
    QJsonArray all;
    for (const SiteIssue *issue : issues)
        all += reference(site, *issue);
    return all;
}

QJsonArray attachments(const Site &site, const SiteIssue &issue)
{
    QJsonArray all;
    for (const SiteAttachment &attachment : issue.attachments)
        all += SiteJson::attachment(site, attachment);
    return all;
}

QJsonValue parent(const Site &site, const SiteIssue &issue)
{
    const SiteIssue *found = issue.parentKey.isEmpty() ? nullptr : site.issue(issue.parentKey);
    return found ? QJsonValue(reference(site, *found)) : QJsonValue(QJsonValue::Undefined);
}

QJsonObject allFields(const Site &site, const SiteIssue &issue)
{
    const SiteProject &project = site.projectOf(issue);
    const SitePriority *priority = site.priority(issue.priorityId);
    return {
        {u"summary"_s, issue.summary},
        {u"status"_s, SiteJson::status(site, site.statusOf(issue))},
        {u"priority"_s, priority ? SiteJson::priority(site, *priority) : QJsonValue()},
        {u"assignee"_s, userOrNull(site, issue.assignee)},
        {u"reporter"_s, userOrNull(site, issue.reporter)},
        {u"labels"_s, QJsonArray::fromStringList(issue.labels)},
        {u"issuetype"_s, SiteJson::type(site, *site.type(project, issue.typeId))},
        {u"project"_s, SiteJson::project(site, project)},
        {u"created"_s, SiteJson::instant(site, issue.created)},
        {u"updated"_s, SiteJson::instant(site, issue.updated)},
        {u"duedate"_s, issue.due ? issue.due->toString(Qt::ISODate) : QJsonValue()},
        {u"description"_s, issue.description.isEmpty() ? QJsonValue() : issue.description},
        {u"parent"_s, parent(site, issue)},
        {u"subtasks"_s, references(site, site.subtasksOf(issue))},
        {u"attachment"_s, attachments(site, issue)},
    };
}

QJsonObject only(const QJsonObject &fields, const QStringList &names)
{
    if (names.contains(u"*all"_s))
        return fields;
    QJsonObject chosen;
    for (const QString &name : names) {
        if (fields.contains(name))
            chosen.insert(name, fields.value(name));
    }
    return chosen;
}

QJsonObject history(const Site &site, const SiteIssue &issue, qsizetype at)
{
    const SiteChange &change = issue.history[at];
    const QJsonObject item{{u"field"_s, change.field},
                           {u"fieldtype"_s, u"jira"_s},
                           {u"fieldId"_s, change.field.toLower()},
                           {u"from"_s, textOrNull(change.from)},
                           {u"fromString"_s, textOrNull(change.fromName)},
                           {u"to"_s, textOrNull(change.to)},
                           {u"toString"_s, textOrNull(change.toName)}};
    return {{u"id"_s, issue.id + QString::number(at).rightJustified(3, u'0')},
            {u"author"_s, userOrNull(site, change.author)},
            {u"created"_s, SiteJson::instant(site, change.date)},
            {u"items"_s, QJsonArray{item}}};
}

/// With the newest change first, as the site sends it.
QJsonObject changelog(const Site &site, const SiteIssue &issue)
{
    QJsonArray histories;
    for (qsizetype at = issue.history.size(); at-- > 0;)
        histories += history(site, issue, at);
    return {{u"startAt"_s, 0},
            {u"maxResults"_s, histories.size()},
            {u"total"_s, histories.size()},
            {u"histories"_s, histories}};
}

} // namespace

QString SiteJson::instant(const Site &site, const QDateTime &date)
{
    const QDateTime local = date.toTimeZone(site.zone);
    const int minutes = local.offsetFromUtc() / 60;
    return local.toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s) +
           u"%1%2%3"_s.arg(QChar(minutes < 0 ? u'-' : u'+'))
               .arg(std::abs(minutes) / 60, 2, 10, QChar(u'0'))
               .arg(std::abs(minutes) % 60, 2, 10, QChar(u'0'));
}

QJsonObject SiteJson::user(const Site &site, const QString &accountId)
{
    const SiteUser *found = site.user(accountId);
    if (!found)
        return {{u"accountId"_s, accountId}};
    QJsonObject json{
        {u"self"_s, rest(site, u"user?accountId="_s + accountId)},
        {u"accountId"_s, accountId},
        {u"accountType"_s, found->accountType},
        {u"displayName"_s, found->displayName},
        {u"active"_s, found->isActive},
        {u"timeZone"_s, QString::fromLatin1(site.zone.id())},
        {u"avatarUrls"_s, avatars(site.media.toString() + u"/avatar/user/"_s + accountId)}};
    if (!found->email.isEmpty())
        json.insert(u"emailAddress"_s, found->email);
    return json;
}

QJsonObject SiteJson::project(const Site &site, const SiteProject &project)
{
    return {{u"self"_s, rest(site, u"project/"_s + project.id)},
            {u"id"_s, project.id},
            {u"key"_s, project.key},
            {u"name"_s, project.name},
            {u"projectTypeKey"_s, project.typeKey},
            {u"simplified"_s, !project.hasSprints},
            {u"avatarUrls"_s,
             avatars(rest(site, u"universal_avatar/view/type/project/avatar/"_s + project.id))}};
}

QJsonObject SiteJson::detailedProject(const Site &site, const SiteProject &project)
{
    QJsonArray types;
    for (const SiteIssueType &type : project.types)
        types += SiteJson::type(site, type);
    QJsonObject json = SiteJson::project(site, project);
    json.insert(u"issueTypes"_s, types);
    return json;
}

QJsonObject SiteJson::type(const Site &site, const SiteIssueType &type)
{
    return {{u"self"_s, rest(site, u"issuetype/"_s + type.id)},
            {u"id"_s, type.id},
            {u"name"_s, type.name},
            {u"subtask"_s, type.hierarchyLevel < 0},
            {u"hierarchyLevel"_s, type.hierarchyLevel}};
}

QJsonObject SiteJson::status(const Site &site, const SiteStatus &status)
{
    return {{u"self"_s, rest(site, u"status/"_s + status.id)},
            {u"id"_s, status.id},
            {u"name"_s, status.name},
            {u"statusCategory"_s,
             QJsonObject{{u"key"_s, status.category}, {u"name"_s, categoryName(status.category)}}}};
}

QJsonObject SiteJson::priority(const Site &site, const SitePriority &priority)
{
    return {{u"self"_s, rest(site, u"priority/"_s + priority.id)},
            {u"id"_s, priority.id},
            {u"name"_s, priority.name}};
}

QJsonObject SiteJson::transition(const Site &site, const SiteProject &project,
                                 const SiteTransition &transition)
{
    return {{u"id"_s, transition.id},
            {u"name"_s, transition.name},
            {u"isAvailable"_s, true},
            {u"to"_s, status(site, *site.status(project, transition.to))}};
}

QJsonObject SiteJson::attachment(const Site &site, const SiteAttachment &attachment)
{
    QJsonObject json{{u"self"_s, rest(site, u"attachment/"_s + attachment.id)},
                     {u"id"_s, attachment.id},
                     {u"filename"_s, attachment.filename},
                     {u"author"_s, user(site, attachment.author)},
                     {u"created"_s, instant(site, attachment.created)},
                     {u"size"_s, attachment.content.size()},
                     {u"mimeType"_s, attachment.mimeType},
                     {u"content"_s, rest(site, u"attachment/content/"_s + attachment.id)}};
    if (attachment.mimeType.startsWith("image/"_L1))
        json.insert(u"thumbnail"_s, rest(site, u"attachment/thumbnail/"_s + attachment.id));
    return json;
}

QJsonObject SiteJson::comment(const Site &site, const SiteIssue &issue, const SiteComment &comment,
                              const Wanted &wanted)
{
    QJsonObject json{{u"self"_s, rest(site, u"issue/"_s + issue.id + u"/comment/"_s + comment.id)},
                     {u"id"_s, comment.id},
                     {u"author"_s, user(site, comment.author)},
                     {u"updateAuthor"_s, user(site, comment.author)},
                     {u"body"_s, comment.body},
                     {u"created"_s, instant(site, comment.created)},
                     {u"updated"_s, instant(site, comment.created)},
                     {u"jsdPublic"_s, !comment.isInternal}};
    if (!comment.role.isEmpty())
        json.insert(u"visibility"_s, QJsonObject{{u"type"_s, u"role"_s},
                                                 {u"value"_s, comment.role},
                                                 {u"identifier"_s, comment.role}});
    if (wanted.html)
        json.insert(u"renderedBody"_s, htmlOf(site, issue, comment.body));
    return json;
}

QJsonObject SiteJson::issue(const Site &site, const SiteIssue &issue, const Wanted &wanted)
{
    QJsonObject json{{u"id"_s, issue.id},
                     {u"key"_s, issue.key},
                     {u"self"_s, rest(site, u"issue/"_s + issue.id)},
                     {u"fields"_s, only(allFields(site, issue), wanted.fields)}};
    if (wanted.history)
        json.insert(u"changelog"_s, changelog(site, issue));
    if (wanted.html)
        json.insert(u"renderedFields"_s,
                    QJsonObject{{u"description"_s, htmlOf(site, issue, issue.description)}});
    return json;
}
