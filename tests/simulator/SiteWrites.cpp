#include "simulator/SiteWrites.h"

#include "simulator/DocumentCheck.h"
#include "simulator/FieldCheck.h"
#include "simulator/SiteJson.h"
#include "simulator/SiteReply.h"
#include "simulator/UploadForm.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// Parses the body as a JSON object; nothing if it is not one or has members other than the known ones.
std::optional<QJsonObject> objectIn(const QByteArray &body, const QStringList &known)
{
    const QJsonDocument json = QJsonDocument::fromJson(body);
    const QStringList names = json.object().keys();
    if (!json.isObject() ||
        !std::ranges::all_of(names, [&](const QString &name) { return known.contains(name); }))
        return {};
    return json.object();
}

QStringList texts(const QJsonValue &values)
{
    QStringList texts;
    for (const QJsonValue value : values.toArray())
        texts += value.toString();
    return texts;
}

QString accountIn(const QJsonValue &value)
{
    return value["accountId"_L1].toString(value["id"_L1].toString());
}

/// Sets fields that were already checked, without adding them to the history.
void setFields(SiteIssue &issue, const QJsonObject &fields)
{
    if (fields.contains("summary"_L1))
        issue.summary = fields.value("summary"_L1).toString();
    if (fields.contains("description"_L1))
        issue.description = fields.value("description"_L1).toObject();
    if (fields.contains("priority"_L1))
        issue.priorityId = fields["priority"_L1]["id"_L1].toString();
    if (fields.contains("labels"_L1))
        issue.labels = texts(fields.value("labels"_L1));
    if (fields.contains("duedate"_L1)) {
        const QDate day = QDate::fromString(fields.value("duedate"_L1).toString(), Qt::ISODate);
        issue.due = day.isValid() ? std::optional(day) : std::nullopt;
    }
}

/// True if the property of a comment makes it visible only to agents.
bool isInternal(const QJsonValue &properties)
{
    return std::ranges::any_of(properties.toArray(), [](const QJsonValue &property) {
        return property["key"_L1] == "sd.public.comment"_L1 &&
               property["value"_L1]["internal"_L1] == true;
    });
}

/// The errors for missing required fields of a new issue.
QMap<QString, QString> faultsOfDraft(const Site &site, const QJsonObject &fields)
{
    QMap<QString, QString> faults;
    const SiteProject *project = site.project(fields["project"_L1]["key"_L1].toString());
    const QString typeId = fields["issuetype"_L1]["id"_L1].toString();
    const SiteIssueType *type = project ? site.type(*project, typeId) : nullptr;
    if (!project)
        faults.insert(u"project"_s, u"Un projet valide est requis."_s);
    if (!type)
        faults.insert(u"issuetype"_s, u"Spécifiez un type de ticket valide."_s);
    else if (type->hierarchyLevel < 0)
        faults.insert(u"parent"_s, u"Un ticket parent est requis pour une sous-tâche."_s);
    if (!fields.contains("summary"_L1))
        faults.insert(u"summary"_s, u"Vous devez spécifier un résumé."_s);
    return faults;
}

SiteIssue newIssue(Site &site, const QJsonObject &fields)
{
    const SiteProject &project = *site.project(fields["project"_L1]["key"_L1].toString());
    SiteIssue issue{.id = site.newId(),
                    .key = site.newKey(project.key),
                    .projectKey = project.key,
                    .typeId = fields["issuetype"_L1]["id"_L1].toString(),
                    .statusId = project.statuses.first().id,
                    .priorityId = site.priorities.value(site.priorities.size() / 2).id,
                    .assignee = accountIn(fields.value("assignee"_L1)),
                    .reporter = site.me,
                    .created = site.now(),
                    .updated = site.now(),
                    .rank = int(site.issues().size())};
    setFields(issue, fields);
    return issue;
}

} // namespace

RawAnswer SiteWrites::perform(Site &site, const SiteRoute &route, const QByteArray &body)
{
    SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto json = objectIn(body, {u"transition"_s, u"fields"_s, u"update"_s, u"properties"_s});
    if (!json || !(*json)["transition"_L1]["id"_L1].isString())
        return SiteReply::badBody();
    const QString id = (*json)["transition"_L1]["id"_L1].toString();
    const auto offered = site.transitionsOf(*issue);
    const auto found = std::ranges::find(offered, id, &SiteTransition::id);
    if (found == offered.end())
        return SiteReply::refused(
            400,
            {u"Il semble que l’action de workflow « %1 » que vous tentez ne soit pas valide."_s.arg(
                id)});
    site.perform(*issue, *found);
    return SiteReply::done();
}

