#include "simulator/SiteReads.h"

#include "simulator/SiteJson.h"
#include "simulator/SiteReply.h"
#include "simulator/SortedBy.h"
#include "simulator/jql/JqlText.h"

using namespace Qt::StringLiterals;

namespace {

/// One page of JSON values in the format of the paged operations.
QJsonObject page(const QJsonArray &all, int startAt, int maxResults)
{
    QJsonArray values;
    for (qsizetype at = startAt; at < std::min<qsizetype>(all.size(), startAt + maxResults); ++at)
        values += all[at];
    return {{u"startAt"_s, startAt},
            {u"maxResults"_s, maxResults},
            {u"total"_s, all.size()},
            {u"isLast"_s, startAt + values.size() >= all.size()},
            {u"values"_s, values}};
}

RawAnswer paged(const QJsonArray &all, const SiteRoute &route)
{
    const int startAt = route.number(u"startAt"_s, 0, 1'000'000);
    return SiteReply::found(page(all, startAt, route.number(u"maxResults"_s, 50, 100)));
}

QJsonArray limited(const QJsonArray &all, int most)
{
    QJsonArray first;
    for (qsizetype at = 0; at < std::min<qsizetype>(all.size(), most); ++at)
        first += all[at];
    return first;
}

QJsonArray allPriorities(const Site &site)
{
    QJsonArray all;
    for (const SitePriority &priority : site.priorities)
        all += SiteJson::priority(site, priority);
    return all;
}

bool fits(const SiteUser &user, const QString &query)
{
    const QStringList names = foldedWords(user.displayName);
    const QStringList wanted = foldedWords(query);
    return user.email.startsWith(query, Qt::CaseInsensitive) ||
           (!wanted.isEmpty() && std::ranges::all_of(wanted, [&](const QString &word) {
               return std::ranges::any_of(
                   names, [&](const QString &name) { return name.startsWith(word); });
           }));
}

SiteJson::Wanted wantedBy(const SiteRoute &route)
{
    const QString fields = route.value(u"fields"_s);
    const QStringList expanded = route.value(u"expand"_s).split(u',');
    return {.fields = fields.isEmpty() ? QStringList{u"*all"_s} : fields.split(u','),
            .history = expanded.contains(u"changelog"_s),
            .html = expanded.contains(u"renderedFields"_s) || expanded.contains(u"renderedBody"_s)};
}

RawAnswer noSuchProject(const QString &key)
{
    return SiteReply::refused(404, {u"Aucun projet n’a été trouvé avec la clé « %1 »."_s.arg(key)});
}

} // namespace

RawAnswer SiteReads::myself(const Site &site)
{
    return SiteReply::found(SiteJson::user(site, site.me));
}

RawAnswer SiteReads::projects(const Site &site, const SiteRoute &route)
{
    const auto name = [](const SiteProject &project) { return project.name; };
    const bool isByName = route.value(u"orderBy"_s) == "name"_L1;
    QJsonArray all;
    for (const SiteProject &project : isByName ? sortedBy(site.projects, name) : site.projects)
        all += SiteJson::project(site, project);
    return paged(all, route);
}

RawAnswer SiteReads::project(const Site &site, const SiteRoute &route)
{
    const SiteProject *project = site.project(route.subject);
    return project ? SiteReply::found(SiteJson::detailedProject(site, *project))
                   : noSuchProject(route.subject);
}

RawAnswer SiteReads::statuses(const Site &site, const SiteRoute &route)
{
    const SiteProject *project = site.project(route.subject);
    if (!project)
        return noSuchProject(route.subject);
    QJsonArray statuses;
    for (const SiteStatus &status : project->statuses)
        statuses += SiteJson::status(site, status);
    QJsonArray types;
    for (const SiteIssueType &type : project->types) {
        QJsonObject json = SiteJson::type(site, type);
        json.insert(u"statuses"_s, statuses);
        types += json;
    }
    return SiteReply::found(types);
}

RawAnswer SiteReads::prioritySearch(const Site &site, const SiteRoute &route)
{
    return paged(allPriorities(site), route);
}

RawAnswer SiteReads::priorities(const Site &site)
{
    return SiteReply::found(allPriorities(site));
}

RawAnswer SiteReads::assignableUsers(const Site &site, const SiteRoute &route)
{
    const QString key = route.value(u"project"_s);
    if (!site.project(key))
        return noSuchProject(key);
    QJsonArray all;
    for (const SiteUser &user : site.users)
        all += SiteJson::user(site, user.accountId);
    return SiteReply::found(limited(all, route.number(u"maxResults"_s, 50, 1000)));
}

RawAnswer SiteReads::userSearch(const Site &site, const SiteRoute &route)
{
    const QString query = route.value(u"query"_s);
    if (query.isEmpty())
        return SiteReply::refused(400, {u"Le paramètre « query » est obligatoire."_s});
    QJsonArray all;
    for (const SiteUser &user : site.users) {
        if (fits(user, query))
            all += SiteJson::user(site, user.accountId);
    }
    return SiteReply::found(limited(all, route.number(u"maxResults"_s, 50, 1000)));
}

RawAnswer SiteReads::issue(const Site &site, const SiteRoute &route)
{
    const SiteIssue *issue = site.issue(route.subject);
    return issue ? SiteReply::found(SiteJson::issue(site, *issue, wantedBy(route)))
                 : SiteReply::noSuchIssue();
}

RawAnswer SiteReads::comments(const Site &site, const SiteRoute &route)
{
    const SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    const auto sorted =
        sortedBy(issue->comments, [](const SiteComment &comment) { return comment.created; });
    QJsonArray all;
    for (const SiteComment &comment : sorted)
        all += SiteJson::comment(site, *issue, comment, wantedBy(route));
    const int startAt = route.number(u"startAt"_s, 0, 1'000'000);
    QJsonObject json = page(all, startAt, route.number(u"maxResults"_s, 100, 5000));
    json.insert(u"comments"_s, json.take(u"values"_s));
    json.remove(u"isLast"_s);
    return SiteReply::found(json);
}

RawAnswer SiteReads::transitions(const Site &site, const SiteRoute &route)
{
    const SiteIssue *issue = site.issue(route.subject);
    if (!issue)
        return SiteReply::noSuchIssue();
    QJsonArray all;
    for (const SiteTransition &transition : site.transitionsOf(*issue))
        all += SiteJson::transition(site, site.projectOf(*issue), transition);
    return SiteReply::found(QJsonObject{{u"expand"_s, u"transitions"_s}, {u"transitions"_s, all}});
}

RawAnswer SiteReads::attachment(const Site &site, const SiteRoute &route)
{
    if (!site.attachment(route.subject))
        return SiteReply::refused(404, {u"La pièce jointe n’existe pas."_s});
    const QString place = site.media.toString() + u"/file/"_s + route.subject +
                          u"/binary?token="_s + u"m"_s + route.subject;
    return RawAnswer::redirect(place.toLatin1(), 303);
}
