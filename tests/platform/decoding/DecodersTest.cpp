#include "platform/decoding/Decoders.h"

#include "platform/decoding/DecodersFixture.h"
#include "platform/decoding/EndlessPdf.h"
#include "screens/kit/images/SamplePictures.h"
#include "support/RunUntil.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Drawing = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 24'>"
                           "<rect width='48' height='24' fill='#00ff00'/></svg>";

/// A PDF of one page with a red square.
QByteArray pdf()
{
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
           "2 0 obj<</Type/Pages/Count 1/Kids[3 0 R]>>endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 100]/Contents 4 0 R>>endobj\n"
           "4 0 obj<</Length 27>>stream\n1 0 0 rg 0 0 200 100 re f  \nendstream endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

QByteArray damaged(QByteArray bytes, QRandomGenerator &random)
{
    for (int i = 1 + random.bounded(12); i > 0; --i)
        bytes[random.bounded(bytes.size())] = char(random.bounded(256));
    return bytes;
}

/// Whether a child has ended. It is not buried yet.
bool isDead(qint64 process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    // Its connection is closed when its last thread is gone, which may be later than its first.
    const QDir threads(u"/proc/%1/task"_s.arg(process));
    return file.open(QFile::ReadOnly) && file.readAll().contains(") Z ") &&
           threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() <= 1;
}

/// The processor time that a child has used.
std::chrono::milliseconds processorTimeOf(qint64 process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    if (!file.open(QFile::ReadOnly))
        return {};
    // After the name of the program, which may contain spaces.
    const QList<QByteArray> fields = file.readAll().split(')').constLast().split(' ');
    constexpr int userTime = 12;
    return std::chrono::milliseconds(fields.value(userTime).toLongLong() * 1000 /
                                     sysconf(_SC_CLK_TCK));
}

class DecodersTest : public DecodersFixture
{
protected:
    Decoders decoders{ownProgram(), clock};
};

} // namespace

TEST_F(DecodersTest, PicturesOfEveryFormatAreDecoded)
{
    for (const char *format : {"png", "jpg"}) {
        const Decoded result =
            resultOf(decoders, SamplePictures::picture(format, {40, 30}), pictureIn({100, 100}));
        EXPECT_EQ(result.status, DecodingStatus::Done) << format;
        EXPECT_EQ(result.image.size(), QSize(40, 30)) << format;
        EXPECT_NEAR(result.image.pixelColor(20, 15).red(), 255, 3) << format;
    }
    const Decoded gif =
        resultOf(decoders, SamplePictures::gifClaiming({1, 1}), pictureIn({100, 100}));
    EXPECT_EQ(gif.image.size(), QSize(1, 1));
    const Decoded drawing = resultOf(decoders, Drawing, pictureIn({512, 512}));
    EXPECT_EQ(drawing.image.size(), QSize(256, 128)) << "a drawing is drawn large enough";
    EXPECT_EQ(drawing.image.pixelColor(128, 64), QColor(Qt::green));
}

