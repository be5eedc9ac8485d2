#include "jira/ProjectPages.h"

#include "jira/SiteAnswers.h"
#include "jira/SiteRequests.h"
#include "jira/wire/Models.h"

namespace {

struct Page
{
    QList<Project> projects;
    std::optional<qsizetype> next;
};

QCoro::Task<Page> projectPage(SiteConnectionPtr connection, qsizetype startAt, qsizetype gathered,
                              std::stop_token stop)
{
    auto mapping = [startAt, gathered](const ProjectSearchDTO &page) {
        return Page{modelsOf(page.values),
                    SiteAnswers::nextProjects(page, startAt, gathered + page.values.size())};
    };
    return readMapped<ProjectSearchDTO>(std::move(connection), SiteRequests::projects(startAt),
                                        std::move(mapping), std::move(stop));
}

} // namespace

QCoro::Task<QList<Project>> allProjects(SiteConnectionPtr connection, std::stop_token stop)
{
    QList<Project> projects;
    std::optional<qsizetype> startAt = 0;
    while (startAt) {
        const Page page = co_await projectPage(connection, *startAt, projects.size(), stop);
        projects += page.projects;
        startAt = page.next;
    }
    co_return projects;
}
