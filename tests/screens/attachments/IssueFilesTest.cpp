#include "screens/attachments/section/IssueFiles.h"

#include "model/JiraError.h"
#include "screens/attachments/FakeFileTools.h"
#include "screens/attachments/Samples.h"
#include "screens/attachments/media/CommentStripFiles.h"
#include "screens/attachments/media/MediaFiles.h"
#include "screens/attachments/section/FileImport.h"
#include "state/AppStoreFixture.h"
#include "support/RunUntil.h"

#include <QSignalSpy>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

namespace {

const auto Key = u"WEB-1"_s;
const QUrl Local = QUrl::fromLocalFile(u"/tmp/a.log"_s);
const QUrl OtherLocal = QUrl::fromLocalFile(u"/tmp/b.log"_s);

class IssueFilesTest : public AppStoreFixture
{
protected:
    IssueFiles files;

    IssueFilesTest()
    {
        startSession();
        show({file(u"1"_s, u"a.log"_s), picture(u"2"_s, u"b.png"_s)});
        files.setStore(store.get());
        files.setKey(Key);
    }

    void show(const QList<Attachment> &attachments)
    {
        Issue issue = sampleIssue(Key);
        issue.attachments = attachments;
        reloadWith({issue});
    }
    int uploads()
    {
        return int(std::ranges::count_if(files.tiles()->rows(),
                                         [](const FileTileRow &row) { return !row.file; }));
    }
    Toast lastToast() const { return store->toasts().value(store->toasts().size() - 1); }
};

} // namespace

TEST_F(IssueFilesTest, TheTilesAreTheFilesInTheirOrder)
{
    EXPECT_EQ(files.count(), 2);
    ASSERT_EQ(files.tileCount(), 2);
    EXPECT_EQ(files.tiles()->rows().at(0).file->name(), u"a.log"_s);
    EXPECT_EQ(files.tiles()->rows().at(1).file->name(), u"b.png"_s);
    EXPECT_EQ(files.dropText(), u"Déposer pour joindre à WEB-1"_s);
}

TEST_F(IssueFilesTest, TwoUploadsAtOnceShowAsManyTilesAsFiles)
{
    files.upload({Local, OtherLocal});
    files.upload({Local});
    EXPECT_EQ(uploads(), 3);
    EXPECT_EQ(files.tileCount(), 5);
    service->uploadAttachmentsCalls[0].finish({file(u"3"_s, u"c"_s), file(u"4"_s, u"d"_s)});
    EXPECT_EQ(uploads(), 1);
    EXPECT_EQ(files.count(), 4);
    service->uploadAttachmentsCalls[1].fail(JiraError(JiraError::Http{413, u"Trop gros"_s}));
    EXPECT_EQ(uploads(), 0);
}

TEST_F(IssueFilesTest, AnUploadKeepsTheTilesOfTheFiles)
{
    const QSignalSpy removed(files.tiles(), &FileTileModel::rowsRemoved);
    files.upload({Local});
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(files.tiles()->data(files.tiles()->index(2), FileTileModel::IsUploadRole).toBool());
}

TEST_F(IssueFilesTest, TheProgressOfAnUploadChangesItsTilesOnly)
{
    files.upload({Local, OtherLocal});
    const QSignalSpy changed(&files, &IssueFiles::changed);
    const QSignalSpy tiles(files.tiles(), &FileTileModel::dataChanged);
    service->uploadObservers[0]({1, 2});
    EXPECT_TRUE(changed.isEmpty());
    ASSERT_EQ(tiles.size(), 1);
    EXPECT_EQ(tiles[0][0].toModelIndex().row(), 2);
    EXPECT_EQ(tiles[0][1].toModelIndex().row(), 3);
    EXPECT_EQ(files.tiles()->rows().at(3).upload->fraction(), 0.5);
}

TEST_F(IssueFilesTest, AnUploadThatEndsLeavesTheTilesOfTheOthers)
{
    files.upload({Local, OtherLocal});
    files.upload({Local});
    const QSignalSpy removed(files.tiles(), &FileTileModel::rowsRemoved);
    files.cancel(*files.tiles()->rows().at(2).upload);
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 2);
    EXPECT_EQ(removed[0][2].toInt(), 3);
    EXPECT_EQ(uploads(), 1);
}

TEST_F(IssueFilesTest, TheUploadsOfAnotherIssueAreNotShown)
{
    files.uploadTo(u"WEB-2"_s, {Local});
    EXPECT_EQ(uploads(), 0);
    files.setKey(u"WEB-2"_s);
    EXPECT_EQ(uploads(), 1);
}

TEST_F(IssueFilesTest, AddressesThatAreNoLocalFilesAreNotUploaded)
{
    files.upload({QUrl(u"https://exemple.fr/a"_s)});
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
    files.upload({QUrl(u"https://exemple.fr/a"_s), Local});
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), QList<QUrl>{Local});
}

