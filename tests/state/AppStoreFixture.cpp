#include "state/AppStoreFixture.h"

#include "model/JiraError.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

AppStoreFixture::AppStoreFixture()
{
    makeStore();
}

QString AppStoreFixture::folderTemplate()
{
    const QFileInfo memory(u"/dev/shm"_s);
    return (memory.isWritable() ? memory.filePath() : QDir::tempPath()) + u"/velmora-XXXXXX"_s;
}

AppStoreFixture::~AppStoreFixture()
{
    store.reset();
    service->cancelPending();
    sessions.cancelPending();
}

void AppStoreFixture::makeStore()
{
    const UserCalendar calendar{QLocale(QLocale::French, QLocale::France),
                                QTimeZone("Europe/Paris")};
    const auto makeDemo = [this]() -> std::shared_ptr<IssueService> {
        ++demosMade;
        return service;
    };
    sessions.service = service;
    store = std::make_unique<AppStore>(
        AppStoreContext{clock, preferences, desktop, sessions, calendar, makeDemo});
}

void AppStoreFixture::startSession()
{
    answerEverything();
    const TaskResult<void> started(store->startDemo());
    ASSERT_TRUE(started.isDone());
    holdEverything();
}

void AppStoreFixture::answerEverything()
{
    service->currentUserCalls.answerWith(sampleUser(u"u1"_s, u"Noam Talvère"_s));
    service->projectsCalls.answerWith({});
    service->projectCalls.answerBy([](const QString &key) { return sampleProject(key); });
    service->statusesCalls.answerWith({});
    service->prioritiesCalls.answerWith({});
    service->assignableUsersCalls.answerWith({});
    service->issuesCalls.answerWith({});
    service->searchCalls.answerWith({});
    service->issueCalls.answerBy([](const QString &key) { return sampleIssue(key); });
    service->commentsCalls.answerWith({});
    service->transitionsCalls.answerWith({});
}

void AppStoreFixture::holdEverything()
{
    service->currentUserCalls.hold();
    service->projectsCalls.hold();
    service->projectCalls.hold();
    service->statusesCalls.hold();
    service->prioritiesCalls.hold();
    service->assignableUsersCalls.hold();
    service->issuesCalls.hold();
    service->searchCalls.hold();
    service->issueCalls.hold();
    service->commentsCalls.hold();
    service->transitionsCalls.hold();
}

void AppStoreFixture::reloadWith(const IssueList &issues)
{
    answerEverything();
    service->issuesCalls.answerWith(issues);
    const TaskResult<void> reloaded(store->reload());
    ASSERT_TRUE(reloaded.isDone());
    holdEverything();
}

Issue AppStoreFixture::sampleIssue(const QString &key, const QString &statusName)
{
    Issue issue;
    issue.id = u"id-"_s + key;
    issue.key = key;
    issue.summary = u"Résumé de "_s + key;
    issue.status = IssueStatus::guessed(statusName);
    issue.projectKey = key.section(u'-', 0, 0);
    issue.created = issue.updated = QDateTime({2026, 10, 1}, {9, 0}, QTimeZone::utc());
    return issue;
}

JiraUser AppStoreFixture::sampleUser(const QString &id, const QString &name)
{
    JiraUser user;
    user.id = id;
    user.name = name;
    return user;
}

Project AppStoreFixture::sampleProject(const QString &key)
{
    Project project;
    project.id = u"p-"_s + key;
    project.key = key;
    project.name = u"Projet "_s + key;
    return project;
}

QStringList AppStoreFixture::keys(const IssueList &issues)
{
    QStringList result;
    for (const auto &issue : issues)
        result += issue->key;
    return result;
}
