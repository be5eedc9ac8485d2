#include "update/tool/ReleaseWriter.h"

#include "platform/bundles/BundleCheck.h"
#include "platform/bundles/BundleSignature.h"
#include "platform/bundles/TestBundle.h"
#include "platform/bundles/ZipUnpacker.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class ReleaseWriterTest : public testing::Test
{
protected:
    ReleaseWriterTest() { writeFiles(bundle()); }

    static void writeFiles(const QString &folder)
    {
        writeFile(folder + u"/bin/velmora"_s, "program", true);
        writeFile(folder + u"/lib/libone.so"_s, QByteArray(100'000, 'x'), true);
        writeFile(folder + u"/qml/two words.qml"_s, "two");
    }
    static ReleaseWriter::Names names()
    {
        return {.identifier = u"fr.orvantis.Velmora"_s,
                .version = u"1.5"_s,
                .build = u"122"_s,
                .feed = u"https://a.example/latest.json"_s};
    }
    static QDateTime time() { return QDateTime({2026, 11, 22}, {7, 0}, QTimeZone::utc()); }

    /// Makes a complete release of a bundle, in a folder of its own.
    void release(const QString &from, const QString &to) const
    {
        ReleaseWriter::writeManifest(from, names(), TestBundle::makersSeed());
        QDir().mkpath(to);
        ReleaseWriter::writeArchive(from, to + u"/Velmora-1.5.zip"_s, time());
        const auto info = ReleaseWriter::releaseOf(to + u"/Velmora-1.5.zip"_s, names(), u"2.36"_s,
                                                   time(), u"Notes"_s);
        writeFile(to + u"/latest.json"_s, info.encoded());
    }
    std::string failureOfCheck(const QString &identifier = u"fr.orvantis.Velmora"_s,
                               const QByteArray &seed = TestBundle::makersSeed()) const
    {
        try {
            ReleaseWriter::check(output() + u"/latest.json"_s, root.path(), identifier,
                                 BundleSignature::publicKey(seed));
        } catch (const Failure &failure) {
            return failure.message().toStdString();
        }
        return {};
    }

    QString bundle() const { return root.filePath(u"Velmora.app"_s); }
    QString output() const { return root.filePath(u"out"_s); }

    QTemporaryDir root;
};

TEST_F(ReleaseWriterTest, WhatItMakesPassesTheCheck)
{
    release(bundle(), output());
    EXPECT_EQ(failureOfCheck(), "");
}

TEST_F(ReleaseWriterTest, TheFeedDescribesTheArchive)
{
    release(bundle(), output());
    const auto info = ReleaseInfo::decoded(readFile(output() + u"/latest.json"_s));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->url, u"Velmora-1.5.zip"_s);
    EXPECT_EQ(info->size, QFileInfo(output() + u"/Velmora-1.5.zip"_s).size());
    EXPECT_EQ(info->minimumSystemVersion, u"2.36"_s);
    EXPECT_EQ(info->publishedAt, u"2026-11-22T07:00:00Z"_s);
    EXPECT_EQ(info->notes, u"Notes"_s);
}

TEST_F(ReleaseWriterTest, TheSameFilesGiveTheSameBytes)
{
    release(bundle(), output());
    const QString again = root.filePath(u"again/Velmora.app"_s);
    writeFiles(again);
    QFile::setPermissions(again + u"/qml/two words.qml"_s, QFile::ReadOwner | QFile::WriteOwner);
    release(again, root.filePath(u"again/out"_s));
    for (const QString &name : {u"/Velmora-1.5.zip"_s, u"/latest.json"_s})
        EXPECT_EQ(readFile(output() + name), readFile(root.filePath(u"again/out"_s) + name));
}

TEST_F(ReleaseWriterTest, OnlyProgramsAreExecutable)
{
    ReleaseWriter::writeManifest(bundle(), names(), TestBundle::makersSeed());
    struct stat status = {};
    ASSERT_EQ(::stat((bundle() + u"/lib/libone.so"_s).toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0644U);
}

TEST_F(ReleaseWriterTest, ALinkCannotBePartOfABundle)
{
    QFile::link(u"libone.so"_s, bundle() + u"/lib/libtwo.so"_s);
    EXPECT_THROW(ReleaseWriter::writeManifest(bundle(), names(), TestBundle::makersSeed()),
                 Failure);
}

TEST_F(ReleaseWriterTest, ANameThatAnUpdateRefusesCannotBePartOfABundle)
{
    writeFile(bundle() + u"/qml/é.qml"_s, {});
    EXPECT_THROW(ReleaseWriter::writeManifest(bundle(), names(), TestBundle::makersSeed()),
                 Failure);
}

TEST_F(ReleaseWriterTest, AVersionWithALineBreakIsRefused)
{
    ReleaseWriter::Names wrong = names();
    wrong.version = u"1.5\nkey 00"_s;
    EXPECT_THROW(ReleaseWriter::writeManifest(bundle(), wrong, TestBundle::makersSeed()), Failure);
}

TEST_F(ReleaseWriterTest, ASecretKeyHas64HexadecimalDigits)
{
    const QByteArray digits = TestBundle::makersSeed().toHex();
    EXPECT_EQ(ReleaseWriter::seedFrom(' ' + digits.toUpper() + '\n'), TestBundle::makersSeed());
    for (const QByteArray &wrong :
         {QByteArray(), digits.chopped(1), digits + '0', "zz" + digits.chopped(2)})
        EXPECT_THROW(ReleaseWriter::seedFrom(wrong), Failure);
}

TEST_F(ReleaseWriterTest, TheCheckFindsAnotherArchive)
{
    release(bundle(), output());
    QFile archive(output() + u"/Velmora-1.5.zip"_s);
    ASSERT_TRUE(archive.open(QIODevice::Append));
    archive.write("x");
    archive.close();
    EXPECT_EQ(failureOfCheck(), "The hash in the feed is not that of the archive.");
}

TEST_F(ReleaseWriterTest, TheCheckFindsAnotherMakerOrIdentifier)
{
    release(bundle(), output());
    EXPECT_TRUE(failureOfCheck(u"org.example.Other"_s).starts_with("Signature refusée : "));
    EXPECT_TRUE(failureOfCheck(u"fr.orvantis.Velmora"_s, TestBundle::strangersSeed())
                    .starts_with("Signature refusée : "));
}

TEST_F(ReleaseWriterTest, TheCheckFindsAnotherRelease)
{
    release(bundle(), output());
    auto info = ReleaseInfo::decoded(readFile(output() + u"/latest.json"_s)).value();
    info.build = u"123"_s;
    writeFile(output() + u"/latest.json"_s, info.encoded());
    EXPECT_EQ(failureOfCheck(), "The archive does not contain the release of the feed.");
}

} // namespace
