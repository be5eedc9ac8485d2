#include "jira/SearchPages.h"

#include "async/Settled.h"
#include "http/TransportError.h"
#include "jira/IssueSearch.h"
#include "jira/SiteAnswers.h"
#include "jira/SiteRequests.h"
#include "jira/wire/Models.h"

#include <vector>

namespace {

constexpr int Unauthorized = 401;

/// The parameters of the mapping of a page.
struct Reading
{
    QDateTime now;
    /// If set, only issues with an event in this period are returned, each with only those events.
    std::optional<DateInterval> period;
};

using PagePtr = std::shared_ptr<const SearchResponseDTO>;

IssueList readIssues(const SearchResponseDTO &page, const Reading &reading)
{
    QList<Issue> issues = modelsOf(page.issues, reading.now);
    if (reading.period)
        issues = eventsWithin(std::move(issues), *reading.period);
    IssueList shared;
    shared.reserve(issues.size());
    for (Issue &issue : issues)
        shared.append(Shared<Issue>(std::move(issue)));
    return shared;
}

QCoro::Task<PagePtr> searchPage(SiteConnectionPtr connection, JiraRequest request,
                                std::stop_token stop)
{
    return readMapped<SearchResponseDTO>(
        std::move(connection), std::move(request),
        [](SearchResponseDTO page) {
            return PagePtr(std::make_shared<SearchResponseDTO>(std::move(page)));
        },
        std::move(stop));
}

QCoro::Task<IssueList> issuesOf(PagePtr page, Reading reading)
{
    return offThread([page = std::move(page), reading = std::move(reading)] {
        return readIssues(*page, reading);
    });
}

QCoro::Task<IssueList> allPages(SiteConnectionPtr connection, IssueSearch search, Reading reading,
                                std::stop_token stop)
{
    // Each page is mapped while the next one is fetched.
    std::vector<QCoro::Task<IssueList>> parts;
    qsizetype gathered = 0;
    std::optional<QString> token;
    do {
        PagePtr page = co_await searchPage(connection, pageRequest(search, gathered, token), stop);
        gathered += page->issues.size();
        token = nextPageToken(search, *page, gathered);
        parts.push_back(issuesOf(std::move(page), reading));
    } while (token);
    IssueList issues;
    for (const auto &part : parts)
        issues += co_await part;
    if (stop.stop_requested())
        throw Cancelled();
    co_return issues;
}

/// Not every site reports that it responded as to anybody, which gives an empty list. Fails if the site does not know
/// the account; any other failure says nothing about the list.
QCoro::Task<> assureAccount(SiteConnectionPtr connection, std::stop_token stop)
{
    try {
        co_await read(std::move(connection), SiteRequests::currentUser(), std::move(stop));
    } catch (const JiraError &error) {
        const auto *http = std::get_if<JiraError::Http>(&error.value());
        if (http && http->status == Unauthorized)
            throw;
    } catch (const TransportError &) {
        co_return;
    }
}

QCoro::Task<IssueList> believed(SiteConnectionPtr connection, IssueList issues,
                                std::stop_token stop)
{
    if (issues.isEmpty())
        co_await assureAccount(std::move(connection), std::move(stop));
    co_return issues;
}

std::optional<DateInterval> periodOf(const IssueScope &scope, const QDateTime &now,
                                     const UserCalendar &calendar)
{
    if (const auto *activity = std::get_if<IssueScope::Activity>(&scope.value()))
        return activity->period.interval(now, calendar);
    return std::nullopt;
}

} // namespace

QCoro::Task<IssueList> scopeIssues(SiteConnectionPtr connection, IssueScope scope, QDateTime now,
                                   UserCalendar calendar, std::stop_token stop)
{
    const ScopeSearch searches = searchFor(scope, now, calendar);
    const Reading reading{now, periodOf(scope, now, calendar)};
    try {
        IssueList issues = co_await allPages(connection, searches.search, reading, stop);
        co_return co_await believed(connection, std::move(issues), stop);
    } catch (const JiraError &error) {
        if (!searches.fallback || !isRejectedQuery(error))
            throw;
    }
    IssueList issues = co_await allPages(connection, *searches.fallback, reading, stop);
    co_return co_await believed(connection, std::move(issues), stop);
}

QCoro::Task<IssueList> textIssues(SiteConnectionPtr connection, QString text, QDateTime now,
                                  std::stop_token stop)
{
    const auto search = searchFor(text);
    if (!search)
        co_return IssueList();
    if (search->key) {
        const auto issue =
            co_await settled(nullptr, fullIssue(connection, *search->key, now, stop));
        if (issue)
            co_return IssueList{Shared<Issue>(*issue)};
        if (issue.error().isCancellation)
            throw Cancelled();
        // The issue could not be fetched, so the text may only look like a key.
    }
    const Reading reading{now, {}};
    co_return co_await allPages(connection, search->search, reading, stop);
}

QCoro::Task<Issue> fullIssue(SiteConnectionPtr connection, QString key, QDateTime now,
                             std::stop_token stop)
{
    return readMapped<IssueDTO>(
        std::move(connection), SiteRequests::issue(key),
        [now](const IssueDTO &issue) { return SiteAnswers::detailedIssue(issue, now); },
        std::move(stop));
}
