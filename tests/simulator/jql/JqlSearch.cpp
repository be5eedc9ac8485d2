#include "simulator/jql/JqlSearch.h"

#include "simulator/SortedBy.h"
#include "simulator/jql/JqlMatching.h"
#include "simulator/jql/JqlParser.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList &knownFields()
{
    static const QStringList fields = {
        u"assignee"_s,   u"reporter"_s, u"status"_s, u"statuscategory"_s, u"created"_s,
        u"updated"_s,    u"issuekey"_s, u"key"_s,    u"project"_s,        u"sprint"_s,
        u"lastviewed"_s, u"text"_s,     u"labels"_s, u"priority"_s,       u"rank"_s,
    };
    return fields;
}

QList<JqlClause> clausesOf(const JqlTerm &term)
{
    if (term.kind == JqlTerm::Kind::Clause)
        return {term.clause};
    QList<JqlClause> all;
    for (const JqlTerm &part : term.parts)
        all += clausesOf(part);
    return all;
}

QString unknownField(const QString &field)
{
    return u"Le champ « %1 » n’existe pas ou vous n’êtes pas autorisé à le consulter."_s.arg(field);
}

/// True if the site, or a project that the query names, has no sprints.
bool isWithoutSprints(const Site &site, const QList<JqlClause> &clauses)
{
    return !site.knowsSprints || std::ranges::any_of(clauses, [&](const JqlClause &clause) {
        const SiteProject *project =
            clause.field == "project"_L1 ? site.project(clause.values.value(0)) : nullptr;
        return project && !project->hasSprints;
    });
}

std::optional<QString> refusal(const Site &site, const QList<JqlClause> &clauses)
{
    for (const JqlClause &clause : clauses) {
        if (!knownFields().contains(clause.field) ||
            (clause.field == "sprint"_L1 && isWithoutSprints(site, clauses)))
            return unknownField(clause.field);
        if (clause.field == "project"_L1 && !site.project(clause.values.value(0)))
            return u"La valeur « %1 » n’existe pas pour le champ « project »."_s.arg(
                clause.values.value(0));
    }
    return {};
}

/// The sort key of an issue; comparing keys gives the order of the texts or times.
QString sortKey(const SiteIssue &issue, const QString &field)
{
    const auto instant = [](const QDateTime &date) {
        return QString::number(date.toMSecsSinceEpoch()).rightJustified(16, u'0');
    };
    if (field == "updated"_L1)
        return instant(issue.updated);
    if (field == "created"_L1)
        return instant(issue.created);
    if (field == "lastviewed"_L1)
        return issue.viewed ? instant(*issue.viewed) : QString();
    return QString::number(issue.rank).rightJustified(10, u'0');
}

std::optional<QString> refusal(const QList<JqlOrder> &orders)
{
    for (const JqlOrder &order : orders) {
        if (!knownFields().contains(order.field))
            return unknownField(order.field);
    }
    return {};
}

} // namespace

std::expected<QList<const SiteIssue *>, QString> searchIssues(const Site &site, const QString &jql)
{
    const auto query = parseJql(jql);
    if (!query)
        return std::unexpected(query.error());
    if (!query->where)
        return std::unexpected(u"Les requêtes JQL sans restriction ne sont pas autorisées ici."_s);
    if (const auto refused = refusal(site, clausesOf(*query->where)))
        return std::unexpected(*refused);
    if (const auto refused = refusal(query->order))
        return std::unexpected(*refused);

    QList<const SiteIssue *> found;
    for (const SiteIssue &issue : site.issues()) {
        if (matches(site, issue, *query->where))
            found += &issue;
    }
    // The sort is stable and the first criterion is the most important, so it is applied last.
    for (qsizetype at = query->order.size(); at-- > 0;) {
        const JqlOrder &order = query->order[at];
        found = sortedBy(
            found, [&](const SiteIssue *issue) { return sortKey(*issue, order.field); },
            order.isDescending ? SortOrder::Descending : SortOrder::Ascending);
    }
    return found;
}
