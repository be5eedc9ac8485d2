#pragma once

#include "demo/DemoSite.h"
#include "demo/DemoSources.h"
#include "model/IssueService.h"
#include "platform/Clock.h"
#include "platform/SystemCalendar.h"

#include <QFuture>
#include <QObject>

/// A back end in memory: fictitious data behind `IssueService`, without network and account. The user's changes are
/// lost when the object is destroyed.
///
/// UI thread only. Most operations first wait 80 to 220 ms, like a server. After the wait, each operation runs without
/// interruption, so only one operation at a time accesses the data. A requested stop during the wait, or the
/// destruction of the object, makes the operation fail with `Cancelled` and changes nothing. The only other failures
/// are: an unknown project, an unknown issue in `issue` and `update` (`JiraError` 404), an attachment without a local
/// file (`JiraError::InvalidResponse`), and a file that cannot be copied.
class DemoService final : public QObject, public IssueService
{
    Q_OBJECT

public:
    /// Starts with the seed data as of the current time, and writes the files of its attachments on another thread. The
    /// pictures are drawn once per machine. The clock and the calendar must outlive the service.
    DemoService(Clock &clock, const SystemCalendar &calendar,
                DemoSources sources = DemoSources::system());

    /// A fictitious host name.
    QString siteName() const override;
    QCoro::Task<JiraUser> currentUser(std::stop_token stop = {}) override;
    QCoro::Task<QList<Project>> projects(std::stop_token stop = {}) override;
    QCoro::Task<Project> project(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<IssueStatus>> statuses(QString projectKey,
                                             std::stop_token stop = {}) override;
    QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop = {}) override;
    QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey,
                                                 std::stop_token stop = {}) override;
    QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop = {}) override;
    QCoro::Task<IssueList> search(QString text, std::stop_token stop = {}) override;
    /// The only operation that changes what `IssueScope::recent` lists. When the demo runs for the first time on a
    /// machine, it ends after the files of the attachments have been written.
    QCoro::Task<Issue> issue(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<Comment>> comments(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<WorkflowTransition>> transitions(QString key,
                                                       std::stop_token stop = {}) override;
    QCoro::Task<> perform(WorkflowTransition transition, QString key,
                          std::stop_token stop = {}) override;
    QCoro::Task<> update(QString key, IssueFieldUpdate update, std::stop_token stop = {}) override;
    QCoro::Task<> assign(QString key, std::optional<JiraUser> user,
                         std::stop_token stop = {}) override;
    QCoro::Task<Comment> addComment(QString key, ADFNode body, bool isInternal,
                                    std::stop_token stop = {}) override;
    QCoro::Task<QString> create(IssueDraft draft, std::stop_token stop = {}) override;
    /// Also finds the service project's customer, who is not assignable.
    QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {}) override;
    /// Copies the files one after the other, on another thread. If one fails, or if a stop was requested meanwhile,
    /// nothing is attached, but the copies made before stay on disk.
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                     std::stop_token stop = {},
                                                     UploadObserver observer = {}) override;
    QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop = {}) override;
    QCoro::Task<> deleteAttachment(QString id, std::stop_token stop = {}) override;
    std::optional<QUrl> browseURL(const QString &key) const override;

private:
    QCoro::Task<> pause(std::stop_token stop);
    QCoro::Task<> filesWritten();
    QCoro::Task<QList<Attachment>> stored(QList<QUrl> files);

    Clock &m_clock;
    const SystemCalendar &m_calendar;
    DemoSources m_sources;
    DemoSite m_site;
    /// Finishes when the files of the seed are on disk.
    QFuture<void> m_files;
    /// True until the sizes of the seed's files are known.
    bool m_areSizesMissing;
};