TEST_F(IssueFilesTest, ADeletedFileLeavesAtOnceAndARefusalBringsItBack)
{
    files.remove({files.attachments().at(0)});
    EXPECT_EQ(files.count(), 1);
    ASSERT_EQ(service->deleteAttachmentCalls.count(), 1);
    service->deleteAttachmentCalls[0].fail(JiraError(JiraError::Http{403, u"Non"_s}));
    EXPECT_EQ(files.count(), 2);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
}

TEST_F(IssueFilesTest, PastingWithAnEmptyClipboardGivesTheErrorToastAndUploadsNothing)
{
    files.paste();
    ASSERT_TRUE(runUntil([&] { return !store->toasts().isEmpty(); }));
    EXPECT_EQ(lastToast().message, u"Rien à joindre dans le presse-papiers"_s);
    EXPECT_EQ(lastToast().kind, ToastKind::Error);
    EXPECT_EQ(service->uploadAttachmentsCalls.count(), 0);
}

TEST_F(IssueFilesTest, PastedFilesAreUploaded)
{
    desktop.files = {Local, OtherLocal};
    files.paste();
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<1>(), desktop.files);
}

TEST_F(IssueFilesTest, ADialogThatIsCancelledChoosesNothing)
{
    const FakeFileTools fakes;
    FileImport choice;
    choice.setProperty("key", Key);
    choice.setTools(fakes.tools());
    const QSignalSpy chosen(&choice, &FileImport::chosen);
    choice.choose();
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_FALSE(choice.isImporting());
    fakes.dialogs->files = {Local, OtherLocal};
    choice.choose();
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0].toString(), Key);
    EXPECT_EQ(chosen[0][1].value<QList<QUrl>>(), fakes.dialogs->files);
}

TEST_F(IssueFilesTest, FilesAreForTheIssueForWhichTheDialogWasOpened)
{
    const FakeFileTools fakes;
    fakes.dialogs->isOpen = true;
    fakes.dialogs->files = {Local};
    FileImport choice;
    choice.setProperty("key", Key);
    choice.setTools(fakes.tools());
    const QSignalSpy chosen(&choice, &FileImport::chosen);
    choice.choose();
    EXPECT_TRUE(choice.isImporting());
    choice.choose();
    EXPECT_EQ(fakes.dialogs->titles.size(), 1) << "it is open already";
    choice.setProperty("key", u"WEB-2"_s);
    fakes.dialogs->answer();
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0].toString(), Key);
    EXPECT_FALSE(choice.isImporting());
}

TEST_F(IssueFilesTest, FilesCanBeUploadedToAnIssueThatIsNotShownAnyMore)
{
    files.setKey(u"WEB-2"_s);
    files.uploadTo(Key, {Local});
    ASSERT_EQ(service->uploadAttachmentsCalls.count(), 1);
    EXPECT_EQ(service->uploadAttachmentsCalls[0].argument<0>(), Key);
    EXPECT_EQ(uploads(), 0);
    files.setKey(Key);
    EXPECT_EQ(uploads(), 1);
}

TEST_F(IssueFilesTest, AFileOfAnotherIssueIsNotDeleted)
{
    const AttachmentFile old{files.attachments().at(0)};
    files.setKey(u"WEB-2"_s);
    files.remove(old);
    EXPECT_EQ(service->deleteAttachmentCalls.count(), 0);
}

TEST_F(IssueFilesTest, ACommentListsTheFilesThatItRefersTo)
{
    CommentStripFiles strip;
    strip.setStore(store.get());
    strip.setKey(Key);
    strip.setCommentID(u"c"_s);
    EXPECT_TRUE(strip.files().isEmpty());

    Comment comment;
    comment.id = u"c"_s;
    comment.attachmentIDs = {u"2"_s, u"404"_s};
    const TaskResult<void> loading(store->loadDetails(Key));
    Issue issue = sampleIssue(Key);
    issue.attachments = files.attachments();
    service->issueCalls.last().finish(issue);
    service->commentsCalls.last().finish({comment});
    ASSERT_EQ(strip.files().size(), 1);
    EXPECT_EQ(strip.files().constFirst().name(), u"b.png"_s);
}

TEST_F(IssueFilesTest, ANodeShowsItsAttachmentsAndPlacesForUnknownOnes)
{
    MediaFiles media;
    media.setFiles(files.files());
    const ADFNode group{.type = u"mediaGroup"_s,
                        .content = QList<ADFNode>{mediaWithID(u"2"_s), mediaWithAlt(u"absent"_s)}};
    media.setNode(QVariant::fromValue(group));
    ASSERT_EQ(media.items().size(), 2);
    EXPECT_EQ(media.items().at(0).file.name(), u"b.png"_s);
    EXPECT_FALSE(media.items().at(1).isFound);
}

TEST_F(IssueFilesTest, AnAttachmentThatArrivesLaterIsShownInItsPlace)
{
    MediaFiles media;
    media.setNode(QVariant::fromValue(mediaWithAlt(u"c.png"_s)));
    ASSERT_FALSE(media.items().at(0).isFound);
    media.setFiles({{picture(u"3"_s, u"c.png"_s)}});
    EXPECT_TRUE(media.items().at(0).isFound);
}
