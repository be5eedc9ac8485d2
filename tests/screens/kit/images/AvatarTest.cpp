#include "model/JiraUser.h"
#include "screens/Bench.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/PictureProvider.h"
#include "screens/kit/images/SamplePictures.h"
#include "screens/kit/images/ScriptedFetcher.h"
#include "screens/theme/IdentityColors.h"

#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString two = u"Row { property jiraUser person; "
                    "Avatar { size: 40; user: parent.person; hasUser: true } "
                    "Avatar { size: 40; user: parent.person; hasUser: true } "
                    "Avatar { size: 40; user: parent.person; hasUser: false } }"_s;

JiraUser person(const QString &name, const std::optional<QUrl> &avatar)
{
    return {.id = u"noam"_s, .name = name, .email = std::nullopt, .avatarURL = avatar};
}

} // namespace

class AvatarTest : public testing::Test
{
protected:
    AvatarTest() { ImageLoader::shared().setFetcher(&fetcher); }
    ~AvatarTest() override { ImageLoader::shared().setFetcher(nullptr); }

    QQuickItem *show(const JiraUser &user)
    {
        auto *row = bench.show(two);
        EXPECT_NE(row, nullptr) << bench.warnings();
        row->setProperty("person", QVariant::fromValue(user));
        return row;
    }
    static QString source(const QQuickItem *row, int index)
    {
        return row->childItems().at(index)->property("source").toUrl().toString();
    }
    QColor middle() { return bench.window().grabWindow().pixelColor(20, 20); }
    static bool showsPicture(const QQuickItem *row, int index)
    {
        return source(row, index).startsWith(u"image://picture/round"_s);
    }

    const QUrl address{u"https://site.example/a%20b?x=1&y=é"_s};
    ScriptedFetcher fetcher;
    Bench bench;
};

TEST_F(AvatarTest, TwoAvatarsOfOneUserThatAppearTogetherCauseOneRequest)
{
    auto *row = show(person(u"Noam Talvère"_s, address));
    EXPECT_EQ(fetcher.calls.count(), 1);
    EXPECT_TRUE(source(row, 0).startsWith(u"image://icon/avatar"_s)) << "initials until then";
    fetcher.calls.last().finish({200, SamplePictures::picture("png", {64, 64}, Qt::green)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsPicture(row, 0) && showsPicture(row, 1); }));
    EXPECT_EQ(middle(), QColor(Qt::green));
    EXPECT_EQ(bench.window().grabWindow().pixelColor(1, 1), QColor(Qt::white))
        << "the corners are cut";
    EXPECT_EQ(bench.warnings(), "");
}

TEST_F(AvatarTest, APictureThatIsKnownIsThereInTheFirstFrame)
{
    fetcher.calls.answerWith({200, SamplePictures::picture("png", {64, 64}, Qt::green)});
    auto *row = show(person(u"Noam"_s, address));
    ASSERT_TRUE(QTest::qWaitFor([&] { return showsPicture(row, 0); }));
    row = show(person(u"Noam"_s, address));
    EXPECT_TRUE(showsPicture(row, 0));
    EXPECT_EQ(fetcher.calls.count(), 1);
}

TEST_F(AvatarTest, AfterARefusalTheInitialsStayAndALaterAppearanceAsksAgain)
{
    fetcher.calls.answerWith({404, {}});
    auto *row = show(person(u"Noam"_s, address));
    EXPECT_TRUE(QTest::qWaitFor([] { return ImageLoader::shared().pendingCount() == 0; }));
    EXPECT_FALSE(showsPicture(row, 0));
    const int before = fetcher.calls.count();
    show(person(u"Noam"_s, address));
    EXPECT_GT(fetcher.calls.count(), before);
    EXPECT_EQ(bench.warnings(), "");
}

TEST_F(AvatarTest, BytesThatAreNoPictureLeaveTheInitials)
{
    for (const auto &bytes :
         {QByteArray("<html>"), SamplePictures::pngClaiming({60000, 60000}),
          SamplePictures::picture("png").first(60), SamplePictures::iconHolding("nested")}) {
        fetcher.calls.answerWith({200, bytes});
        auto *row = show(person(u"Noam"_s, address));
        EXPECT_TRUE(QTest::qWaitFor([] { return ImageLoader::shared().pendingCount() == 0; }));
        EXPECT_TRUE(source(row, 0).startsWith(u"image://icon/avatar"_s));
    }
}

TEST_F(AvatarTest, AnotherAddressBeginsAnew)
{
    auto *row = show(person(u"Noam"_s, address));
    const QUrl other(u"https://site.example/2"_s);
    row->setProperty("person", QVariant::fromValue(person(u"Noam"_s, other)));
    ASSERT_EQ(fetcher.calls.count(), 2);
    fetcher.calls[1].finish({200, SamplePictures::picture("png", {64, 64}, Qt::green)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsPicture(row, 0); }));
    fetcher.calls[0].finish({200, SamplePictures::picture("png", {64, 64}, Qt::red)});
    EXPECT_TRUE(QTest::qWaitFor([] { return ImageLoader::shared().pendingCount() == 0; }));
    EXPECT_EQ(middle(), QColor(Qt::green)) << "the first one's answer came too late";
}

TEST_F(AvatarTest, WithoutAnAddressNothingIsAsked)
{
    auto *row = show(person(u"Noam"_s, std::nullopt));
    EXPECT_EQ(fetcher.calls.count(), 0);
    EXPECT_TRUE(source(row, 0).startsWith(u"image://icon/avatar"_s));
    EXPECT_TRUE(source(row, 2).startsWith(u"image://icon/nobody"_s));
}

TEST_F(AvatarTest, AUserWithAnEmptyNameShowsAQuestionMarkInTheColourOfItsId)
{
    auto *row = show(person(QString(), std::nullopt));
    EXPECT_TRUE(source(row, 0).contains(u"t=?"_s) || source(row, 0).contains(u"t=%3F"_s))
        << source(row, 0).toStdString();
    EXPECT_TRUE(
        source(row, 0).contains(IdentityColors::person(u"noam").name(QColor::HexArgb).mid(1)));
}

TEST(RoundPicture, FillsTheDiscFromTheMiddleOfThePicture)
{
    QImage wide(90, 30, QImage::Format_RGB32);
    wide.fill(Qt::red);
    for (int y = 0; y < 30; ++y) {
        for (int x = 30; x < 60; ++x)
            wide.setPixelColor(x, y, Qt::blue);
    }
    const auto disc = roundPicture(wide, 30);
    EXPECT_EQ(disc.size(), QSize(30, 30));
    EXPECT_EQ(disc.pixelColor(15, 15), QColor(Qt::blue));
    EXPECT_EQ(disc.pixelColor(2, 15), QColor(Qt::blue));
    EXPECT_EQ(disc.pixelColor(0, 0).alpha(), 0);
}
