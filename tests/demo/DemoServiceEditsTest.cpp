#include "async/WorkThreads.h"
#include "demo/DemoSamples.h"
#include "model/Failure.h"
#include "support/RunUntil.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"MOB-109"_s;

class DemoServiceEdits : public DemoServiceFixture
{
protected:
    void settle(QCoro::Task<> task)
    {
        const TaskResult<void> result(std::move(task));
        m_clock.advance(latency);
        ASSERT_TRUE(result.isDone());
        result.value();
    }
    /// The index of the issue in the list of its project, which is sorted by last change.
    qsizetype place() { return list(IssueScope::project(u"MOB"_s, ProjectView::All)).indexOf(key); }
};

class DemoUploads : public testing::Test
{
protected:
    // The folder is removed after the last file was written.
    void TearDown() override { workThreads().waitForDone(); }

    QUrl write(const QString &name)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("contenu");
        return QUrl::fromLocalFile(file.fileName());
    }
    TaskResult<QList<Attachment>> upload(const QList<QUrl> &files)
    {
        TaskResult<QList<Attachment>> result(
            m_service->uploadAttachments(key, files, m_stop.get_token()));
        m_clock.advance(std::chrono::milliseconds(80));
        return result;
    }
    /// The same, until the upload has ended.
    TaskResult<QList<Attachment>> uploaded(const QList<QUrl> &files)
    {
        TaskResult<QList<Attachment>> result = upload(files);
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result;
    }
    Issue issue()
    {
        const TaskResult<Issue> result(m_service->issue(key));
        m_clock.advance(std::chrono::milliseconds(80));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }

    QTemporaryDir m_folder;
    QString m_caches = m_folder.filePath(u"caches"_s);
    ManualClock m_clock;
    ManualCalendar m_calendar;
    std::stop_source m_stop;
    std::unique_ptr<DemoService> m_service =
        std::make_unique<DemoService>(m_clock, m_calendar, steadySources(m_caches));
};

} // namespace

TEST_F(DemoServiceEdits, performMovesTheIssueToTheTop)
{
    EXPECT_EQ(place(), 13);
    const IssueStatus done = DemoSeed::statuses().at(4);
    settle(m_service.perform({u"t5"_s, done.name(), done}, key));
    EXPECT_EQ(place(), 0);
    EXPECT_EQ(settled(m_service.issue(key)).status, done);
}

TEST_F(DemoServiceEdits, updateMovesTheIssueToTheTop)
{
    settle(m_service.update(key, {IssueFieldUpdate::Summary{u"Autre titre"_s}}));
    EXPECT_EQ(place(), 0);
    EXPECT_EQ(settled(m_service.issue(key)).summary, u"Autre titre"_s);
}

TEST_F(DemoServiceEdits, assignMovesTheIssueToTheTop)
{
    settle(m_service.assign(key, DemoSeed::me()));
    EXPECT_EQ(place(), 0);
    EXPECT_EQ(list(IssueScope::myIssues()).first(), key);
}

TEST_F(DemoServiceEdits, addCommentDoesNotMoveTheIssue)
{
    settled(m_service.addComment(key, {.type = u"doc"_s, .version = 1}, false));
    EXPECT_EQ(place(), 13);
}

TEST_F(DemoServiceEdits, addCommentReturnsTheCommentAsStored)
{
    const ADFNode body{.type = u"doc"_s, .version = 1};
    const Comment comment = settled(m_service.addComment(u"SUP-42"_s, body, true));
    EXPECT_FALSE(comment.id.isEmpty());
    EXPECT_EQ(comment.author, DemoSeed::me());
    EXPECT_EQ(comment.body, body);
    EXPECT_EQ(comment.created, m_clock.now());
    EXPECT_TRUE(comment.isInternal);
    EXPECT_FALSE(comment.restrictedTo);
    const QList<Comment> thread = TaskResult(m_service.comments(u"SUP-42"_s)).value();
    EXPECT_EQ(thread.size(), 4);
    EXPECT_EQ(thread.last(), comment);
}

TEST_F(DemoServiceEdits, performOnAnUnknownKeySucceedsWhereUpdateFails)
{
    const IssueStatus done = DemoSeed::statuses().at(4);
    settle(m_service.perform({u"t5"_s, done.name(), done}, u"NOPE-1"_s));
    const TaskResult<void> result(
        m_service.update(u"NOPE-1"_s, {IssueFieldUpdate::Summary{u"X"_s}}));
    m_clock.advance(latency);
    EXPECT_EQ(httpFailure([&] { result.value(); }), (JiraError::Http{404, {}}));
}

