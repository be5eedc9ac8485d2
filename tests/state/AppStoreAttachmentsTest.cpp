#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const JiraError TooLarge(JiraError::Http{413, u"Fichier trop volumineux pour Jira."_s});
const auto Key = u"WEB-1"_s;

class AppStoreAttachmentsTest : public AppStoreFixture
{
protected:
    static QList<QUrl> files(int count)
    {
        QList<QUrl> result;
        for (int i = 1; i <= count; ++i)
            result += QUrl::fromLocalFile(u"/tmp/fichier"_s + QString::number(i));
        return result;
    }
    static Attachment attachment(const QString &id)
    {
        Attachment result;
        result.id = id;
        result.filename = id + u".png"_s;
        return result;
    }
    /// A session in which all copies of the issue have these attachments.
    void startWith(const QList<Attachment> &attachments)
    {
        startSession();
        Issue issue = sampleIssue(Key);
        issue.attachments = attachments;
        reloadWith({issue});
    }
    QStringList shownIds() const
    {
        QStringList ids;
        for (const auto &shown : (*store->issue(Key))->attachments)
            ids += shown.id;
        return ids;
    }
    int uploading() const { return store->uploading().value(Key); }
    Toast lastToast() const { return store->toasts().value(store->toasts().size() - 1); }
};

TEST_F(AppStoreAttachmentsTest, threeFilesCountUntilTheResponseAndTheToastSaysHowMany)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(3)));

    EXPECT_EQ(uploading(), 3);
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1) << "all in one request";
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), files(3));
    service->uploadAttachmentsCalls[0].finish(
        {attachment(u"a"_s), attachment(u"b"_s), attachment(u"c"_s)});

    EXPECT_EQ(uploading(), 0);
    EXPECT_EQ(result.value().size(), 3);
    EXPECT_EQ(shownIds(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(lastToast().message, u"3 fichiers joints à WEB-1"_s);
    EXPECT_EQ(lastToast().symbol, u"paperclip"_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Notice);
}

TEST_F(AppStoreAttachmentsTest, oneFileIsNamedByItsToastAndStandsBehindTheOthers)
{
    startWith({attachment(u"a"_s)});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    service->uploadAttachmentsCalls[0].finish({attachment(u"b"_s)});

    EXPECT_EQ(shownIds(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(lastToast().message, u"« b.png » joint à WEB-1"_s);
}

TEST_F(AppStoreAttachmentsTest, anAnswerWithoutAttachmentsStillSaysThatAFileWasAttached)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    service->uploadAttachmentsCalls[0].finish({});

    EXPECT_EQ(lastToast().message, u"« Fichier » joint à WEB-1"_s);
}

TEST_F(AppStoreAttachmentsTest, overlappingUploadsOfTwoAndOneFilesCountTwoThreeAndDownAgain)
{
    startWith({});
    const TaskResult<QList<Attachment>> two(store->uploadAttachments(Key, files(2)));
    EXPECT_EQ(uploading(), 2);
    const TaskResult<QList<Attachment>> one(store->uploadAttachments(Key, files(1)));
    EXPECT_EQ(uploading(), 3);

    service->uploadAttachmentsCalls[0].finish({attachment(u"a"_s), attachment(u"b"_s)});
    EXPECT_EQ(uploading(), 1);
    service->uploadAttachmentsCalls[1].finish({attachment(u"c"_s)});
    EXPECT_EQ(uploading(), 0);
    EXPECT_EQ(shownIds(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(AppStoreAttachmentsTest, uploadsOfSeveralIssuesCountApart)
{
    startWith({});
    const TaskResult<QList<Attachment>> first(store->uploadAttachments(Key, files(2)));
    const TaskResult<QList<Attachment>> second(store->uploadAttachments(u"WEB-2"_s, files(1)));

    EXPECT_EQ(uploading(), 2);
    EXPECT_EQ(store->uploading().value(u"WEB-2"_s), 1);
}

TEST_F(AppStoreAttachmentsTest, aRefusedUploadIsToldInAToastAndTheCounterComesDown)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(2)));
    service->uploadAttachmentsCalls[0].fail(TooLarge);

    EXPECT_EQ(uploading(), 0);
    EXPECT_TRUE(result.value().isEmpty());
    EXPECT_EQ(lastToast().message, u"Fichier trop volumineux pour Jira."_s);
    EXPECT_EQ(lastToast().symbol, u"exclamationmark.triangle.fill"_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
    EXPECT_TRUE(shownIds().isEmpty());
}

TEST_F(AppStoreAttachmentsTest, aCancelledUploadShowsNoToastAndTheCounterStillComesDown)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(2)));
    service->uploadAttachmentsCalls[0].cancel();

    EXPECT_EQ(uploading(), 0);
    EXPECT_TRUE(store->toasts().isEmpty());
    EXPECT_TRUE(result.value().isEmpty());
}

