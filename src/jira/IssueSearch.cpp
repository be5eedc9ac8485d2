#include "jira/IssueSearch.h"

#include "jira/Jql.h"
#include "richtext/ADFCoding.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// The number of issues requested per page.
constexpr qsizetype PageSize = 100;
constexpr qsizetype ListLimit = 300;
constexpr qsizetype RecentLimit = 50;
constexpr qsizetype ReportedLimit = 150;
constexpr qsizetype TeamRecapLimit = 400;
constexpr qsizetype TextLimit = 20;

struct SearchOfScope
{
    const QDateTime &now;
    const UserCalendar &calendar;

    ScopeSearch operator()(const IssueScope::MyIssues &) const
    {
        return {{Jql::myIssues(), ListLimit}, {}};
    }
    ScopeSearch operator()(const IssueScope::Recent &) const
    {
        return {{Jql::recent(), RecentLimit}, {}};
    }
    ScopeSearch operator()(const IssueScope::Reported &) const
    {
        return {{Jql::reported(), ReportedLimit}, {}};
    }
    ScopeSearch operator()(const IssueScope::InProject &project) const
    {
        ScopeSearch result{{Jql::project(project.key, project.view), ListLimit}, {}};
        if (project.view != ProjectView::All)
            result.fallback = {Jql::projectWithoutSprints(project.key, project.view), ListLimit};
        return result;
    }
    ScopeSearch operator()(const IssueScope::Activity &activity) const
    {
        const DateInterval period = activity.period.interval(now, calendar);
        if (activity.period.teamWide)
            return {{Jql::teamRecap(period, calendar.zone), TeamRecapLimit, WithHistory::Yes}, {}};
        return {{Jql::personalRecap(period, calendar.zone), ListLimit, WithHistory::Yes}, {}};
    }
};

bool looksLikeKey(const QString &text)
{
    static const QRegularExpression key(u"^[A-Za-z][A-Za-z0-9_]*-\\d+$"_s);
    return key.match(text).hasMatch();
}

} // namespace

const QStringList &listFields()
{
    static const QStringList fields = {u"summary"_s,  u"status"_s,  u"priority"_s,  u"assignee"_s,
                                       u"reporter"_s, u"labels"_s,  u"issuetype"_s, u"project"_s,
                                       u"created"_s,  u"updated"_s, u"duedate"_s,   u"parent"_s,
                                       u"subtasks"_s};
    return fields;
}

ScopeSearch searchFor(const IssueScope &scope, const QDateTime &now, const UserCalendar &calendar)
{
    return std::visit(SearchOfScope{now, calendar}, scope.value());
}

std::optional<TextSearch> searchFor(const QString &text)
{
    const QString words = text.trimmed();
    if (words.isEmpty())
        return std::nullopt;
    TextSearch result{.key = {}, .search = {Jql::textSearch(words), TextLimit}};
    if (looksLikeKey(words))
        result.key = words.toUpper();
    return result;
}

bool isRejectedQuery(const JiraError &error)
{
    const auto *http = std::get_if<JiraError::Http>(&error.value());
    return http && http->status == 400;
}

JiraRequest pageRequest(const IssueSearch &search, qsizetype gathered,
                        const std::optional<QString> &token)
{
    JSONValue::Array fields;
    for (const QString &field : listFields())
        fields.append(field);
    JSONValue::Object body{{u"jql"_s, search.jql},
                           {u"fields"_s, fields},
                           {u"maxResults"_s, double(std::min(PageSize, search.limit - gathered))}};
    if (search.history == WithHistory::Yes)
        body[u"expand"_s] = u"changelog"_s;
    if (token)
        body[u"nextPageToken"_s] = *token;
    return {.method = JiraRequest::Method::Post,
            .path = {u"rest"_s, u"api"_s, u"3"_s, u"search"_s, u"jql"_s},
            .query = {},
            .body = ADFCoding::encode(body)};
}

std::optional<QString> nextPageToken(const IssueSearch &search, const SearchResponseDTO &page,
                                     qsizetype gathered)
{
    const bool isOver = page.isLast.value_or(false) || page.issues.isEmpty();
    return isOver || gathered >= search.limit ? std::nullopt : page.nextPageToken;
}

QList<Issue> eventsWithin(QList<Issue> issues, const DateInterval &period)
{
    for (Issue &issue : issues) {
        issue.activity.removeIf(
            [&](const ActivityEvent &event) { return !period.contains(event.date); });
    }
    issues.removeIf([](const Issue &issue) { return issue.activity.isEmpty(); });
    return issues;
}
