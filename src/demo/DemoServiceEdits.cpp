#include "async/OffThread.h"
#include "async/WhileAlive.h"
#include "demo/DemoEdits.h"
#include "demo/DemoFiles.h"
#include "demo/DemoService.h"
#include "model/Failure.h"

QCoro::Task<> DemoService::perform(WorkflowTransition transition, QString key, std::stop_token stop)
{
    co_await pause(std::move(stop));
    DemoEdits::perform(m_site, transition, key, m_clock.now());
}

QCoro::Task<> DemoService::update(QString key, IssueFieldUpdate update, std::stop_token stop)
{
    co_await pause(std::move(stop));
    DemoEdits::update(m_site, key, update, m_clock.now());
}

QCoro::Task<> DemoService::assign(QString key, std::optional<JiraUser> user, std::stop_token stop)
{
    co_await pause(std::move(stop));
    DemoEdits::assign(m_site, key, user, m_clock.now());
}

QCoro::Task<Comment> DemoService::addComment(QString key, ADFNode body, bool isInternal,
                                             std::stop_token stop)
{
    co_await pause(std::move(stop));
    Comment comment;
    comment.id = m_sources.newID();
    comment.author = DemoSeed::me();
    comment.body = std::move(body);
    comment.created = m_clock.now();
    comment.isInternal = isInternal;
    DemoEdits::append(m_site, key, comment);
    co_return comment;
}

QCoro::Task<QString> DemoService::create(IssueDraft draft, std::stop_token stop)
{
    co_await pause(std::move(stop));
    co_return DemoEdits::create(m_site, draft, m_sources.newID(), m_clock.now());
}

QCoro::Task<QList<Attachment>> DemoService::uploadAttachments(QString key, QList<QUrl> files,
                                                              std::stop_token stop, UploadObserver)
{
    co_await pause(stop);
    QList<Attachment> uploaded;
    if (!files.isEmpty())
        uploaded = co_await stored(std::move(files));
    if (stop.stop_requested())
        throw Cancelled();
    DemoEdits::attach(m_site, key, uploaded, m_clock.now());
    co_return uploaded;
}

/// Copies the files on another thread, because they may be large.
QCoro::Task<QList<Attachment>> DemoService::stored(QList<QUrl> files)
{
    QStringList ids;
    for (qsizetype i = 0; i < files.size(); ++i)
        ids.append(m_sources.newID());
    auto copy = [files = std::move(files), ids, folder = m_sources.folder, now = m_clock.now()] {
        return DemoFiles::storeAll(files, folder, ids, DemoSeed::me(), now);
    };
    try {
        co_return co_await whileAlive(this, offThread(std::move(copy)));
    } catch (const OwnerGone &) {
        throw Cancelled();
    }
}

QCoro::Task<> DemoService::deleteAttachment(QString id, std::stop_token stop)
{
    co_await pause(std::move(stop));
    DemoEdits::detach(m_site, id);
}
