#include "platform/files/StoredCopy.h"

#include "model/Failure.h"
#include "support/RunUntil.h"
#include "support/SmallDisk.h"
#include "support/TaskResult.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class StoredCopy : public testing::Test
{
protected:
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    QString written(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The text of the failure; empty after a success.
    static QString failureOf(const QString &from, const QString &to)
    {
        const TaskResult<void> result(
            storeCopy(QUrl::fromLocalFile(from), QUrl::fromLocalFile(to)));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        try {
            result.value();
        } catch (const Failure &failure) {
            return failure.message();
        }
        return {};
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
};

} // namespace

TEST_F(StoredCopy, ANewFileHasTheWholeContent)
{
    const QByteArray content(3'000'000, 'x');
    const QString from = written(u"source"_s, content);
    EXPECT_EQ(failureOf(from, path(u"copie"_s)), u""_s);
    EXPECT_EQ(contentOf(path(u"copie"_s)), content);
}

TEST_F(StoredCopy, AnExistingFileIsReplaced)
{
    const QString from = written(u"source"_s, "neuf");
    const QString to = written(u"copie"_s, "ancien et plus long");
    EXPECT_EQ(failureOf(from, to), u""_s);
    EXPECT_EQ(contentOf(to), "neuf");
}

TEST_F(StoredCopy, AnEmptyFileIsCopiedToo)
{
    const QString from = written(u"source"_s, "");
    const QString to = written(u"copie"_s, "ancien");
    EXPECT_EQ(failureOf(from, to), u""_s);
    EXPECT_EQ(contentOf(to), "");
}

TEST_F(StoredCopy, OnAFullDiskTheOldFileSurvivesAndNothingHalfWrittenIsLeft)
{
    const QString from = written(u"source"_s, QByteArray(200'000, 'x'));
    const QString to = written(u"copie"_s, "ancien");
    QString failure;
    {
        const SmallDisk disk(50'000);
        failure = failureOf(from, to);
    }
    EXPECT_EQ(failure, u"Impossible d'enregistrer « copie » : l'écriture a échoué."_s);
    EXPECT_EQ(contentOf(to), "ancien");
    EXPECT_EQ(files(), QStringList({u"copie"_s, u"source"_s}));
}

TEST_F(StoredCopy, AFolderWithoutPermissionIsTold)
{
    const QString from = written(u"source"_s, "x");
    EXPECT_EQ(
        failureOf(from, u"/proc/copie"_s),
        u"Impossible d'enregistrer « copie » : tu n'as pas le droit d'écrire dans ce dossier."_s);
}

TEST_F(StoredCopy, AMissingFolderIsTold)
{
    const QString from = written(u"source"_s, "x");
    EXPECT_EQ(failureOf(from, path(u"absent/copie"_s)),
              u"Impossible d'enregistrer « copie » : le dossier n'existe pas."_s);
}

TEST_F(StoredCopy, AFolderOfThatNameIsNeverReplaced)
{
    const QString from = written(u"source"_s, "x");
    QDir(folder.path()).mkdir(u"copie"_s);
    EXPECT_EQ(failureOf(from, path(u"copie"_s)),
              u"Impossible d'enregistrer « copie » : un dossier porte ce nom."_s);
    EXPECT_TRUE(QDir(path(u"copie"_s)).exists());
}

TEST_F(StoredCopy, ASourceThatHasVanishedIsToldAndTheOldFileSurvives)
{
    const QString to = written(u"copie"_s, "ancien");
    EXPECT_EQ(failureOf(path(u"absente"_s), to),
              u"Impossible d'enregistrer « copie » : le fichier téléchargé n'existe plus."_s);
    EXPECT_EQ(contentOf(to), "ancien");
}

TEST_F(StoredCopy, AFileSavedOverItselfKeepsItsContent)
{
    const QString from = written(u"source"_s, "contenu");
    EXPECT_EQ(failureOf(from, from), u""_s);
    EXPECT_EQ(contentOf(from), "contenu");
}

TEST_F(StoredCopy, APlaceThatIsNoLocalFileIsRefused)
{
    const QString from = written(u"source"_s, "x");
    const TaskResult<void> result(
        storeCopy(QUrl::fromLocalFile(from), QUrl(u"sftp://serveur/copie"_s)));
    EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Failure);
}