RawAnswer SiteWrites::update(Site &site, const SiteRoute &route, const QByteArray &body)
{
    SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto json = objectIn(body, {u"fields"_s, u"update"_s, u"properties"_s});
    const QJsonObject fields = json ? json->value("fields"_L1).toObject() : QJsonObject();
    if (fields.isEmpty())
        return SiteReply::badBody();
    if (const auto faults = faultsOfFields(site, fields); !faults.isEmpty())
        return SiteReply::refused(400, {}, faults);
    setFields(*issue, fields);
    for (const QString &field : fields.keys())
        site.change(*issue, field, {}, {});
    return SiteReply::done();
}

RawAnswer SiteWrites::assign(Site &site, const SiteRoute &route, const QByteArray &body)
{
    SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto json = objectIn(body, {u"accountId"_s});
    if (!json || !json->contains("accountId"_L1))
        return SiteReply::badBody();
    if (const auto faults = faultsOfFields(
            site, {{u"assignee"_s, json->value("accountId"_L1).isNull() ? QJsonValue() : *json}});
        !faults.isEmpty())
        return SiteReply::refused(400, {}, faults);
    site.assign(*issue, json->value("accountId"_L1).toString());
    return SiteReply::done();
}

RawAnswer SiteWrites::addComment(Site &site, const SiteRoute &route, const QByteArray &body)
{
    SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto json = objectIn(body, {u"body"_s, u"properties"_s, u"visibility"_s});
    if (!json)
        return SiteReply::badBody();
    if (lengthOf(json->value("body"_L1)) > LongestText)
        return SiteReply::refused(400, {}, {{u"comment"_s, tooLongText()}});
    if (const auto fault = faultOf(json->value("body"_L1)))
        return SiteReply::refused(400, {}, {{u"comment"_s, u"INVALID_INPUT (%1)"_s.arg(*fault)}});
    const SiteComment &stored =
        site.comment(*issue, {.body = json->value("body"_L1).toObject(),
                              .isInternal = isInternal(json->value("properties"_L1))});
    return SiteReply::found(SiteJson::comment(site, *issue, stored, {}), 201);
}

RawAnswer SiteWrites::create(Site &site, const QByteArray &body)
{
    const auto json = objectIn(body, {u"fields"_s, u"update"_s, u"properties"_s});
    if (!json)
        return SiteReply::badBody();
    const QJsonObject fields = json->value("fields"_L1).toObject();
    QJsonObject settable = fields;
    settable.remove("project"_L1);
    settable.remove("issuetype"_L1);
    auto faults = faultsOfFields(site, settable);
    faults.insert(faultsOfDraft(site, fields));
    if (!faults.isEmpty())
        return SiteReply::refused(400, {}, faults);
    const SiteIssue &issue = site.add(newIssue(site, fields));
    return SiteReply::found(
        QJsonObject{{u"id"_s, issue.id},
                    {u"key"_s, issue.key},
                    {u"self"_s, site.address.toString() + u"/rest/api/3/issue/"_s + issue.id}},
        201);
}

RawAnswer SiteWrites::upload(Site &site, const SiteRoute &route, const RawRequest &request)
{
    SiteIssue *issue = site.issue(route.subject);
    if (request.header("X-Atlassian-Token") != "no-check")
        return RawAnswer::http(403, "XSRF check failed", {{"Content-Type", "text/plain"}});
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto files = filesOfForm(request.header("Content-Type"), request.body);
    if (!files)
        return SiteReply::refused(415, {});
    if (request.body.size() > site.largestUpload)
        return SiteReply::refused(413, {u"Le fichier dépasse la taille autorisée."_s});
    QJsonArray stored;
    for (const UploadedFile &file : *files)
        stored += SiteJson::attachment(site, site.attach(*issue, {.filename = file.filename,
                                                                  .mimeType = file.mimeType,
                                                                  .content = file.content}));
    return SiteReply::found(stored);
}

RawAnswer SiteWrites::deleteAttachment(Site &site, const SiteRoute &route)
{
    return site.removeAttachment(route.subject)
               ? SiteReply::done()
               : SiteReply::refused(404, {u"La pièce jointe n’existe pas."_s});
}
