#include "async/WorkThreads.h"
#include "demo/DemoFiles.h"
#include "demo/DemoSamples.h"
#include "support/RunUntil.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class DemoFirstRun : public testing::Test
{
protected:
    // The folder is removed after the last file was written.
    void TearDown() override { workThreads().waitForDone(); }

    QString pathOf(const QString &name) const { return m_caches + u'/' + name; }
    QByteArray contentOf(const QString &name) const
    {
        QFile file(pathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void replace(const QString &name, const QByteArray &content) const
    {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QList<Attachment> attachmentsOf(const QString &key)
    {
        DemoService service(m_clock, m_calendar, steadySources(m_caches));
        const TaskResult<Issue> result(service.issue(key));
        m_clock.advance(80ms);
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value().attachments;
    }

    QTemporaryDir m_folder;
    QString m_caches = m_folder.filePath(u"caches/Velmora/demo"_s);
    ManualClock m_clock;
    ManualCalendar m_calendar;
};

/// Occupies the only thread of the pool until it is released, so that no other work begins.
class BusyThreads
{
public:
    BusyThreads()
    {
        m_pool->setMaxThreadCount(1);
        m_pool->start([gate = m_gate] { gate->acquire(); });
    }
    ~BusyThreads()
    {
        release();
        m_pool->waitForDone();
        m_pool->setMaxThreadCount(m_threads);
    }
    BusyThreads(const BusyThreads &) = delete;
    BusyThreads &operator=(const BusyThreads &) = delete;

    void release() { m_gate->release(); }

private:
    QThreadPool *const m_pool = &workThreads();
    const int m_threads = m_pool->maxThreadCount();
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

const QStringList names{u"facture-septembre-erreur.png"_s, u"maquette-facture-v3.png"_s,
                        u"worker-facturation.log"_s};

} // namespace

TEST_F(DemoFirstRun, filesAreThereWhenAnIssueIsOpened)
{
    const QList<Attachment> attachments = attachmentsOf(u"SUP-41"_s);
    ASSERT_EQ(attachments.size(), 2);
    for (const Attachment &attachment : attachments) {
        const QFile file(attachment.contentURL->toLocalFile());
        EXPECT_TRUE(file.exists()) << qPrintable(attachment.filename);
        EXPECT_GT(attachment.size, 0);
        EXPECT_EQ(attachment.size, file.size());
    }
}

TEST_F(DemoFirstRun, attachmentsHaveTheirAuthorsAndKinds)
{
    const QList<Attachment> attachments = attachmentsOf(u"SUP-41"_s);
    ASSERT_EQ(attachments.size(), 2);
    EXPECT_EQ(attachments[0].filename, names[0]);
    EXPECT_EQ(attachments[0].author, DemoSeed::me());
    EXPECT_EQ(attachments[0].mimeType, u"image/png"_s);
    EXPECT_EQ(attachments[0].thumbnailURL, attachments[0].contentURL);
    EXPECT_EQ(attachments[1].filename, names[2]);
    EXPECT_EQ(attachments[1].author, DemoSeed::user(DemoSeed::Person::Elsa));
    EXPECT_FALSE(attachments[1].thumbnailURL);
}

TEST_F(DemoFirstRun, twoIssuesShareOneFile)
{
    const auto files = DemoFiles::seed(m_caches, testNow());
    const QList<Attachment> mockup = files[u"WEB-212"_s];
    EXPECT_EQ(files[u"WEB-201"_s], mockup);
    EXPECT_EQ(files.size(), 3);
    ASSERT_EQ(mockup.size(), 1);
    EXPECT_EQ(mockup[0].filename, names[1]);
    EXPECT_EQ(mockup[0].author, DemoSeed::user(DemoSeed::Person::Nora));
}

TEST_F(DemoFirstRun, attachmentsAreDatedByTheLengthsOfTheirNames)
{
    const auto files = DemoFiles::seed(m_caches, testNow());
    EXPECT_EQ(files[u"SUP-41"_s][0].created, testNow().addDuration(-28h));
    EXPECT_EQ(files[u"SUP-41"_s][1].created, testNow().addDuration(-22h));
}

TEST_F(DemoFirstRun, picturesHaveTheirAccents)
{
    DemoFiles::write(m_caches);
    EXPECT_EQ(QImage(pathOf(names[0])).pixelColor(600, 110).name(), u"#eb5252"_s);
    EXPECT_EQ(QImage(pathOf(names[1])).pixelColor(600, 110).name(), u"#5e6bd1"_s);
}

TEST_F(DemoFirstRun, theLogHasFiveLines)
{
    DemoFiles::write(m_caches);
    const QString log = QString::fromUtf8(contentOf(names[2]));
    EXPECT_EQ(log.count(u'\n'), 4);
    EXPECT_TRUE(log.startsWith(u"2026-10-25 08:14:02 INFO  invoice-worker  Génération PDF"_s));
    EXPECT_TRUE(log.endsWith(u"Abandon : facture marquée « à régénérer »"_s));
}

TEST_F(DemoFirstRun, aSecondStartKeepsThePicturesAndWritesTheLog)
{
    DemoFiles::write(m_caches);
    const QByteArray log = contentOf(names[2]);
    for (const QString &name : names)
        replace(name, "x");
    DemoFiles::write(m_caches);
    EXPECT_EQ(contentOf(names[0]), "x");
    EXPECT_EQ(contentOf(names[1]), "x");
    EXPECT_EQ(contentOf(names[2]), log);
}

TEST_F(DemoFirstRun, aSecondStartGivesTheSameIds)
{
    const QString id = attachmentsOf(u"SUP-41"_s).first().id;
    EXPECT_EQ(attachmentsOf(u"SUP-41"_s).first().id, id);
}

TEST_F(DemoFirstRun, withoutTheFolderThePicturesAreDrawnAgain)
{
    DemoFiles::write(m_caches);
    const QByteArray picture = contentOf(names[0]);
    ASSERT_TRUE(QDir(m_caches).removeRecursively());
    EXPECT_FALSE(DemoFiles::isComplete(m_caches));
    DemoFiles::write(m_caches);
    EXPECT_TRUE(DemoFiles::isComplete(m_caches));
    EXPECT_EQ(contentOf(names[0]), picture);
}

TEST_F(DemoFirstRun, aFolderThatCannotBeMadeIsNoFailure)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(u"."_s));
    QFile file(m_folder.filePath(u"caches"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QList<Attachment> attachments = attachmentsOf(u"SUP-41"_s);
    ASSERT_EQ(attachments.size(), 2);
    EXPECT_EQ(attachments[0].size, 0);
}

TEST_F(DemoFirstRun, anIssueWaitsUntilTheFilesAreWritten)
{
    BusyThreads busy;
    DemoService service(m_clock, m_calendar, steadySources(m_caches));
    const TaskResult<Issue> result(service.issue(u"SUP-41"_s));
    m_clock.advance(80ms);
    EXPECT_FALSE(result.isDone());
    busy.release();
    EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_GT(result.value().attachments.at(0).size, 0);
}

TEST_F(DemoFirstRun, anIssueThatWaitsForTheFilesEndsWithItsService)
{
    BusyThreads busy;
    auto service = std::make_unique<DemoService>(m_clock, m_calendar, steadySources(m_caches));
    const TaskResult<Issue> result(service->issue(u"SUP-41"_s));
    m_clock.advance(80ms);
    service.reset();
    busy.release();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
}

TEST_F(DemoFirstRun, aLaterRunDoesNotWait)
{
    DemoFiles::write(m_caches);
    BusyThreads busy;
    DemoService service(m_clock, m_calendar, steadySources(m_caches));
    const TaskResult<Issue> result(service.issue(u"SUP-41"_s));
    m_clock.advance(80ms);
    ASSERT_TRUE(result.isDone());
    EXPECT_GT(result.value().attachments.at(0).size, 0);
}