TEST_F(AppStoreAttachmentsTest, anUploadTellsHowMuchWasSent)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(2)));
    ASSERT_EQ(store->uploads().ofIssue(Key).size(), 1);
    EXPECT_EQ(store->uploads().ofIssue(Key)[0].fileNames,
              QStringList({u"fichier1"_s, u"fichier2"_s}));
    service->uploadObservers[0]({30, 120});
    EXPECT_EQ(store->uploads().ofIssue(Key)[0].fraction(), 0.25);
    service->uploadAttachmentsCalls[0].finish({attachment(u"a"_s), attachment(u"b"_s)});
    EXPECT_TRUE(store->uploads().ofIssue(Key).isEmpty());
}

TEST_F(AppStoreAttachmentsTest, anUploadThatTheUserCancelsEndsWithoutAWord)
{
    startWith({attachment(u"a"_s)});
    const TaskResult<QList<Attachment>> cancelled(store->uploadAttachments(Key, files(2)));
    const TaskResult<QList<Attachment>> other(store->uploadAttachments(Key, files(1)));
    store->uploads().cancel(store->uploads().ofIssue(Key)[0].id);

    EXPECT_TRUE(service->uploadAttachmentsCalls[0].wasStopped());
    EXPECT_FALSE(service->uploadAttachmentsCalls[1].wasStopped());
    EXPECT_TRUE(cancelled.isDone() && cancelled.value().isEmpty());
    EXPECT_FALSE(other.isDone());
    EXPECT_EQ(uploading(), 1);
    EXPECT_TRUE(store->toasts().isEmpty());
    EXPECT_EQ(shownIds(), QStringList{u"a"_s});
    EXPECT_EQ(store->writes().count(), 1);
}

TEST_F(AppStoreAttachmentsTest, afterACancelTheIssueIsReadAgainBecauseTheSiteMayHaveTheFiles)
{
    startWith({});
    spawn(store->loadDetails(Key));
    service->issueCalls[0].finish(sampleIssue(Key));
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    service->uploadObservers[0]({120, 120});
    store->uploads().cancel(store->uploads().ofIssue(Key)[0].id);

    ASSERT_EQ(service->issueCalls.count(), 2);
    EXPECT_EQ(service->issueCalls[1].argument(), Key);
    Issue issue = sampleIssue(Key);
    issue.attachments = {attachment(u"a"_s)};
    service->issueCalls[1].finish(issue);
    EXPECT_EQ(shownIds(), QStringList{u"a"_s});
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreAttachmentsTest, aFailedUploadDoesNotReadTheIssueAgain)
{
    startWith({});
    spawn(store->loadDetails(Key));
    service->issueCalls[0].finish(sampleIssue(Key));
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    service->uploadAttachmentsCalls[0].fail(TooLarge);
    EXPECT_EQ(service->issueCalls.count(), 1);
}

TEST_F(AppStoreAttachmentsTest, anUploadOfAnEndedSessionIsNeitherShownNorCancelled)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    const quint64 id = store->uploads().ofIssue(Key)[0].id;
    store->signOut();
    EXPECT_TRUE(store->uploads().ofIssue(Key).isEmpty());
    store->uploads().cancel(id);
    EXPECT_FALSE(service->uploadAttachmentsCalls[0].wasStopped());
    service->uploadAttachmentsCalls[0].finish({});
}

