#pragma once

#include "jira/JiraRequest.h"
#include "jira/wire/SearchResponseDTO.h"
#include "model/Issue.h"
#include "model/IssueScope.h"
#include "model/JiraError.h"
#include "model/dates/UserCalendar.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Whether a search includes the history of the issues, which is the largest part of a response.
enum class WithHistory { No, Yes };

/// A search for issues, whose results the site returns in pages.
struct IssueSearch
{
    QString jql;
    /// The maximum number of issues to fetch.
    qsizetype limit = 0;
    WithHistory history = WithHistory::No;

    bool operator==(const IssueSearch &) const = default;
};

/// The searches that produce the list of a scope.
struct ScopeSearch
{
    IssueSearch search;
    /// The search to run instead if the site rejects the first one (`isRejectedQuery`).
    std::optional<IssueSearch> fallback;

    bool operator==(const ScopeSearch &) const = default;
};

/// The steps of a search for a text that the user typed.
struct TextSearch
{
    /// Set if the text looks like an issue key. This issue is requested first; the search runs only if the issue cannot
    /// be fetched.
    std::optional<QString> key;
    IssueSearch search;

    bool operator==(const TextSearch &) const = default;
};

/// The fields that lists display. Descriptions and attachments are fetched only with a single issue.
const QStringList &listFields();

/// The search for a scope. `now` and `calendar` determine the period of a recap.
ScopeSearch searchFor(const IssueScope &scope, const QDateTime &now, const UserCalendar &calendar);
/// The search for a text; nothing for a blank text.
std::optional<TextSearch> searchFor(const QString &text);

/// True if the site rejected the query with status 400, for example because it does not know the field `sprint`.
bool isRejectedQuery(const JiraError &error);

/// The request for a page. `gathered` is the number of issues of the previous pages, `token` is the token in the last
/// of them.
JiraRequest pageRequest(const IssueSearch &search, qsizetype gathered,
                        const std::optional<QString> &token);
/// The token for the request of the next page, after a page that increased the list to `gathered` issues; nothing if
/// the search is complete.
std::optional<QString> nextPageToken(const IssueSearch &search, const SearchResponseDTO &page,
                                     qsizetype gathered);

/// The issues that have an event within the period, in the same order, each with only the events of the period.
QList<Issue> eventsWithin(QList<Issue> issues, const DateInterval &period);
