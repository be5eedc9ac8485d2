#include "platform/bundles/swap/SwapFolders.h"

#include "platform/bundles/TestBundle.h"

#include <QDir>
#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int unsupported(const char *, const char *)
{
    return EINVAL;
}

class SwapFoldersTest : public testing::TestWithParam<SwapFolders::Exchange>
{
protected:
    SwapFoldersTest()
    {
        writeFile(root.filePath(u"new/name"_s), "new");
        writeFile(root.filePath(u"old/name"_s), "old");
    }
    int exchange(const QString &a, const QString &b) const
    {
        return SwapFolders::exchanged(root.filePath(a).toLocal8Bit().constData(),
                                      root.filePath(b).toLocal8Bit().constData(), GetParam());
    }
    QByteArray at(const QString &folder) const
    {
        return readFile(root.filePath(folder + u"/name"_s));
    }

    QTemporaryDir root;
};

TEST_P(SwapFoldersTest, ExchangesTwoFolders)
{
    EXPECT_EQ(exchange(u"new"_s, u"old"_s), 0);
    EXPECT_EQ(at(u"old"_s), "new");
    EXPECT_EQ(at(u"new"_s), "old");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
}

TEST_P(SwapFoldersTest, AMissingFolderLeavesEverythingInPlace)
{
    EXPECT_EQ(exchange(u"missing"_s, u"old"_s), ENOENT);
    EXPECT_EQ(at(u"old"_s), "old");
    EXPECT_EQ(exchange(u"new"_s, u"missing"_s), ENOENT);
    EXPECT_EQ(at(u"new"_s), "new");
}

INSTANTIATE_TEST_SUITE_P(Ways, SwapFoldersTest, testing::Values(SwapFolders::atOnce, unsupported),
                         [](const auto &info) {
                             return info.index == 0 ? "AtOnce" : "OneAfterTheOther";
                         });

} // namespace