TEST_F(DecodersTest, TransparencyIsKept)
{
    const QByteArray dot = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'>"
                           "<circle cx='4.5' cy='4.5' r='4.5' fill='#00f'/></svg>";
    const Decoded result = resultOf(decoders, dot, pictureIn({90, 90}));
    EXPECT_EQ(result.image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(result.image.pixelColor(45, 45), QColor(Qt::blue));
}

TEST_F(DecodersTest, ALargePictureIsScaledByTheHelper)
{
    const Decoded result =
        resultOf(decoders, SamplePictures::picture("png", {3000, 2000}), pictureIn({300, 300}));
    EXPECT_EQ(result.image.size(), QSize(300, 200));
    EXPECT_EQ(result.whole, QSize(3000, 2000));
}

TEST_F(DecodersTest, OneHelperDecodesOneAfterTheOtherAndTwoDecodeMany)
{
    ASSERT_TRUE(readsPictures(decoders));
    const QList<qint64> first = children();
    ASSERT_EQ(first.size(), 1);
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(readsPictures(decoders));
    EXPECT_EQ(children(), first);
    std::vector<TaskResult<Decoded>> results;
    results.reserve(20);
    for (int i = 0; i < 20; ++i)
        results.emplace_back(decoders.decode(DecodingInput::bytes(SamplePictures::picture("png")),
                                             pictureIn({50, 50})));
    for (const auto &result : results)
        ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(children().size(), 2);
}

TEST_F(DecodersTest, AnUnusedHelperEndsAndTheNextPictureStartsAnother)
{
    ASSERT_TRUE(readsPictures(decoders));
    clock.advance(std::chrono::seconds(59));
    EXPECT_EQ(children().size(), 1);
    clock.advance(std::chrono::seconds(1));
    EXPECT_TRUE(runUntil([] { return children().isEmpty(); }));
    EXPECT_EQ(clock.pending(), 0);
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(DecodersTest, AHelperCanBeStartedBeforeItIsNeeded)
{
    decoders.prepare();
    decoders.prepare();
    ASSERT_TRUE(runUntil([] { return children().size() == 1; }));
    const QList<qint64> prepared = children();
    EXPECT_TRUE(readsPictures(decoders));
    EXPECT_EQ(children(), prepared);
}

TEST_F(DecodersTest, TheFramesOfAnAnimationComeInOrderAndInAnyOther)
{
    QByteArray gif = QByteArray::fromHex("47494638396101000100800000ff000000ff00");
    for (const char *code : {"024401", "024c01"})
        gif += QByteArray::fromHex("21f90400050000002c00000000010001000002") +
               QByteArray::fromHex(code) + QByteArray::fromHex("00");
    const DecodingInput input = DecodingInput::bytes(gif + ';');
    const auto colourAt = [&](int index) {
        const Decoded result = resultOf(decoders, input, frameAt(index));
        EXPECT_TRUE(result.isAnimated);
        EXPECT_EQ(result.delay, std::chrono::milliseconds(50));
        return result.image.pixelColor(0, 0);
    };
    EXPECT_EQ(colourAt(0), QColor(Qt::red));
    EXPECT_EQ(colourAt(1), QColor(Qt::green));
    EXPECT_EQ(resultOf(decoders, input, frameAt(2)).status, DecodingStatus::End);
    EXPECT_EQ(colourAt(1), QColor(Qt::green));
    EXPECT_EQ(colourAt(0), QColor(Qt::red));
}

TEST_F(DecodersTest, AFileIsReadThroughItsDescriptor)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"doc.pdf"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(pdf());
    file.close();
    const DecodingInput input = DecodingInput::file(file.fileName());
    ASSERT_TRUE(file.remove());
    const Decoded sizes = resultOf(decoders, input, pageSizes());
    EXPECT_EQ(sizes.pages, QList<QSizeF>({{200, 100}}));
    EXPECT_EQ(sizes.pageCount, 1);
    const Decoded page = resultOf(decoders, input, pageAt(0, {400, 200}));
    ASSERT_EQ(page.image.size(), QSize(400, 200));
    EXPECT_EQ(page.image.pixelColor(200, 100), QColor(Qt::red));
    EXPECT_EQ(resultOf(decoders, input, pageAt(1, {400, 200})).status, DecodingStatus::Unreadable);
    EXPECT_EQ(children().size(), 1);
}

TEST_F(DecodersTest, APictureThatDeclaresSixtyThousandSquaredIsRefusedByItsDeclaration)
{
    const Decoded png = resultOf(decoders, SamplePictures::pngClaiming({60000, 60000}), frameAt(0));
    EXPECT_EQ(png.status, DecodingStatus::TooLarge);
    EXPECT_EQ(png.whole, QSize(60000, 60000));
    EXPECT_FALSE(png.isLast) << "the helper goes on";
    const QByteArray wall =
        "<svg xmlns='http://www.w3.org/2000/svg' width='60000' height='60000'><path/></svg>";
    EXPECT_EQ(resultOf(decoders, wall, pictureIn({100, 100})).status, DecodingStatus::TooLarge);
}

TEST_F(DecodersTest, APdfThatNeverEndsIsEndedAfterItsTime)
{
    const TaskResult result(
        decoders.decode(DecodingInput::bytes(endlessPdf()), pageAt(0, {200, 200})));
    const auto isAtWork = [] {
        const QList<qint64> helpers = children();
        return !helpers.isEmpty() &&
               processorTimeOf(helpers.first()) > std::chrono::milliseconds(500);
    };
    ASSERT_TRUE(runUntil([&] { return result.isDone() || isAtWork(); }));
    ASSERT_FALSE(result.isDone());
    const QList<qint64> endless = children();
    clock.advance(DecodingLimits().perPicture);
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(result.value().status, DecodingStatus::Unreadable);
    EXPECT_FALSE(children().contains(endless.first()));
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(DecodersTest, AThousandMalformedFilesLeaveItReading)
{
    QRandomGenerator random(20261122);
    QList<QByteArray> files = SamplePictures::hostile();
    const QList<QByteArray> good{SamplePictures::picture("png"), SamplePictures::picture("jpg"),
                                 SamplePictures::gifClaiming({1, 1}), Drawing, pdf()};
    for (int i = 0; i < 1000; ++i)
        files += damaged(good[random.bounded(good.size())], random);
    int done = 0;
    int failed = 0;
    for (const QByteArray &file : files) {
        const DecodingInput input = DecodingInput::bytes(file);
        const bool isPdf = file.contains("obj<<");
        const Decoded result =
            resultOf(decoders, input, isPdf ? pageAt(0, {60, 30}) : pictureIn({200, 200}));
        (result.status == DecodingStatus::Done ? done : failed)++;
        EXPECT_EQ(result.status == DecodingStatus::Done, !result.image.isNull());
    }
    EXPECT_GT(done, 50) << "some damages do no harm";
    EXPECT_GT(failed, 500);
    EXPECT_TRUE(readsPictures(decoders));
}

TEST_F(DecodersTest, AHelperThatIsKilledFromOutsideIsReplaced)
{
    ASSERT_TRUE(readsPictures(decoders));
    const QList<qint64> before = children();
    ASSERT_EQ(::kill(pid_t(before.first()), SIGKILL), 0);
    ASSERT_TRUE(runUntil([&] { return isDead(before.first()); }));
    EXPECT_TRUE(readsPictures(decoders)) << "the death is no fault of this picture";
    EXPECT_NE(children(), before);
}

TEST_F(DecodersTest, WhoeverStillWaitsWhenItIsDestroyedGetsAFailure)
{
    auto brief = std::make_unique<Decoders>(ownProgram(), clock);
    std::vector<TaskResult<Decoded>> results;
    results.reserve(5);
    for (int i = 0; i < 5; ++i)
        results.emplace_back(brief->decode(
            DecodingInput::bytes(SamplePictures::picture("png", {2000, 2000})), frameAt(0)));
    brief.reset();
    for (const auto &result : results) {
        ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
        EXPECT_EQ(result.value().status, DecodingStatus::Unreadable);
    }
    EXPECT_TRUE(children().isEmpty());
}
