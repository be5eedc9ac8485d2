#include "platform/bundles/BundleSignature.h"
#include "platform/bundles/TestBundle.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ReleaseToolTest : public testing::Test
{
protected:
    struct Result
    {
        int status;
        QByteArray output;
        QByteArray errors;
    };

    static Result run(const QStringList &words, const QByteArray &input = {})
    {
        QProcess process;
        process.start(QStringLiteral(VELMORA_RELEASE), words);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    QString path(const QString &name) const { return root.filePath(name); }

    QTemporaryDir root;
    const QByteArray secret = TestBundle::makersSeed().toHex();
    const QByteArray key = BundleSignature::publicKey(TestBundle::makersSeed()).toHex();
};

TEST_F(ReleaseToolTest, MakesACompleteRelease)
{
    writeFile(path(u"Velmora.app/bin/velmora"_s), "program", true);
    writeFile(path(u"notes"_s), "\n- Des **nouveautés**\n");
    const QStringList names = {
        u"--release-version"_s, u"1.5"_s, u"--build"_s, u"122"_s, u"--time"_s, u"1700000000"_s};
    const QString bundle = path(u"Velmora.app"_s);
    const QString archive = path(u"Velmora.zip"_s);
    const QString feed = path(u"latest.json"_s);
    EXPECT_EQ(run({u"public-key"_s}, secret).output, key + '\n');
    EXPECT_EQ(run(QStringList{u"manifest"_s, bundle} + names, secret).errors, "");
    EXPECT_EQ(run(QStringList{u"archive"_s, bundle, archive} + names).errors, "");
    EXPECT_EQ(
        run(QStringList{u"feed"_s, archive, path(u"notes"_s), feed, u"--minimum"_s, u"2.36"_s} +
            names)
            .errors,
        "");
    EXPECT_TRUE(readFile(feed).contains("\"notes\":\"- Des **nouveaut\xc3\xa9s**\""));
    const Result check = run({u"check"_s, feed, QString::fromLatin1(key)});
    EXPECT_EQ(check.status, 0) << check.errors.toStdString();
    const QString strangersKey = QString(key.size(), u'0');
    EXPECT_EQ(run({u"check"_s, feed, strangersKey}).status, 1);
}

TEST_F(ReleaseToolTest, TheSecretKeyIsNotStored)
{
    writeFile(path(u"Velmora.app/bin/velmora"_s), "program", true);
    run({u"manifest"_s, path(u"Velmora.app"_s), u"--release-version"_s, u"1"_s, u"--build"_s,
         u"1"_s},
        secret);
    for (const QString &name : {u"MANIFEST"_s, u"MANIFEST.sig"_s}) {
        const QByteArray content = readFile(path(u"Velmora.app/"_s + name));
        EXPECT_FALSE(content.isEmpty());
        EXPECT_FALSE(content.contains(secret));
    }
}

TEST_F(ReleaseToolTest, SaysWhatIsWrong)
{
    EXPECT_EQ(run({u"public-key"_s}, "short").errors,
              "velmora-release: The secret key must have 64 hexadecimal digits.\n");
    EXPECT_TRUE(run({u"unknown"_s}).errors.contains("Usage: velmora-release <command>"));
    EXPECT_EQ(run({u"archive"_s}).status, 1);
}

} // namespace
