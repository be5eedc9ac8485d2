#include "app/SingleInstance.h"

#include "support/ManualClock.h"

#include <QSignalSpy>
#include <QTest>
#include <QUuid>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SingleInstanceTest : public testing::Test
{
protected:
    QString profile = QUuid::createUuid().toString();
    ManualClock clock;
};

TEST_F(SingleInstanceTest, AProcessAloneIsTheFirst)
{
    SingleInstance alone(profile, clock);
    QSignalSpy first(&alone, &SingleInstance::isFirst);
    alone.start();
    EXPECT_EQ(first.count(), 1);
    clock.advance(1h);
    EXPECT_EQ(first.count(), 1);
}

TEST_F(SingleInstanceTest, ASecondOneAsksTheFirstToShowItself)
{
    const Activation activation{"jeton", "id\twith\nanything_TIME4711"};
    SingleInstance one(profile, clock);
    one.start();
    QSignalSpy asked(&one, &SingleInstance::asked);
    SingleInstance two(profile, clock);
    QSignalSpy first(&two, &SingleInstance::isFirst);
    QSignalSpy second(&two, &SingleInstance::isSecond);
    two.start({}, activation);
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.count() == 1; }));
    EXPECT_EQ(first.count(), 0);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.first().first().value<Activation>(), activation);
}

TEST_F(SingleInstanceTest, ASecondOnePassesOnWhatItWasAskedToOpen)
{
    const QByteArray request = "velmora:WEB-12\n\ttrailing \xC3\xA9";
    SingleInstance one(profile, clock);
    one.start();
    QSignalSpy asked(&one, &SingleInstance::asked);
    SingleInstance two(profile, clock);
    two.start(request);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked.count() == 1; }));
    EXPECT_EQ(asked.first().at(1).toByteArray(), request);
}

TEST_F(SingleInstanceTest, ARequestThatIsTooLongIsNotPassedOn)
{
    SingleInstance one(profile, clock);
    one.start();
    QSignalSpy asked(&one, &SingleInstance::asked);
    SingleInstance two(profile, clock);
    two.start(QByteArray(SingleInstance::LargestRequest + 1, 'x'));
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked.count() == 1; }));
    EXPECT_EQ(asked.first().at(1).toByteArray(), QByteArray());
}

TEST_F(SingleInstanceTest, ProfilesDoNotKnowOfEachOther)
{
    SingleInstance one(profile, clock);
    one.start();
    SingleInstance two(profile + u"2"_s, clock);
    QSignalSpy first(&two, &SingleInstance::isFirst);
    two.start();
    EXPECT_EQ(first.count(), 1);
}

TEST_F(SingleInstanceTest, AfterTheFirstHasEndedTheNextOneIsTheFirst)
{
    {
        SingleInstance one(profile, clock);
        one.start();
    }
    SingleInstance two(profile, clock);
    QSignalSpy first(&two, &SingleInstance::isFirst);
    two.start();
    EXPECT_EQ(first.count(), 1);
}

TEST_F(SingleInstanceTest, AFirstThatDoesNotAnswerCountsAsGone)
{
    // It has locked the profile, but its event loop does not run here.
    SingleInstance one(profile, clock);
    one.start();
    SingleInstance two(profile, clock);
    QSignalSpy first(&two, &SingleInstance::isFirst);
    two.start();
    clock.advance(1999ms);
    EXPECT_EQ(first.count(), 0);
    clock.advance(1ms);
    EXPECT_EQ(first.count(), 1);
}
