#include "jira/JiraClient.h"

#include "async/Settled.h"
#include "jira/AttachmentCache.h"
#include "jira/IssueSearch.h"
#include "jira/ProjectPages.h"
#include "jira/SearchPages.h"
#include "jira/SiteAnswers.h"
#include "jira/SiteRequests.h"
#include "jira/wire/Models.h"
#include "jira/wire/PriorityDTO.h"

// No operation uses the client after its first `co_await`, because the client may have been destroyed by then.

JiraClient::JiraClient(const JiraCredentials &credentials, Clock &clock,
                       const SystemCalendar &calendar, const QString &attachmentFolder)
    : m_credentials(credentials),
      m_clock(clock),
      m_calendar(calendar),
      m_attachmentFolder(AttachmentCache::siteFolder(attachmentFolder, credentials.site)),
      m_connection(std::make_shared<SiteConnection>(credentials, clock))
{
}

JiraClient::~JiraClient()
{
    m_connection->session.close();
}

QString JiraClient::siteName() const
{
    return m_credentials.siteName();
}

std::optional<qsizetype> JiraClient::listLimit(const IssueScope &scope) const
{
    return searchFor(scope, m_clock.now(), m_calendar.current()).search.limit;
}

std::optional<QUrl> JiraClient::browseURL(const QString &key) const
{
    return ::browseURL(m_credentials.site, key);
}

QCoro::Task<JiraUser> JiraClient::currentUser(std::stop_token stop)
{
    return readMapped<UserDTO>(
        m_connection, SiteRequests::currentUser(), [](const UserDTO &user) { return user.model(); },
        std::move(stop));
}

QCoro::Task<QList<Project>> JiraClient::projects(std::stop_token stop)
{
    return allProjects(m_connection, std::move(stop));
}

QCoro::Task<Project> JiraClient::project(QString key, std::stop_token stop)
{
    return readMapped<ProjectDTO>(
        m_connection, SiteRequests::project(key),
        [](const ProjectDTO &project) { return project.model(); }, std::move(stop));
}

QCoro::Task<QList<IssueStatus>> JiraClient::statuses(QString projectKey, std::stop_token stop)
{
    return readMapped<QList<IssueTypeStatusesDTO>>(m_connection, SiteRequests::statuses(projectKey),
                                                   &SiteAnswers::statuses, std::move(stop));
}

namespace {

QCoro::Task<QList<IssuePriority>> sitePriorities(SiteConnectionPtr connection, std::stop_token stop)
{
    const auto paged = co_await settled(
        nullptr, readMapped<PrioritySearchDTO>(
                     connection, SiteRequests::priorities(),
                     [](const PrioritySearchDTO &page) { return modelsOf(page.values); }, stop));
    if (paged)
        co_return *paged;
    if (paged.error().isCancellation)
        throw Cancelled();
    co_return co_await readMapped<QList<PriorityDTO>>(
        connection, SiteRequests::prioritiesOfOlderSites(),
        [](const QList<PriorityDTO> &list) { return modelsOf(list); }, stop);
}

} // namespace

QCoro::Task<QList<IssuePriority>> JiraClient::priorities(std::stop_token stop)
{
    return sitePriorities(m_connection, std::move(stop));
}

QCoro::Task<QList<JiraUser>> JiraClient::assignableUsers(QString projectKey, std::stop_token stop)
{
    return readMapped<QList<UserDTO>>(
        m_connection, SiteRequests::assignableUsers(projectKey),
        [locale = m_calendar.current().locale](const QList<UserDTO> &users) {
            return SiteAnswers::assignableUsers(users, locale);
        },
        std::move(stop));
}

QCoro::Task<QList<JiraUser>> JiraClient::searchUsers(QString query, std::stop_token stop)
{
    return readMapped<QList<UserDTO>>(m_connection, SiteRequests::searchUsers(query),
                                      &SiteAnswers::foundUsers, std::move(stop));
}

QCoro::Task<IssueList> JiraClient::issues(IssueScope scope, std::stop_token stop)
{
    return scopeIssues(m_connection, std::move(scope), m_clock.now(), m_calendar.current(),
                       std::move(stop));
}

QCoro::Task<IssueList> JiraClient::search(QString text, std::stop_token stop)
{
    return textIssues(m_connection, std::move(text), m_clock.now(), std::move(stop));
}
