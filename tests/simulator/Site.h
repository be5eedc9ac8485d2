#pragma once

#include "simulator/SiteIssue.h"
#include "simulator/SiteProject.h"
#include "simulator/SiteUser.h"

#include <QHash>
#include <QTimeZone>
#include <QUrl>

#include <functional>
#include <optional>

/// What a simulated Jira site holds, and the edits that it allows. Knows nothing of HTTP.
class Site
{
public:
    /// Where the site and its files are reached; the records that go out name these.
    QUrl address;
    QUrl media;
    /// Who may sign in: e-mail and token, or the personal token alone. Both are the same person.
    QString email;
    QString token;
    QString personalToken;
    QString me;
    QTimeZone zone = QTimeZone("Europe/Paris");
    std::function<QDateTime()> now;
    /// Whether queries may speak of sprints.
    bool knowsSprints = true;
    /// The most issues on a page of a search, and the largest upload that is taken, in bytes.
    qsizetype largestPage = 100;
    qsizetype largestUpload = 20 << 20;

    QList<SiteUser> users;
    QList<SitePriority> priorities;
    QList<SiteProject> projects;
    QList<SiteSprint> sprints;

    const QList<SiteIssue> &issues() const { return m_issues; }
    /// By key or id, whatever the case; none is null.
    SiteIssue *issue(const QString &keyOrId);
    const SiteIssue *issue(const QString &keyOrId) const;
    const SiteUser *user(const QString &accountId) const;
    /// By key or id.
    const SiteProject *project(const QString &keyOrId) const;
    const SiteProject &projectOf(const SiteIssue &issue) const;
    const SiteStatus &statusOf(const SiteIssue &issue) const;
    const SiteStatus *status(const SiteProject &project, const QString &id) const;
    const SiteIssueType *type(const SiteProject &project, const QString &id) const;
    const SitePriority *priority(const QString &id) const;
    const SiteSprint *sprint(const QString &id) const;
    QList<const SiteIssue *> subtasksOf(const SiteIssue &issue) const;
    /// What the workflow offers from the issue's present status.
    QList<SiteTransition> transitionsOf(const SiteIssue &issue) const;

    /// An identifier that nothing has yet.
    QString newId();
    /// The next key of a project.
    QString newKey(const QString &projectKey);
    SiteIssue &add(SiteIssue issue);
    /// The edits go into the history, in the name of the signed-in user, and count as a change of the issue.
    void perform(SiteIssue &issue, const SiteTransition &transition);
    void assign(SiteIssue &issue, const QString &accountId);
    void change(SiteIssue &issue, const QString &field, const QString &from, const QString &to);
    const SiteComment &comment(SiteIssue &issue, SiteComment comment);
    const SiteAttachment &attach(SiteIssue &issue, SiteAttachment attachment);
    /// False when there is no such attachment.
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
