#include "platform/decoding/DecodingInput.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(DecodingInput, IsNullForWhatIsNoRegularFileAndDoesNotWait)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
    EXPECT_TRUE(DecodingInput::file(pipe).isNull());
    EXPECT_TRUE(DecodingInput::file(folder.path()).isNull());
    EXPECT_TRUE(DecodingInput::file(folder.filePath(u"absent"_s)).isNull());
    EXPECT_TRUE(DecodingInput::file(u"/dev/zero"_s).isNull());
    EXPECT_EQ(DecodingInput().descriptor(), -1);
}

TEST(DecodingInput, HoldsBytesInAFileOfTheirSize)
{
    const DecodingInput input = DecodingInput::bytes("abc");
    EXPECT_EQ(input.size(), 3);
    const int file = input.descriptor();
    ASSERT_GE(file, 0);
    EXPECT_EQ(input.descriptor(), file);
    char content[8] = {};
    EXPECT_EQ(::pread(file, content, sizeof content, 0), 3);
    EXPECT_STREQ(content, "abc");
    EXPECT_NE(::ftruncate(file, 100), 0) << "its size is fixed";
}

TEST(DecodingInput, HasANumberOfItsOwnThatItsCopiesShare)
{
    const DecodingInput one = DecodingInput::bytes("a");
    const DecodingInput other = DecodingInput::bytes("a");
    const QList<DecodingInput> copies{one};
    EXPECT_NE(one.id(), other.id());
    EXPECT_EQ(one.id(), copies.first().id());
    EXPECT_EQ(one.descriptor(), copies.first().descriptor());
}

TEST(DecodingInput, WithoutContentHasNoFile)
{
    EXPECT_EQ(DecodingInput::bytes({}).descriptor(), -1);
}
