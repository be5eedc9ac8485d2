#include "jira/SearchPages.h"

#include "jira/IssueSearch.h"
#include "jira/SiteAnswers.h"
#include "jira/SiteRequests.h"
#include "jira/wire/Models.h"

namespace {

/// What becomes of the issues of a page.
struct Reading
{
    QDateTime now;
    /// Only issues with an event in it are wanted, with those events.
    std::optional<DateInterval> period;
};

struct Page
{
    IssueList issues;
    /// How many issues the page brought, wanted or not.
    qsizetype size = 0;
    std::optional<QString> nextToken;
};

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

QCoro::Task<Page> searchPage(SiteConnectionPtr connection, IssueSearch search, qsizetype gathered,
                             std::optional<QString> token, Reading reading, std::stop_token stop)
{
    JiraRequest request = pageRequest(search, gathered, token);
    auto mapping = [search = std::move(search), gathered,
                    reading = std::move(reading)](const SearchResponseDTO &page) {
        const qsizetype size = page.issues.size();
        return Page{readIssues(page, reading), size, nextPageToken(search, page, gathered + size)};
    };
    return readMapped<SearchResponseDTO>(std::move(connection), std::move(request),
                                         std::move(mapping), std::move(stop));
}

QCoro::Task<IssueList> allPages(SiteConnectionPtr connection, IssueSearch search, Reading reading,
                                std::stop_token stop)
{
    IssueList issues;
    qsizetype gathered = 0;
    std::optional<QString> token;
    do {
        const Page page = co_await searchPage(connection, search, gathered, token, reading, stop);
        issues += page.issues;
        gathered += page.size;
        token = page.nextToken;
    } while (token);
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
    const ScopeSearch search = searchFor(scope, now, calendar);
    const Reading reading{now, periodOf(scope, now, calendar)};
    try {
        co_return co_await allPages(connection, search.search, reading, stop);
    } catch (const JiraError &error) {
        if (!search.fallback || !isRejectedQuery(error))
            throw;
    }
    co_return co_await allPages(connection, *search.fallback, reading, stop);
}

QCoro::Task<IssueList> textIssues(SiteConnectionPtr connection, QString text, QDateTime now,
                                  std::stop_token stop)
{
    const auto search = searchFor(text);
    if (!search)
        co_return IssueList();
    if (search->key) {
        try {
            Issue issue = co_await fullIssue(connection, *search->key, now, stop);
            co_return IssueList{Shared<Issue>(std::move(issue))};
        } catch (const Cancelled &) {
            throw;
        } catch (const Failure &) {
            // A text that only looks like a key.
        }
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
