#include "platform/decoding/DecodersFixture.h"
#include "screens/kit/images/SamplePictures.h"
#include "support/RunUntil.h"

#include <QCoreApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class HelperFailures : public DecodersFixture, public testing::WithParamInterface<const char *>
{
protected:
    /// A helper that fails in one way the first time it is started, and then is a proper one.
    DecodingProgram failingOnce(const QByteArray &how) const
    {
        return replaced(how, QCoreApplication::applicationFilePath().toUtf8());
    }
    /// A helper that fails in one way the first time it is started, and then is another program.
    DecodingProgram replaced(const QByteArray &how, const QByteArray &program) const
    {
        return {.path = VELMORA_HOSTILE_HELPER,
                .arguments = {how, folder.filePath(u"failed"_s).toUtf8(), program}};
    }
    static DecodingProgram failing(const QByteArray &how)
    {
        return {.path = VELMORA_HOSTILE_HELPER, .arguments = {how}};
    }
    DecodingInput picture = DecodingInput::bytes(SamplePictures::picture("png"));

    const QTemporaryDir folder;
};

} // namespace

TEST_P(HelperFailures, FailThePictureAndTheNextOneIsDecoded)
{
    Decoders decoders(failingOnce(GetParam()), clock);
    const Decoded result = resultOf(decoders, picture, pictureIn({100, 100}));
    EXPECT_EQ(result.status, DecodingStatus::Unreadable);
    EXPECT_TRUE(result.image.isNull());
    EXPECT_TRUE(readsPictures(decoders));
}

INSTANTIATE_TEST_SUITE_P(Of, HelperFailures,
                         testing::Values("exit", "killed", "half", "noise", "large", "negative",
                                         "endless", "version"),
                         [](const auto &how) { return std::string(how.param); });

TEST_F(HelperFailures, AHelperThatHangsIsKilledAfterItsTimeAndReplaced)
{
    Decoders decoders(failingOnce("hang"), clock);
    const TaskResult result(decoders.decode(picture, pictureIn({100, 100})));
    ASSERT_TRUE(runUntil([&] { return QFile::exists(folder.filePath(u"failed"_s)); }));
    const QList<qint64> hanging = children();
    ASSERT_EQ(hanging.size(), 1);
    clock.advance(std::chrono::seconds(19));
    QCoreApplication::processEvents();
    EXPECT_FALSE(result.isDone());
    clock.advance(std::chrono::seconds(1));
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(result.value().status, DecodingStatus::Unreadable);
    EXPECT_FALSE(children().contains(hanging.first()));
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(HelperFailures, WhileOneHelperHangsTheOtherOneDecodes)
{
    Decoders decoders(failingOnce("hang"), clock);
    const TaskResult hanging(decoders.decode(picture, pictureIn({100, 100})));
    const QString mark = folder.filePath(u"failed"_s);
    ASSERT_TRUE(runUntil([&] { return QFile::exists(mark); }));
    EXPECT_TRUE(readsPictures(decoders));
    EXPECT_FALSE(hanging.isDone());
}

TEST_F(HelperFailures, BytesAfterAnAnswerAreNotTakenForTheNextOne)
{
    Decoders decoders(failingOnce("more"), clock, {.helpers = 1});
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(10, 10));
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(40, 30));
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(HelperFailures, APictureIsTriedAgainIfARunningHelperEndsBeforeItsAnswer)
{
    Decoders decoders(failingOnce("second"), clock, {.helpers = 1});
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(10, 10));
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(40, 30));
}

TEST_F(HelperFailures, APictureIsTriedAgainOnlyOnce)
{
    Decoders decoders(replaced("second", "/bin/false"), clock, {.helpers = 1});
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(10, 10));
    const Decoded result = resultOf(decoders, picture, pictureIn({100, 100}));
    EXPECT_EQ(result.status, DecodingStatus::Unreadable);
    EXPECT_TRUE(children().isEmpty());
}

TEST_F(HelperFailures, APictureWhoseAnswerHasBegunIsNotTriedAgain)
{
    Decoders decoders(failingOnce("half-of-second"), clock, {.helpers = 1});
    EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).image.size(), QSize(10, 10));
    const Decoded result = resultOf(decoders, picture, pictureIn({100, 100}));
    EXPECT_EQ(result.status, DecodingStatus::Unreadable);
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(HelperFailures, AHelperThatCannotBeStartedFailsEveryPicture)
{
    for (const char *path : {"", "/nonexistent/velmora", "/etc/passwd"}) {
        Decoders decoders({.path = path, .arguments = {DecodingOption}}, clock);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(resultOf(decoders, picture, pictureIn({100, 100})).status,
                      DecodingStatus::Unreadable)
                << path;
        EXPECT_TRUE(children().isEmpty()) << path;
    }
}

TEST_F(HelperFailures, AHelperLearnsNothingOfTheEnvironment)
{
    qputenv("VELMORA_SECRET", "token");
    Decoders decoders(failing("environment"), clock);
    const Decoded result = resultOf(decoders, picture, pictureIn({100, 100}));
    qunsetenv("VELMORA_SECRET");
    EXPECT_EQ(result.image.width(), 1);
}