TEST_F(AppStoreAttachmentsTest, withoutFilesOrWithoutASessionNothingHappens)
{
    const TaskResult<QList<Attachment>> withoutSession(store->uploadAttachments(Key, files(1)));
    startWith({});
    const TaskResult<QList<Attachment>> withoutFiles(store->uploadAttachments(Key, {}));

    EXPECT_TRUE(withoutSession.value().isEmpty() && withoutFiles.value().isEmpty());
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
    EXPECT_TRUE(store->uploading().isEmpty());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreAttachmentsTest, anUploadIsNotCountedAfterItsSession)
{
    startWith({});
    const TaskResult<QList<Attachment>> result(store->uploadAttachments(Key, files(1)));
    EXPECT_EQ(uploading(), 1);
    store->signOut();
    EXPECT_EQ(uploading(), 0);
    service->uploadAttachmentsCalls[0].finish({attachment(u"a"_s)});

    EXPECT_EQ(uploading(), 0);
}

TEST_F(AppStoreAttachmentsTest, filesOnThePasteboardAreUploadedRatherThanAPicture)
{
    startWith({});
    desktop.files = files(2);
    desktop.image = QImage(4, 4, QImage::Format_RGB32);
    const TaskResult<void> done(store->uploadFromPasteboard(Key));

    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), files(2));
}

TEST_F(AppStoreAttachmentsTest, aPictureOnThePasteboardIsUploadedAsADatedCapture)
{
    startWith({});
    desktop.image = QImage(4, 3, QImage::Format_RGB32);
    desktop.image.fill(Qt::red);
    const TaskResult<void> done(store->uploadFromPasteboard(Key));
    ASSERT_TRUE(QTest::qWaitFor([&] { return service->uploadAttachmentsCalls.count() == 1; }));

    const QUrl file = service->uploadAttachmentsCalls[0].argument<1>().value(0);
    EXPECT_EQ(file.fileName(), u"Capture 2026-10-29 à 14.32.00.png"_s);
    static const QRegularExpression folderName(u"/Velmora-[0-9A-F-]{36}/[^/]*$"_s);
    EXPECT_TRUE(folderName.match(file.path()).hasMatch()) << file.path().toStdString();
    const QImage stored(file.toLocalFile(), "PNG");
    EXPECT_EQ(stored.size(), QSize(4, 3));
    EXPECT_EQ(stored.pixelColor(1, 1), QColor(Qt::red));
}

TEST_F(AppStoreAttachmentsTest, aCaptureIsReadableOnlyByTheUserAndGoesWithTheUpload)
{
    for (const bool isRefused : {false, true}) {
        startWith({});
        desktop.image = QImage(4, 3, QImage::Format_RGB32);
        const int before = service->uploadAttachmentsCalls.count();
        const TaskResult<void> done(store->uploadFromPasteboard(Key));
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return service->uploadAttachmentsCalls.count() > before; }));
        const QFileInfo file(
            service->uploadAttachmentsCalls.last().argument<1>().value(0).toLocalFile());
        using Permission = QFileDevice::Permission;
        constexpr QFileDevice::Permissions user = Permission::ReadOwner | Permission::WriteOwner |
                                                  Permission::ReadUser | Permission::WriteUser;
        EXPECT_EQ(file.permissions(), user);
        EXPECT_EQ(QFileInfo(file.path()).permissions(),
                  user | Permission::ExeOwner | Permission::ExeUser);
        if (isRefused)
            service->uploadAttachmentsCalls.last().fail(Failure(u"non"_s));
        else
            service->uploadAttachmentsCalls.last().finish({});
        ASSERT_TRUE(QTest::qWaitFor([&] { return done.isDone(); }));
        EXPECT_FALSE(QFileInfo::exists(file.path()));
    }
}

TEST_F(AppStoreAttachmentsTest, twoCapturesWithinOneSecondKeepTheirNames)
{
    startWith({});
    desktop.image = QImage(4, 3, QImage::Format_RGB32);
    const TaskResult<void> first(store->uploadFromPasteboard(Key));
    const TaskResult<void> second(store->uploadFromPasteboard(Key));
    ASSERT_TRUE(QTest::qWaitFor([&] { return service->uploadAttachmentsCalls.count() == 2; }));

    const QUrl one = service->uploadAttachmentsCalls[0].argument<1>().value(0);
    const QUrl other = service->uploadAttachmentsCalls[1].argument<1>().value(0);
    EXPECT_EQ(one.fileName(), other.fileName());
    EXPECT_NE(one, other);
}