TEST_F(DemoServiceEdits, assignAndCommentTolerateAnUnknownKey)
{
    settle(m_service.assign(u"NOPE-1"_s, std::nullopt));
    settled(m_service.addComment(u"NOPE-1"_s, {.type = u"doc"_s}, false));
    EXPECT_EQ(TaskResult(m_service.comments(u"NOPE-1"_s)).value().size(), 1);
}

TEST_F(DemoServiceEdits, createdIssueShowsInTheSprintAndNotInTheBacklog)
{
    IssueDraft draft;
    draft.projectKey = u"SUP"_s;
    draft.summary = u"Nouveau"_s;
    EXPECT_EQ(settled(m_service.create(draft)), u"SUP-45"_s);
    EXPECT_EQ(list(IssueScope::project(u"SUP"_s, ProjectView::Active)), words("SUP-45"));
    EXPECT_FALSE(list(IssueScope::project(u"SUP"_s, ProjectView::Backlog)).contains(u"SUP-45"_s));
    EXPECT_EQ(list(IssueScope::reported()).first(), u"SUP-45"_s);
}

TEST_F(DemoServiceEdits, todaysEditsShowInTheRecap)
{
    const IssueStatus done = DemoSeed::statuses().at(4);
    settle(m_service.perform({u"t5"_s, done.name(), done}, key));
    EXPECT_TRUE(list(IssueScope::activity({ActivityRange::Week, 0, false})).contains(key));
}

TEST_F(DemoUploads, filesAreCopiedAttachedAndDated)
{
    const QDateTime before = issue().updated;
    const QList<QUrl> files{write(u"a.txt"_s), write(u"b.png"_s)};
    const QList<Attachment> attached = uploaded(files).value();
    ASSERT_EQ(attached.size(), 2);
    EXPECT_EQ(attached[0].filename, u"a.txt"_s);
    EXPECT_EQ(attached[1].mimeType, u"image/png"_s);
    EXPECT_EQ(attached[0].author, DemoSeed::me());
    EXPECT_TRUE(attached[0].contentURL->toLocalFile().startsWith(m_caches + u'/'));
    EXPECT_EQ(issue().attachments, attached);
    EXPECT_GT(issue().updated, before);
}

TEST_F(DemoUploads, aFailingFileAttachesNothingThoughEarlierCopiesStay)
{
    const Issue before = issue();
    const auto result =
        uploaded({write(u"a.txt"_s), QUrl::fromLocalFile(m_folder.filePath(u"rien.txt"_s))});
    EXPECT_THROW(result.value(), Failure);
    EXPECT_EQ(issue().attachments, before.attachments);
    EXPECT_EQ(issue().updated, before.updated);
    bool isCopyThere = false;
    for (const QString &folder : QDir(m_caches).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        isCopyThere |= QFile::exists(m_caches + u'/' + folder + u"/a.txt"_s);
    EXPECT_TRUE(isCopyThere);
}

TEST_F(DemoUploads, aRemoteAddressIsNoFile)
{
    EXPECT_THROW(uploaded({QUrl(u"https://exemple.fr/a.txt"_s)}).value(), Failure);
    EXPECT_TRUE(QDir(m_caches).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(DemoUploads, deletedAttachmentIsGoneFromTheIssueAndStaysOnDisk)
{
    const QList<Attachment> attached = uploaded({write(u"a.txt"_s), write(u"b.txt"_s)}).value();
    const QDateTime dated = issue().updated;
    const TaskResult<void> result(m_service->deleteAttachment(attached[0].id));
    m_clock.advance(std::chrono::milliseconds(80));
    result.value();
    EXPECT_EQ(issue().attachments, QList{attached[1]});
    EXPECT_EQ(issue().updated, dated);
    EXPECT_TRUE(QFile::exists(attached[0].contentURL->toLocalFile()));
}

TEST_F(DemoUploads, anUploadedFileCanBeDownloaded)
{
    const Attachment attached = uploaded({write(u"a.txt"_s)}).value().first();
    EXPECT_EQ(TaskResult(m_service->download(attached)).value(), attached.contentURL);
}

TEST_F(DemoUploads, copyingDoesNotBlockTheUserInterface)
{
    const TaskResult<QList<Attachment>> result = upload({write(u"a.txt"_s)});
    // The wait is over, but the copies are made on another thread, whose result arrives through the event loop.
    EXPECT_FALSE(result.isDone());
    EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(result.value().size(), 1);
}

TEST_F(DemoUploads, anUploadThatIsStoppedWhileCopyingAttachesNothing)
{
    const TaskResult<QList<Attachment>> result = upload({write(u"a.txt"_s)});
    m_stop.request_stop();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_TRUE(issue().attachments.isEmpty());
}

TEST_F(DemoUploads, anUploadEndsWithItsService)
{
    const TaskResult<QList<Attachment>> result = upload({write(u"a.txt"_s)});
    m_service.reset();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
}
