#pragma once

#include "jira/JiraRequest.h"
#include "jira/wire/SearchResponseDTO.h"
#include "model/Issue.h"
#include "model/IssueScope.h"
#include "model/JiraError.h"
#include "model/UserCalendar.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Whether a search brings the issues' history, the heaviest part of an answer.
enum class WithHistory { No, Yes };

/// One search for issues, which the site answers in pages.
struct IssueSearch
{
    QString jql;
    /// How many issues are wanted at most.
    qsizetype limit = 0;
    WithHistory history = WithHistory::No;

    bool operator==(const IssueSearch &) const = default;
};

/// How a scope's list is found.
struct ScopeSearch
{
    IssueSearch search;
    /// What to search once more when the site rejects the first search (`isRejectedQuery`).
    std::optional<IssueSearch> fallback;

    bool operator==(const ScopeSearch &) const = default;
};

/// What to do for a text that someone typed to find issues.
struct TextSearch
{
    /// Set when the text looks like an issue's key: try that issue first, and search only if it cannot be had.
    std::optional<QString> key;
    IssueSearch search;

    bool operator==(const TextSearch &) const = default;
};

/// The fields that lists show; documents and attachments are left to the fetch of a single issue.
const QStringList &listFields();

/// The search behind a scope. `now` and `calendar` tell what period a recap covers.
ScopeSearch searchFor(const IssueScope &scope, const QDateTime &now, const UserCalendar &calendar);
/// The search for a text; nothing for a blank one.
std::optional<TextSearch> searchFor(const QString &text);

/// True for the answer of a site that does not know a field of the query, such as `sprint`: status 400.
bool isRejectedQuery(const JiraError &error);

/// The request for a page. `gathered` is how many issues the pages before brought, `token` what the last of them gave.
JiraRequest pageRequest(const IssueSearch &search, qsizetype gathered,
                        const std::optional<QString> &token);
/// What to ask the next page with, after a page that brought the list to `gathered` issues; nothing when the search is
/// over.
std::optional<QString> nextPageToken(const IssueSearch &search, const SearchResponseDTO &page,
                                     qsizetype gathered);

/// The issues that have an event within the period, in their order, each with only those events.
QList<Issue> eventsWithin(QList<Issue> issues, const DateInterval &period);
