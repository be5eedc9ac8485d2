#include "platform/decoding/DecodingProtocol.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const DecodingRequest Picture{.kind = DecodingKind::Picture,
                              .source = 7,
                              .inputBytes = 1000,
                              .bound = {300, 200},
                              .mostPixels = 1'000'000};
const DecodingRequest Frame{
    .kind = DecodingKind::Frame, .source = 8, .inputBytes = 10, .index = 3, .mostPixels = 5000};
const DecodingRequest Pages{.kind = DecodingKind::Pages, .source = 9, .inputBytes = 10};
const DecodingRequest Page{
    .kind = DecodingKind::Page, .source = 9, .inputBytes = 10, .index = 2, .bound = {60, 80}};

DecodingAnswer done(QSize pixels, QSize whole = {10, 10})
{
    return {.status = DecodingStatus::Done, .pixels = pixels, .whole = whole};
}

bool isTaken(const DecodingAnswer &answer, const DecodingRequest &request)
{
    return answerIn(encoded(answer), request).has_value();
}

} // namespace

TEST(DecodingProtocol, RequestsAreReadAsTheyWereWritten)
{
    for (const auto &request : {Picture, Frame, Pages, Page}) {
        ASSERT_EQ(encoded(request).size(), RequestBytes);
        EXPECT_EQ(requestIn(encoded(request)), request);
    }
}

TEST(DecodingProtocol, AnswersAreReadAsTheyWereWritten)
{
    DecodingAnswer answer = done({20, 10}, {400, 200});
    answer.isLast = answer.isAnimated = answer.hasAlpha = true;
    answer.delay = 40;
    answer.pageCount = 3;
    ASSERT_EQ(encoded(answer).size(), AnswerBytes);
    EXPECT_EQ(answerIn(encoded(answer), Frame), answer);
}

TEST(DecodingProtocol, AnotherVersionOrLengthIsNotRead)
{
    QByteArray request = encoded(Picture);
    QByteArray answer = encoded(done({10, 10}));
    EXPECT_FALSE(requestIn(request.chopped(1)));
    EXPECT_FALSE(answerIn(answer + '\0', Picture));
    request[3] = answer[3] = 2;
    EXPECT_FALSE(requestIn(request));
    EXPECT_FALSE(answerIn(answer, Picture));
}

TEST(DecodingProtocol, ARequestForNothingPossibleIsNotRead)
{
    auto request = Picture;
    request.bound = {70000, 1};
    EXPECT_FALSE(requestIn(encoded(request)));
    request.bound = {0, 10};
    EXPECT_FALSE(requestIn(encoded(request)));
    request = Picture;
    request.inputBytes = 0;
    EXPECT_FALSE(requestIn(encoded(request)));
    request = Frame;
    request.index = -1;
    EXPECT_FALSE(requestIn(encoded(request)));
    request = Frame;
    request.mostPixels = 0;
    EXPECT_FALSE(requestIn(encoded(request)));
    request.mostPixels = (1LL << 62) + 1;
    EXPECT_FALSE(requestIn(encoded(request))) << "the size of its result is 4 in 64 bits";
}

TEST(DecodingProtocol, PixelsThatDoNotFitTheRequestAreRefused)
{
    EXPECT_TRUE(isTaken(done({300, 200}), Picture));
    EXPECT_FALSE(isTaken(done({301, 200}), Picture));
    EXPECT_FALSE(isTaken(done({300, 201}), Picture));
    EXPECT_FALSE(isTaken(done({0, 0}), Picture));
    EXPECT_FALSE(isTaken(done({-5, -5}), Picture));

    EXPECT_TRUE(isTaken(done({100, 50}), Frame));
    EXPECT_FALSE(isTaken(done({100, 51}), Frame));
    EXPECT_FALSE(isTaken(done({65536, 65536}), Frame)) << "their product is 0 in 32 bits";
    EXPECT_FALSE(isTaken(done({10, 10}, {0, 0}), Frame));

    EXPECT_TRUE(isTaken(done({60, 80}), Page));
    EXPECT_FALSE(isTaken(done({60, 79}), Page));
}

TEST(DecodingProtocol, DelaysAndNumbersOfPagesAreBounded)
{
    auto answer = done({10, 10});
    answer.delay = -1;
    EXPECT_FALSE(isTaken(answer, Frame));
    answer.delay = std::numeric_limits<int>::max();
    EXPECT_FALSE(isTaken(answer, Frame));
    EXPECT_FALSE(isTaken({.status = DecodingStatus::Done, .pageCount = 0}, Pages));
    EXPECT_TRUE(isTaken({.status = DecodingStatus::Done, .pageCount = 5000}, Pages));
    EXPECT_FALSE(isTaken({.status = DecodingStatus::Done, .pageCount = -1}, Pages));
    answer = done({10, 10});
    answer.pageCount = -1;
    EXPECT_FALSE(isTaken(answer, Picture)) << "nobody asked for it";
}

TEST(DecodingProtocol, AFailureNeedsNoPixels)
{
    EXPECT_TRUE(isTaken({.status = DecodingStatus::Unreadable}, Picture));
    EXPECT_TRUE(isTaken({.status = DecodingStatus::End}, Frame));
    EXPECT_TRUE(isTaken({.status = DecodingStatus::TooLarge, .whole = {60000, 60000}}, Frame));
    EXPECT_FALSE(isTaken({.status = DecodingStatus::TooLarge}, Frame)) << "its size is told";
    EXPECT_FALSE(isTaken({.status = DecodingStatus(9)}, Frame));
}

TEST(DecodingProtocol, SizesOfPagesThatAreNotPossibleAreEmpty)
{
    constexpr double Infinite = std::numeric_limits<double>::infinity();
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    const QList<QSizeF> pages{{200, 100}, {-1, 5}, {Infinite, 5}, {None, 5}, {1e9, 1}};
    EXPECT_EQ(pagesIn(encodedPages(pages)), QList<QSizeF>({{200, 100}, {}, {}, {}, {}}));
}
