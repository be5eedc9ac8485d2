#include "platform/files/linux/FileManagerLinux.h"

#include "platform/PrivateBus.h"
#include "platform/files/FakeFileManager.h"
#include "support/RunUntil.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QUrl File = QUrl::fromLocalFile(u"/tmp/un dossier/été 100%.png"_s);

class FileManagerLinuxTest : public testing::Test
{
protected:
    PrivateBus bus;
    QList<QUrl> opened;
    FileManagerLinux manager{bus.connection(u"program"_s),
                             [this](const QUrl &folder) { opened += folder; }};
};

} // namespace

TEST_F(FileManagerLinuxTest, ShowsTheFileSelectedInItsFolder)
{
    const FakeFileManager other(bus.connection(u"manager"_s));
    manager.reveal(File);
    ASSERT_TRUE(runUntil([&] { return !other.shown.isEmpty(); }));
    EXPECT_EQ(other.shown, QStringList{u"file:///tmp/un%20dossier/%C3%A9t%C3%A9%20100%25.png"_s});
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(FileManagerLinuxTest, WithoutAFileManagerTheFolderIsOpened)
{
    manager.reveal(File);
    ASSERT_TRUE(runUntil([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QList<QUrl>{QUrl::fromLocalFile(u"/tmp/un dossier"_s)});
}
