#include "platform/bundles/ZipUnpacker.h"

#include "platform/bundles/TestArchive.h"
#include "platform/bundles/UpdateError.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder to unpack into, inside a folder that must not change.
class ZipUnpackerTest : public testing::Test
{
protected:
    ZipUnpackerTest()
    {
        writeFile(root.filePath(u"outside"_s), "untouched");
        QDir(root.path()).mkdir(u"work"_s);
    }

    /// The failure of unpacking these bytes; empty if there was none.
    std::string failureOf(const QByteArray &bytes, const ZipUnpacker::Limits &limits = {})
    {
        writeFile(root.filePath(u"work/update.zip"_s), bytes);
        try {
            ZipUnpacker::unpack(root.filePath(u"work/update.zip"_s), work(), limits);
        } catch (const UpdateError &error) {
            EXPECT_EQ(error.kind(), UpdateError::Kind::Tool);
            return error.message().toStdString();
        }
        return {};
    }
    std::string failureOf(const QList<TestEntry> &entries)
    {
        return failureOf(TestArchive::zip(entries));
    }

    QString work() const { return root.filePath(u"work"_s); }
    QString path(const QString &below) const { return work() + u'/' + below; }
    unsigned modeOf(const QString &below) const
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(path(below).toLocal8Bit().constData(), &status), 0);
        return status.st_mode & 07777;
    }
    /// Everything outside the working folder.
    QStringList outside() const
    {
        QStringList found;
        QDirIterator each(root.path(),
                          QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (each.hasNext())
            found.append(each.next());
        found.removeOne(work());
        return found;
    }

    QTemporaryDir root;
};

TEST_F(ZipUnpackerTest, UnpacksFilesAndFolders)
{
    EXPECT_EQ(failureOf({{"a/", {}, 040700, {}},
                         {"a/b c/d", "content", 0100600, {}},
                         {"run", "x", 0100700, {}}}),
              "");
    EXPECT_EQ(readFile(path(u"a/b c/d"_s)), "content");
    EXPECT_EQ(modeOf(u"a"_s), 0755U);
    EXPECT_EQ(modeOf(u"a/b c"_s), 0755U);
    EXPECT_EQ(modeOf(u"a/b c/d"_s), 0644U);
    EXPECT_EQ(modeOf(u"run"_s), 0755U);
}

TEST_F(ZipUnpackerTest, AFolderMayBeNamedTwice)
{
    EXPECT_EQ(failureOf({{"a/", {}, 040755, {}}, {"a/", {}, 040755, {}}, {"a/b", "", 0100644, {}}}),
              "");
}

TEST_F(ZipUnpackerTest, StopsAtTheFirstRefusal)
{
    EXPECT_NE(failureOf({{"first", "1"}, {"../second", "2"}, {"third", "3"}}), "");
    EXPECT_EQ(readFile(path(u"first"_s)), "1");
    EXPECT_FALSE(QFile::exists(path(u"third"_s)));
}

TEST_F(ZipUnpackerTest, MoreEntriesThanPermittedAreRefused)
{
    QList<TestEntry> entries;
    for (int i = 0; i < 11; ++i)
        entries.append(TestEntry{QByteArray::number(i), "x"});
    EXPECT_EQ(failureOf(TestArchive::zip(entries), {.entries = 10}),
              "L'archive est refusée : elle contient trop de fichiers.");
    EXPECT_TRUE(QFile::exists(path(u"9"_s)));
    EXPECT_FALSE(QFile::exists(path(u"10"_s)));
}

TEST_F(ZipUnpackerTest, AsManyEntriesAsPermittedAreUnpacked)
{
    EXPECT_EQ(failureOf(TestArchive::zip({{"a", "x"}, {"b", "x"}}), {.entries = 2}), "");
}

TEST_F(ZipUnpackerTest, AFileLargerThanPermittedIsRefused)
{
    EXPECT_EQ(failureOf(TestArchive::zip({{"big", QByteArray(101, 'x')}}), {.fileSize = 100}),
              "L'archive est refusée : elle contient trop de données (« big »).");
    EXPECT_FALSE(QFile::exists(path(u"big"_s)));
}

TEST_F(ZipUnpackerTest, AllFilesTogetherAreLimited)
{
    const QByteArray half(50, 'x');
    EXPECT_EQ(
        failureOf(TestArchive::zip({{"a", half}, {"b", half}, {"c", "x"}}), {.wholeSize = 100}),
        "L'archive est refusée : elle contient trop de données (« c »).");
    EXPECT_EQ(readFile(path(u"b"_s)), half);
}

