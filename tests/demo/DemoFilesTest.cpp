#include "demo/DemoFiles.h"

#include "demo/DemoSamples.h"
#include "model/Failure.h"
#include "model/TextFolding.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class DemoFilesTest : public testing::Test
{
protected:
    QUrl write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return QUrl::fromLocalFile(file.fileName());
    }
    Attachment attachmentOf(const QUrl &file)
    {
        return DemoFiles::attachment(file, DemoSeed::me(), testNow());
    }
    QString caches() const { return m_folder.filePath(u"caches/Velmora/demo"_s); }

    QTemporaryDir m_folder;
};

QByteArray contentOf(const QUrl &file)
{
    QFile stored(file.toLocalFile());
    return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray("unreadable");
}

QString messageOf(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const Failure &failure) {
        return failure.message();
    }
    return u"no failure"_s;
}

} // namespace

TEST_F(DemoFilesTest, storeCopiesIntoANewFolderUnderTheSameName)
{
    const QUrl source = write(u"reçu de mars.txt"_s, "bonjour");
    const QUrl copy = DemoFiles::store(source, caches(), u"id-1"_s);
    EXPECT_EQ(copy.toLocalFile(), caches() + u"/id-1/reçu de mars.txt"_s);
    EXPECT_EQ(contentOf(copy), "bonjour");
    EXPECT_EQ(contentOf(source), "bonjour");
}

TEST_F(DemoFilesTest, twoFilesOfOneNameGetTwoFoldersAndTwoIds)
{
    const QUrl source = write(u"a.txt"_s, "bonjour");
    const QUrl first = DemoFiles::store(source, caches(), u"id-1"_s);
    const QUrl second = DemoFiles::store(source, caches(), u"id-2"_s);
    EXPECT_NE(first, second);
    EXPECT_NE(attachmentOf(first).id, attachmentOf(second).id);
    EXPECT_EQ(attachmentOf(first).filename, attachmentOf(second).filename);
}

TEST_F(DemoFilesTest, storeOfAMissingFileFails)
{
    const QUrl missing = QUrl::fromLocalFile(m_folder.filePath(u"rien.txt"_s));
    EXPECT_EQ(messageOf([&] { DemoFiles::store(missing, caches(), u"id"_s); }),
              u"Impossible de copier « rien.txt » : il n'existe pas."_s);
}

TEST_F(DemoFilesTest, storeOfAFolderFails)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"dossier"_s));
    const QUrl folder = QUrl::fromLocalFile(m_folder.filePath(u"dossier"_s));
    EXPECT_EQ(messageOf([&] { DemoFiles::store(folder, caches(), u"id"_s); }),
              u"Impossible de copier « dossier » : ce n'est pas un fichier."_s);
}

TEST_F(DemoFilesTest, storeFailsWhereNoFolderCanBeMade)
{
    const QUrl source = write(u"a.txt"_s, "bonjour");
    const QString fileInTheWay = source.toLocalFile();
    EXPECT_EQ(messageOf([&] { DemoFiles::store(source, fileInTheWay, u"id"_s); }),
              u"Impossible de copier « a.txt » : l'écriture a échoué."_s);
}

TEST_F(DemoFilesTest, attachmentOfAPictureHasAThumbnail)
{
    const QUrl file = write(u"photo.PNG"_s, "12345");
    const Attachment attachment = attachmentOf(file);
    EXPECT_EQ(attachment.mimeType, u"image/png"_s);
    EXPECT_EQ(attachment.thumbnailURL, file);
    EXPECT_EQ(attachment.contentURL, file);
    EXPECT_EQ(attachment.size, 5);
    EXPECT_EQ(attachment.author, DemoSeed::me());
}

TEST_F(DemoFilesTest, attachmentOfADocumentHasNoThumbnail)
{
    const Attachment attachment = attachmentOf(write(u"a.pdf"_s, "x"));
    EXPECT_EQ(attachment.mimeType, u"application/pdf"_s);
    EXPECT_FALSE(attachment.thumbnailURL);
}

TEST_F(DemoFilesTest, attachmentOfAnUnknownOrMissingExtensionIsBytes)
{
    for (const QString &name : words("a.inconnue Makefile a.")) {
        const Attachment attachment = attachmentOf(write(name, "all: x"));
        EXPECT_EQ(attachment.mimeType, u"application/octet-stream"_s) << qPrintable(name);
        EXPECT_FALSE(attachment.thumbnailURL);
    }
}

TEST_F(DemoFilesTest, attachmentLiesAsManyHoursBackAsItsNameHasCharacters)
{
    EXPECT_EQ(attachmentOf(write(u"worker-facturation.log"_s, "x")).created,
              testNow().addDuration(-22h));
    EXPECT_EQ(attachmentOf(write(u"facture-septembre-erreur.png"_s, "x")).created,
              testNow().addDuration(-28h));
    // One user-perceived character, in any encoding.
    EXPECT_EQ(attachmentOf(write(u"e\u0301🙂.txt"_s, "x")).created, testNow().addDuration(-6h));
}

TEST_F(DemoFilesTest, attachmentIdDependsOnThePathAlone)
{
    const QUrl file = write(u"a.txt"_s, "x");
    const Attachment attachment = attachmentOf(file);
    EXPECT_EQ(attachment.id, QString::number(stableHash(file.toLocalFile())) + u"a.txt"_s);
    const Attachment later = DemoFiles::attachment(file, std::nullopt, testNow().addDays(3));
    EXPECT_EQ(later.id, attachment.id);
}

TEST_F(DemoFilesTest, attachmentOfAMissingFileHasNoSize)
{
    EXPECT_EQ(attachmentOf(QUrl::fromLocalFile(m_folder.filePath(u"rien.txt"_s))).size, 0);
}
