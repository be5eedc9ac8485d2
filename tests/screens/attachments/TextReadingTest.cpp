#include "screens/attachments/preview/TextReading.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class TextReading : public testing::Test
{
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"fichier.log"_s);

    TextExtract extractOf(const QByteArray &content, const TextLimits &limits = {}) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        file.close();
        return readText(path, limits);
    }
};

} // namespace

TEST_F(TextReading, LinesEndWithAnyOfTheUsualMarks)
{
    EXPECT_EQ(extractOf("un\ndeux\r\n\ntrois").lines,
              QStringList({u"un"_s, u"deux"_s, u""_s, u"trois"_s}));
    EXPECT_EQ(extractOf("un\n").lines, QStringList({u"un"_s}));
    EXPECT_EQ(extractOf("").lines, QStringList());
}

TEST_F(TextReading, AWholeFileHasNoNote)
{
    const TextExtract extract = extractOf("un\ndeux\n");
    EXPECT_EQ(extract.note, u""_s);
    EXPECT_EQ(extract.problem, u""_s);
}

TEST_F(TextReading, TheEncodingIsRecognised)
{
    EXPECT_EQ(extractOf("été").lines, QStringList{u"été"_s});
    EXPECT_EQ(extractOf("\xEF\xBB\xBF\xC3\xA9").lines, QStringList{u"é"_s});
    EXPECT_EQ(extractOf("\xE9t\xE9").lines, QStringList{u"été"_s}) << "Latin-1";
    EXPECT_EQ(extractOf(QByteArray("\xFF\xFE\xE9\x00t\x00", 6)).lines, QStringList{u"ét"_s});
    EXPECT_EQ(extractOf(QByteArray("\xFE\xFF\x00\xE9\x00t", 6)).lines, QStringList{u"ét"_s});
}

TEST_F(TextReading, ACharacterThatTheLimitCutsLeavesTheOthersReadable)
{
    const TextExtract extract = extractOf("a\xC3\xA9\xC3\xA9", {.bytes = 4});
    EXPECT_TRUE(extract.lines.value(0).startsWith(u"aé"_s)) << extract.lines.value(0).toStdString();
}

TEST_F(TextReading, TooManyLinesAreLeftOutAndTold)
{
    const TextExtract extract = extractOf("un\ndeux\ntrois\n", {.lines = 2});
    EXPECT_EQ(extract.lines, QStringList({u"un"_s, u"deux"_s}));
    EXPECT_EQ(extract.note, u"Seul le début du fichier est affiché : il reste 6\u00A0octets."_s);
}

TEST_F(TextReading, ALongLineIsCutAndTold)
{
    const TextExtract extract = extractOf("abcdef\nxy", {.line = 3});
    EXPECT_EQ(extract.lines, QStringList({u"abc…"_s, u"xy"_s}));
    EXPECT_EQ(extract.note, u"Les lignes sont coupées après 3 caractères."_s);
}

TEST_F(TextReading, ALogOfTwoGigabytesShowsItsBeginningAndTellsWhatIsLeftOut)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    for (int i = 0; i < 100'000; ++i)
        file.write("2026-10-29 14:32:00 worker ligne de journal assez longue\n");
    // The rest takes no place on the disk.
    ASSERT_TRUE(file.resize(2'000'000'000));
    file.close();
    const TextExtract extract = readText(path);
    EXPECT_EQ(extract.lines.size(), 20'000);
    EXPECT_EQ(extract.problem, u""_s);
    EXPECT_EQ(extract.note, u"Seul le début du fichier est affiché : il reste 2\u00A0Go."_s);
}

TEST_F(TextReading, ControlCharactersAreSeenAndTabsBecomeSpaces)
{
    EXPECT_EQ(extractOf("a\tb\x1B[31m\xE2\x80\xAE").lines,
              QStringList{u"a    b[U+001B][31m[U+202E]"_s});
}

TEST_F(TextReading, AFileWithZeroBytesIsNoText)
{
    EXPECT_EQ(extractOf(QByteArray("MZ\0\0", 4)).problem, u"Ce fichier n'est pas du texte."_s);
}

TEST_F(TextReading, AFileThatHasVanishedIsTold)
{
    EXPECT_EQ(readText(folder.filePath(u"absent"_s)).problem, u"Le fichier n'est plus là."_s);
    EXPECT_EQ(readText(folder.path()).problem, u"Le fichier n'est plus là."_s) << "a folder";
}

TEST_F(TextReading, APipeIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_EQ(readText(path).problem, u"Le fichier n'est plus là."_s);
}
