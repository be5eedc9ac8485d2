#include "simulator/jql/JqlMatching.h"

#include "simulator/jql/JqlDates.h"
#include "simulator/jql/JqlHistory.h"
#include "simulator/jql/JqlText.h"

using namespace Qt::StringLiterals;

namespace {

using Operator = JqlClause::Operator;

bool isAbsent(const QString &value)
{
    return value.compare("EMPTY"_L1, Qt::CaseInsensitive) == 0 ||
           value.compare("null"_L1, Qt::CaseInsensitive) == 0;
}

/// The account that a value in a query denotes.
QString account(const Site &site, const QString &value)
{
    return value == "currentUser()"_L1 ? site.me : value;
}

/// The key of a category, from its key or one of its names.
QString categoryKey(const QString &name)
{
    static const QHash<QString, QString> keys = {
        {u"to do"_s, u"new"_s},
        {u"new"_s, u"new"_s},
        {u"in progress"_s, u"indeterminate"_s},
        {u"indeterminate"_s, u"indeterminate"_s},
        {u"done"_s, u"done"_s},
    };
    return keys.value(name.toLower());
}

bool isInOpenSprint(const Site &site, const SiteIssue &issue)
{
    const SiteSprint *sprint = site.sprint(issue.sprintId);
    return sprint && sprint->state == SiteSprint::State::Open;
}

bool isEqual(const Site &site, const SiteIssue &issue, const QString &field, const QString &value)
{
    const auto same = [&](const QString &text) {
        return text.compare(value, Qt::CaseInsensitive) == 0;
    };
    if (field == "assignee"_L1)
        return !issue.assignee.isEmpty() && issue.assignee == account(site, value);
    if (field == "reporter"_L1)
        return issue.reporter == account(site, value);
    if (field == "statuscategory"_L1)
        return site.statusOf(issue).category == categoryKey(value);
    if (field == "status"_L1)
        return same(site.statusOf(issue).name) || same(issue.statusId);
    if (field == "project"_L1)
        return same(issue.projectKey);
    if (field == "priority"_L1)
        return same(issue.priorityId);
    if (field == "labels"_L1)
        return issue.labels.contains(value);
    return same(issue.key) || same(issue.id);
}

bool isIn(const Site &site, const SiteIssue &issue, const JqlClause &clause)
{
    return std::ranges::any_of(clause.values, [&](const QString &value) {
        if (value == "issueHistory()"_L1)
            return issue.viewed.has_value();
        if (value == "openSprints()"_L1)
            return isInOpenSprint(site, issue);
        return isEqual(site, issue, clause.field, value);
    });
}

bool hasValue(const SiteIssue &issue, const QString &field)
{
    if (field == "sprint"_L1)
        return !issue.sprintId.isEmpty();
    if (field == "assignee"_L1)
        return !issue.assignee.isEmpty();
    if (field == "labels"_L1)
        return !issue.labels.isEmpty();
    return true;
}

bool comparesByDate(const Site &site, const SiteIssue &issue, const JqlClause &clause)
{
    const auto bound = jqlInstant(site, clause.values.value(0));
    const QDateTime date = clause.field == "created"_L1 ? issue.created : issue.updated;
    if (!bound)
        return false;
    switch (clause.op) {
    case Operator::Less:
        return date < *bound;
    case Operator::LessOrEqual:
        return date <= *bound;
    case Operator::Greater:
        return date > *bound;
    default:
        return date >= *bound;
    }
}

bool matches(const Site &site, const SiteIssue &issue, const JqlClause &clause)
{
    const QString value = clause.values.value(0);
    switch (clause.op) {
    case Operator::Equal:
        return isEqual(site, issue, clause.field, value);
    case Operator::NotEqual:
        // As on the real site, an issue without a value satisfies neither = nor !=.
        return hasValue(issue, clause.field) && !isEqual(site, issue, clause.field, value);
    case Operator::In:
        return isIn(site, issue, clause);
    case Operator::NotIn:
        return hasValue(issue, clause.field) && !isIn(site, issue, clause);
    case Operator::Is:
        return isAbsent(value) && !hasValue(issue, clause.field);
    case Operator::IsNot:
        return isAbsent(value) && hasValue(issue, clause.field);
    case Operator::Contains:
        return containsWords(issue, value);
    case Operator::Changed:
        return hasChanged(site, issue, clause);
    case Operator::Was:
        return hasBeen(site, issue, clause, account(site, value));
    case Operator::Less:
    case Operator::LessOrEqual:
    case Operator::Greater:
    case Operator::GreaterOrEqual:
        return comparesByDate(site, issue, clause);
    }
    Q_UNREACHABLE();
}

} // namespace

bool matches(const Site &site, const SiteIssue &issue, const JqlTerm &term)
{
    const auto fulfils = [&](const JqlTerm &part) { return matches(site, issue, part); };
    switch (term.kind) {
    case JqlTerm::Kind::Clause:
        return matches(site, issue, term.clause);
    case JqlTerm::Kind::And:
        return std::ranges::all_of(term.parts, fulfils);
    case JqlTerm::Kind::Or:
        return std::ranges::any_of(term.parts, fulfils);
    case JqlTerm::Kind::Not:
        return !fulfils(term.parts.first());
    }
    Q_UNREACHABLE();
}
