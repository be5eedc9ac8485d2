#pragma once

#include "simulator/SiteIssue.h"
#include "simulator/SiteProject.h"
#include "simulator/SiteUser.h"

#include <QHash>
#include <QTimeZone>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

/// The data of a simulated Jira site and the edits that it allows. Independent of HTTP.
class Site
{
public:
    /// The addresses of the site and of its files, which occur in its records.
    QUrl address;
    QUrl media;
    /// The accepted credentials: the e-mail with the token, or the personal token alone. Both belong to the same user.
    QString email;
    QString token;
    QString personalToken;
    QString me;
    QTimeZone zone = QTimeZone("Europe/Paris");
    std::function<QDateTime()> now;
    /// True if queries may contain sprints.
    bool knowsSprints = true;
    /// The maximum number of issues on a page of a search, and the maximum size of an upload in bytes.
    qsizetype largestPage = 100;
    qsizetype largestUpload = 20 << 20;
    /// Cloud has version 3 of the interface, Data Center has version 2 only.
    enum class Edition { Cloud, DataCenter } edition = Edition::Cloud;
    /// The number of requests that are still answered, and the wait that all others are told; absent for no limit.
    std::optional<int> requestsLeft;
    std::chrono::seconds retryAfter{30};
    /// Whether requests with wrong credentials get what anybody may see, as far as Jira documents this for an operation,
    /// and whether the response says so in its header. No issue and no project is public.
    enum class Anybody { Refused, AnsweredAndNamed, Answered } anybody = Anybody::Refused;
    /// The age of what a search finds, as that of a site whose search index lags behind its data.
    std::chrono::seconds searchLag{0};

    QList<SiteUser> users;
    QList<SitePriority> priorities;
    QList<SiteProject> projects;
    QList<SiteSprint> sprints;

    const QList<SiteIssue> &issues() const { return m_issues; }
    /// Found by its key, a former key or its id, ignoring case; null if there is none.
    SiteIssue *issue(const QString &keyOrId);
    const SiteIssue *issue(const QString &keyOrId) const;
    const SiteUser *user(const QString &accountId) const;
    /// Found by key or id; null if there is none.
    const SiteProject *project(const QString &keyOrId) const;
    const SiteProject &projectOf(const SiteIssue &issue) const;
    const SiteStatus &statusOf(const SiteIssue &issue) const;
    const SiteStatus *status(const SiteProject &project, const QString &id) const;
    const SiteIssueType *type(const SiteProject &project, const QString &id) const;
    const SitePriority *priority(const QString &id) const;
    const SiteSprint *sprint(const QString &id) const;
    QList<const SiteIssue *> subtasksOf(const SiteIssue &issue) const;
    /// The transitions that the workflow allows from the issue's current status.
    QList<SiteTransition> transitionsOf(const SiteIssue &issue) const;

    /// An identifier that is not in use yet.
    QString newId();
    /// The next free issue key of a project.
    QString newKey(const QString &projectKey);
    SiteIssue &add(SiteIssue issue);
    /// Moves an issue to another project, where it gets a new key. It is still found by its former keys.
    void move(SiteIssue &issue, const QString &projectKey);
    /// These edits are added to the history in the name of the signed-in user and update the date of the issue's last
    /// change.
    void perform(SiteIssue &issue, const SiteTransition &transition);
    void assign(SiteIssue &issue, const QString &accountId);
    void change(SiteIssue &issue, const QString &field, const QString &from, const QString &to);
    const SiteComment &comment(SiteIssue &issue, SiteComment comment);
    const SiteAttachment &attach(SiteIssue &issue, SiteAttachment attachment);
    /// Returns false if there is no such attachment.
    bool removeAttachment(const QString &id);
    const SiteAttachment *attachment(const QString &id) const;

private:
    QString nameOf(const QString &accountId) const;
    void record(SiteIssue &issue, SiteChange change);

    QList<SiteIssue> m_issues;
    QHash<QString, qsizetype> m_byKey;
    QHash<QString, qsizetype> m_byId;
    QHash<QString, int> m_lastNumbers;
    qint64 m_lastId = 100'000;
};
