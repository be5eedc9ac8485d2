#include "platform/bundles/linux/AppBundlesLinux.h"

#include "platform/bundles/TestBundle.h"
#include "platform/bundles/UpdateError.h"

#include <QDir>
#include <QTemporaryDir>

#include <gnu/libc-version.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AppBundlesLinuxTest : public testing::Test
{
protected:
    /// The running program, in a bundle of version 1.4 (build 121).
    AppBundlesLinux running(const QByteArray &seed = TestBundle::makersSeed()) const
    {
        TestBundle bundle;
        bundle.manifest.version = u"1.4"_s;
        bundle.manifest.build = u"121"_s;
        bundle.manifest.feed = u"https://a.example/latest.json"_s;
        bundle.seed = seed;
        bundle.write(installed());
        return ofInstalled();
    }
    AppBundlesLinux ofInstalled() const
    {
        return AppBundlesLinux(installed() + u"/bin/velmora"_s, root.filePath(u"dpkg"_s));
    }
    QString installed() const { return root.filePath(u"Applications/Velmora.app"_s); }
    QString update() const { return root.filePath(u"work/Velmora.app"_s); }

    /// The failure of verifying the update as version 1.5 (build 122).
    std::string failure(const AppBundlesLinux &bundles) const
    {
        try {
            bundles.verify(update(), u"1.5"_s, u"122"_s);
        } catch (const UpdateError &error) {
            return error.message().toStdString();
        }
        return {};
    }

    QTemporaryDir root;
};

TEST_F(AppBundlesLinuxTest, KnowsTheRunningBundle)
{
    EXPECT_EQ(running().running(), (RunningApp{.path = installed(),
                                               .version = u"1.4"_s,
                                               .build = u"121"_s,
                                               .feed = u"https://a.example/latest.json"_s}));
}

TEST_F(AppBundlesLinuxTest, OutsideABundleItIsADevelopmentRun)
{
    const AppBundlesLinux bundles(root.filePath(u"build/bin/velmora"_s));
    EXPECT_EQ(bundles.running(), (RunningApp{.path = root.filePath(u"build/bin"_s)}));
    EXPECT_FALSE(bundles.canReplaceRunning());
}

TEST_F(AppBundlesLinuxTest, ADevelopmentRunRequiresOnlyTheIdentifier)
{
    TestBundle bundle;
    bundle.seed = TestBundle::strangersSeed();
    bundle.write(update());
    EXPECT_EQ(failure(AppBundlesLinux(root.filePath(u"build/bin/velmora"_s))), "");
}

TEST_F(AppBundlesLinuxTest, ASignedProgramRequiresItsOwnMaker)
{
    TestBundle().write(update());
    EXPECT_EQ(failure(running()), "");
    QTemporaryDir other;
    QDir(installed()).removeRecursively();
    EXPECT_EQ(
        failure(running(TestBundle::strangersSeed())),
        "Signature refusée : la clé de signature est différente. La mise à jour ne vient pas du "
        "même développeur.");
}

TEST_F(AppBundlesLinuxTest, TheRequirementIsThatOfTheLaunch)
{
    TestBundle stranger;
    stranger.seed = TestBundle::strangersSeed();
    stranger.write(update());
    const AppBundlesLinux bundles = running();
    QDir(installed()).removeRecursively();
    stranger.write(installed());
    EXPECT_NE(failure(bundles), "");
}

TEST_F(AppBundlesLinuxTest, ADamagedRunningBundleAcceptsNoUpdate)
{
    TestBundle().write(update());
    running();
    QFile::remove(installed() + u"/MANIFEST.sig"_s);
    EXPECT_EQ(failure(ofInstalled()), "Signature refusée : exigence invalide");
    QFile::remove(installed() + u"/MANIFEST"_s);
    EXPECT_EQ(failure(ofInstalled()), "Signature refusée : exigence invalide");
    EXPECT_EQ(ofInstalled().running().version, u"dev"_s);
}

TEST_F(AppBundlesLinuxTest, AnotherReleaseThanTheAnnouncedOneIsRefused)
{
    TestBundle old;
    old.manifest.build = u"100"_s;
    old.write(update());
    EXPECT_EQ(failure(running()),
              "Signature refusée : l'archive ne contient pas la version annoncée.");
    QDir(update()).removeRecursively();
    old.manifest.build = u"122"_s;
    old.manifest.version = u"1.3"_s;
    old.write(update());
    EXPECT_EQ(failure(ofInstalled()),
              "Signature refusée : l'archive ne contient pas la version annoncée.");
}

TEST_F(AppBundlesLinuxTest, ComparesMinimaWithTheVersionOfTheCLibrary)
{
    const AppBundlesLinux bundles = running();
    const QStringList version = QString::fromLatin1(gnu_get_libc_version()).split(u'.');
    const qint64 major = version[0].toLongLong();
    const qint64 minor = version[1].toLongLong();
    EXPECT_TRUE(bundles.isSystemAtLeast(0, 0));
    EXPECT_TRUE(bundles.isSystemAtLeast(major, minor));
    EXPECT_FALSE(bundles.isSystemAtLeast(major, minor + 1));
    EXPECT_FALSE(bundles.isSystemAtLeast(major + 1, 0));
    EXPECT_TRUE(bundles.isSystemAtLeast(major - 1, minor + 1));
}

TEST_F(AppBundlesLinuxTest, ABundleInAFolderOfTheUserCanBeReplaced)
{
    EXPECT_TRUE(running().canReplaceRunning());
}

TEST_F(AppBundlesLinuxTest, ABundleOfAPackageCannotBeReplaced)
{
    writeFile(root.filePath(u"dpkg/velmora.list"_s), "/.\n" + installed().toUtf8() + '\n');
    EXPECT_FALSE(running().canReplaceRunning());
}

TEST_F(AppBundlesLinuxTest, ABundleThatWasMovedCannotBeReplaced)
{
    const AppBundlesLinux bundles = running();
    QFile::rename(installed(), installed() + u".moved"_s);
    EXPECT_FALSE(bundles.canReplaceRunning());
}

TEST_F(AppBundlesLinuxTest, ABundleWhoseFolderIsGoneCannotBeReplaced)
{
    const AppBundlesLinux bundles = running();
    QDir(root.filePath(u"Applications"_s)).removeRecursively();
    EXPECT_FALSE(bundles.canReplaceRunning());
}

} // namespace
