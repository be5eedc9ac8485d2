#include "platform/ProcessFigures.h"

#include <QByteArrayList>
#include <QFile>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

TEST(ProcessFiguresTest, TheAgeIsThatOfThisProcessAndNotOfTheMachine)
{
    const auto age = ProcessFigures::age();
    ASSERT_TRUE(age.has_value());
    QFile file(QStringLiteral("/proc/uptime"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::chrono::duration<double> machine(file.readAll().split(' ').first().toDouble());
    EXPECT_GE(*age, 0ms);
    EXPECT_LT(*age, machine);
    EXPECT_GE(*ProcessFigures::age(), *age);
}

TEST(ProcessFiguresTest, MemoryThatIsUsedCounts)
{
    const auto before = ProcessFigures::residentBytes();
    ASSERT_TRUE(before.has_value());
    constexpr qsizetype size = 64'000'000;
    const QByteArray used(size, 'x');
    EXPECT_GE(*ProcessFigures::residentBytes() - *before, size / 2);
    EXPECT_EQ(used.back(), 'x');
}

} // namespace
