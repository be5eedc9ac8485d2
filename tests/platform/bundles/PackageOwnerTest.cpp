#include "platform/bundles/linux/PackageOwner.h"

#include "platform/bundles/TestBundle.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PackageOwnerTest : public testing::Test
{
protected:
    PackageOwnerTest()
    {
        writeFile(lists.filePath(u"velmora.list"_s),
                  "/.\n/opt\n/opt/Velmora.app\n/opt/Velmora.app/MANIFEST\n");
        writeFile(lists.filePath(u"velmora.md5sums"_s), "/srv/Velmora.app\n");
    }
    bool owns(const QString &folder) const { return PackageOwner::owns(folder, lists.path()); }

    QTemporaryDir lists;
};

TEST_F(PackageOwnerTest, OwnsWhatDpkgLists)
{
    EXPECT_TRUE(owns(u"/opt/Velmora.app"_s));
    EXPECT_TRUE(owns(u"/opt"_s));
}

TEST_F(PackageOwnerTest, DoesNotOwnWhatIsNotListed)
{
    EXPECT_FALSE(owns(u"/opt/Velmora"_s));
    EXPECT_FALSE(owns(u"/opt/Velmora.ap"_s));
    EXPECT_FALSE(owns(u"/Velmora.app"_s));
    EXPECT_FALSE(owns(u"/srv/Velmora.app"_s));
}

TEST_F(PackageOwnerTest, OwnsTheTreesOfPackages)
{
    for (const QString &folder :
         {u"/usr/lib/Velmora.app"_s, u"/app/Velmora.app"_s, u"/snap/velmora/1/Velmora.app"_s,
          u"/nix/store/abc/Velmora.app"_s})
        EXPECT_TRUE(owns(folder)) << folder.toStdString();
    EXPECT_FALSE(owns(u"/usr/local/Velmora.app"_s));
}

TEST_F(PackageOwnerTest, ASystemWithoutDpkgOwnsNothingElse)
{
    EXPECT_FALSE(PackageOwner::owns(u"/opt/Velmora.app"_s, lists.filePath(u"missing"_s)));
}

TEST_F(PackageOwnerTest, TheUsersHomeBelongsToTheUser)
{
    const QString folder = QDir::homePath() + u"/Velmora.app"_s;
    writeFile(lists.filePath(u"wrong.list"_s), folder.toUtf8() + '\n');
    EXPECT_FALSE(owns(folder));
}

} // namespace