TEST_F(AppStoreAttachmentsTest, aPasteboardWithTextOnlyHasNothingToAttach)
{
    startWith({});
    const TaskResult<void> done(store->uploadFromPasteboard(Key));
    ASSERT_TRUE(QTest::qWaitFor([&] { return done.isDone(); }));

    EXPECT_EQ(lastToast().message, u"Rien à joindre dans le presse-papiers"_s);
    EXPECT_EQ(lastToast().symbol, u"doc.on.clipboard"_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
}

TEST_F(AppStoreAttachmentsTest, aCaptureThatCannotBeWrittenIsToldInAToast)
{
    startWith({});
    desktop.image = QImage(4, 3, QImage::Format_RGB32);
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    const TaskResult<void> done(store->uploadFromPasteboard(Key));
    const bool isDone = QTest::qWaitFor([&] { return done.isDone(); });
    if (before.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", before);

    EXPECT_TRUE(isDone);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
    EXPECT_EQ(lastToast().symbol, u"exclamationmark.triangle.fill"_s);
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
}

TEST_F(AppStoreAttachmentsTest, aDownloadedFileIsGivenBack)
{
    startWith({});
    const TaskResult<std::optional<QUrl>> result(store->localFile(attachment(u"a"_s)));
    service->downloadCalls[0].finish(QUrl(u"file:///tmp/a.png"_s));

    EXPECT_EQ(result.value(), QUrl(u"file:///tmp/a.png"_s));
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreAttachmentsTest, aFailedDownloadIsToldInAToastAndACancelledOneIsNot)
{
    startWith({});
    const TaskResult<std::optional<QUrl>> cancelled(store->localFile(attachment(u"a"_s)));
    service->downloadCalls[0].cancel();
    EXPECT_EQ(cancelled.value(), std::nullopt);
    EXPECT_TRUE(store->toasts().isEmpty());

    const TaskResult<std::optional<QUrl>> refused(store->localFile(attachment(u"a"_s)));
    service->downloadCalls[1].fail(JiraError(JiraError::InvalidResponse{}));
    EXPECT_EQ(refused.value(), std::nullopt);
    EXPECT_EQ(lastToast().message, u"Réponse inattendue de Jira."_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
}

TEST_F(AppStoreAttachmentsTest, withoutASessionThereIsNoFile)
{
    const TaskResult<std::optional<QUrl>> result(store->localFile(attachment(u"a"_s)));

    EXPECT_EQ(result.value(), std::nullopt);
}

TEST_F(AppStoreAttachmentsTest, aDeletedAttachmentGoesAtOnce)
{
    startWith({attachment(u"a"_s), attachment(u"b"_s)});
    store->deleteAttachment(attachment(u"a"_s), Key);

    EXPECT_EQ(shownIds(), QStringList(u"b"_s));
    ASSERT_EQ(service->deleteAttachmentCalls.count(), 1);
    EXPECT_EQ(service->deleteAttachmentCalls[0].argument(), u"a"_s);
    service->deleteAttachmentCalls[0].finish();
    EXPECT_EQ(shownIds(), QStringList(u"b"_s));
}

TEST_F(AppStoreAttachmentsTest, aDeleteThatJiraRefusesPutsTheAttachmentBackAtTheEnd)
{
    startWith({attachment(u"a"_s), attachment(u"b"_s)});
    store->deleteAttachment(attachment(u"a"_s), Key);
    service->deleteAttachmentCalls[0].fail(JiraError(JiraError::Http{403, {}}));

    EXPECT_EQ(shownIds(), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(lastToast().message, u"Accès refusé par Jira (403)."_s);
}

TEST_F(AppStoreAttachmentsTest, anAttachmentThatIsBackAlreadyDoesNotComeBackTwice)
{
    startWith({attachment(u"a"_s)});
    store->deleteAttachment(attachment(u"a"_s), Key);
    Issue fresh = sampleIssue(Key);
    fresh.attachments = {attachment(u"a"_s)};
    reloadWith({fresh});
    service->deleteAttachmentCalls[0].fail(JiraError(JiraError::Http{500, {}}));

    EXPECT_EQ(shownIds(), QStringList(u"a"_s));
}

} // namespace