TEST_F(ZipUnpackerTest, ASmallArchiveThatBecomesHugeIsRefused)
{
    const QByteArray archive =
        TestArchive::inFormat("zip", {{"bomb", QByteArray(900'000, '\0'), 0100644, {}}});
    ASSERT_LT(archive.size(), 10'000);
    EXPECT_EQ(failureOf(archive, {.fileSize = 100'000}),
              "L'archive est refusée : elle contient trop de données (« bomb »).");
}

TEST_F(ZipUnpackerTest, ASizeThatIsToldTooSmallIsFound)
{
    QByteArray archive = TestArchive::zip({{"liar", QByteArray(5000, 'x')}});
    // The sizes of the uncompressed file, in both headers.
    const QByteArray size = QByteArray::fromHex("88130000");
    const QByteArray small = QByteArray::fromHex("01000000");
    archive.replace(archive.indexOf(size) + 4, 4, small);
    archive.replace(archive.lastIndexOf(size), 4, small);
    EXPECT_NE(failureOf(archive, {.fileSize = 100}), "");
}

TEST_F(ZipUnpackerTest, OnlyZipIsRead)
{
    for (const char *format : {"gnutar", "cpio", "7zip"})
        EXPECT_EQ(failureOf(TestArchive::inFormat(format, {{"a", "x", 0100644, {}}})),
                  "L'archive est illisible.")
            << format;
}

TEST_F(ZipUnpackerTest, WhatIsNoArchiveIsUnreadable)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("not an archive"), QByteArray(100'000, '\0')})
        EXPECT_EQ(failureOf(bytes), "L'archive est illisible.");
}

TEST_F(ZipUnpackerTest, ATruncatedArchiveIsUnreadable)
{
    const QByteArray archive = TestArchive::zip({{"a", QByteArray(1000, 'x')}});
    EXPECT_EQ(failureOf(archive.first(archive.size() - 30)), "L'archive est illisible.");
    EXPECT_EQ(failureOf(archive.first(500)), "L'archive est illisible.");
}

TEST_F(ZipUnpackerTest, AChangedByteIsFound)
{
    QByteArray archive = TestArchive::zip({{"a", QByteArray(1000, 'x')}});
    archive[500] = 'y';
    EXPECT_EQ(failureOf(archive), "L'archive est illisible.");
}

TEST_F(ZipUnpackerTest, AnEncryptedArchiveIsRefused)
{
    QByteArray archive = TestArchive::zip({{"a", QByteArray(100, 'x')}});
    archive[6] = 1;
    archive[archive.indexOf("PK\x01\x02") + 8] = 1;
    EXPECT_EQ(failureOf(archive), "L'archive est refusée : elle est chiffrée.");
}

TEST_F(ZipUnpackerTest, APipeBecomesAnOrdinaryFile)
{
    // libarchive reads it so, because old programs have written archives with pipes by mistake.
    EXPECT_EQ(failureOf({{"pipe", "content", 0010644, {}}}), "");
    EXPECT_TRUE(QFileInfo(path(u"pipe"_s)).isFile());
    EXPECT_EQ(readFile(path(u"pipe"_s)), "content");
}

TEST_F(ZipUnpackerTest, TheArchiveItselfIsNotOverwritten)
{
    const QByteArray archive = TestArchive::zip({{"update.zip", "new"}});
    EXPECT_EQ(failureOf(archive),
              "L'archive est refusée : elle contient deux fois le même nom (« update.zip »).");
    EXPECT_EQ(readFile(path(u"update.zip"_s)), archive);
}

TEST_F(ZipUnpackerTest, AFolderThatCannotBeWrittenIsTold)
{
    writeFile(root.filePath(u"update.zip"_s), TestArchive::zip({{"a", "x"}}));
    try {
        ZipUnpacker::unpack(root.filePath(u"update.zip"_s), root.filePath(u"missing"_s), {});
        FAIL();
    } catch (const UpdateError &error) {
        EXPECT_EQ(error.message().toStdString(),
                  "Impossible d'écrire « a » : No such file or directory.");
    }
}

struct Hostile
{
    const char *name;
    QList<TestEntry> entries;
    const char *reason;
};

constexpr auto Absolute = "un chemin absolu";
constexpr auto LeadsOut = "un chemin qui sort du dossier";
constexpr auto Invalid = "un nom de fichier non valide";
constexpr auto Link = "un lien";
constexpr auto Special = "un fichier spécial";
constexpr auto Rights = "un fichier aux droits spéciaux";
constexpr auto Twice = "deux fois le même nom";

class HostileArchiveTest : public ZipUnpackerTest, public testing::WithParamInterface<Hostile>
{
};

TEST_P(HostileArchiveTest, IsRefusedAndWritesNothingOutside)
{
    const QStringList before = outside();
    const std::string failure = failureOf(GetParam().entries);
    EXPECT_TRUE(failure.starts_with(std::string("L'archive est refusée : elle contient ") +
                                    GetParam().reason))
        << failure;
    EXPECT_EQ(outside(), before);
    EXPECT_EQ(readFile(root.filePath(u"outside"_s)), "untouched");
    EXPECT_FALSE(QFile::exists(u"/tmp/velmora-escaped"_s));
}

INSTANTIATE_TEST_SUITE_P(
    Archives, HostileArchiveTest,
    testing::Values(
        Hostile{"AbsolutePath", {{"/tmp/velmora-escaped", "x"}}, Absolute},
        Hostile{"AbsolutePathWithTwoSlashes", {{"//tmp/velmora-escaped", "x"}}, Absolute},
        Hostile{"AbsoluteFolder", {{"/tmp/velmora-escaped/", {}, 040755, {}}}, Absolute},
        Hostile{"TheRootItself", {{"/", {}, 040755, {}}}, Absolute},
        Hostile{"AboveTheFolder", {{"../outside", "x"}}, LeadsOut},
        Hostile{"AboveTheFolderFromInside", {{"a/../../outside", "x"}}, LeadsOut},
        Hostile{"OutAndInAgain", {{"a/../b", "x"}}, LeadsOut},
        Hostile{"AtTheEnd", {{"a/..", "x"}}, LeadsOut},
        Hostile{"FolderAbove", {{"../new/", {}, 040755, {}}}, LeadsOut},
        Hostile{"OnlyTwoDots", {{"..", {}, 040755, {}}}, LeadsOut},
        Hostile{"BackslashesOfWindows", {{"..\\outside", "x"}}, LeadsOut},
        Hostile{"OneDot", {{"./a", "x"}}, Invalid},
        Hostile{"DoubleSlashInside", {{"a//b", "x"}}, Invalid},
        Hostile{"EmptyName", {{"", "x"}}, Invalid}, Hostile{"LineBreak", {{"a\nb", "x"}}, Invalid},
        Hostile{"ControlCharacter", {{"a\x1b[2Jb", "x"}}, Invalid},
        Hostile{"BytesThatAreNoText", {{"a\xff\xfe", "x"}}, Invalid},
        Hostile{"LettersThatLookAlike", {{"bin/\xd1\x96nstall", "x"}}, Invalid},
        Hostile{"VeryLongName", {{QByteArray(300, 'n'), "x"}}, Invalid},
        Hostile{"VeryDeepFolder", {{QByteArray("a/").repeated(600) + "b", "x"}}, Invalid},
        Hostile{"LinkOutByAbsolutePath", {{"link", {}, 0120777, "/etc"}}, Link},
        Hostile{"LinkOutByRelativePath", {{"a/link", {}, 0120777, "../../.."}}, Link},
        Hostile{"LinkInside", {{"a", "x"}, {"link", {}, 0120777, "a"}}, Link},
        Hostile{"FileThroughALink", {{"link", {}, 0120777, ".."}, {"link/outside", "x"}}, Link},
        Hostile{"CharacterDevice", {{"null", {}, 0020666, {}}}, Special},
        Hostile{"BlockDevice", {{"disk", {}, 0060660, {}}}, Special},
        Hostile{"Socket", {{"socket", {}, 0140777, {}}}, Special},
        Hostile{"SetUserId", {{"su", "x", 0104755, {}}}, Rights},
        Hostile{"SetGroupId", {{"sg", "x", 0102755, {}}}, Rights},
        Hostile{"StickyFolder", {{"t/", {}, 041777, {}}}, Rights},
        Hostile{"TheSameFileTwice", {{"a", "good"}, {"a", "bad"}}, Twice},
        Hostile{"AFileInPlaceOfAFolder", {{"a", "x"}, {"a/b", "y"}}, Twice},
        Hostile{"AFolderInPlaceOfAFile", {{"a/b", "y"}, {"a", "x"}}, Twice}),
    [](const auto &info) { return std::string(info.param.name); });

} // namespace
