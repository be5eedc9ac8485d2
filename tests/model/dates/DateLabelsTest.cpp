#include "model/dates/DateLabels.h"

#include "model/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QDateTime now()
{
    return Samples::parisTime({2026, 10, 29}, {14, 32});
}

QString ago(qint64 seconds)
{
    return compactRelative(now().addSecs(-seconds), now(), Samples::paris());
}

QString due(const QDate &day)
{
    return dueLabel(day, now(), Samples::paris());
}

TEST(CompactRelative, InTheFutureIsNow)
{
    EXPECT_EQ(ago(-1), u"à l'instant"_s);
    EXPECT_EQ(ago(-864000), u"à l'instant"_s);
}

TEST(CompactRelative, ChangesUnitAtItsLimits)
{
    EXPECT_EQ(ago(0), u"à l'instant"_s);
    EXPECT_EQ(ago(59), u"à l'instant"_s);
    EXPECT_EQ(ago(60), u"1 min"_s);
    EXPECT_EQ(ago(3599), u"59 min"_s);
    EXPECT_EQ(ago(3600), u"1 h"_s);
    EXPECT_EQ(ago(86399), u"23 h"_s);
    EXPECT_EQ(ago(86400), u"1 j"_s);
    EXPECT_EQ(ago(604799), u"6 j"_s);
    EXPECT_EQ(ago(604800), u"22 oct."_s);
}

TEST(CompactRelative, DropsFractions)
{
    EXPECT_EQ(compactRelative(now().addMSecs(-59999), now(), Samples::paris()), u"à l'instant"_s);
    EXPECT_EQ(ago(119), u"1 min"_s);
    EXPECT_EQ(ago(7199), u"1 h"_s);
}

TEST(CompactRelative, PrintsOldDatesInTheUsersZoneAndLanguage)
{
    const QDateTime lateEvening = QDateTime({2026, 9, 30}, {23, 0}, QTimeZone::utc());
    EXPECT_EQ(compactRelative(lateEvening, now(), Samples::paris()), u"1 oct."_s);
    EXPECT_EQ(compactRelative(lateEvening, now(), Samples::newYork()), u"Sep 30"_s);
}

TEST(DueLabel, NamesTheDaysAroundToday)
{
    EXPECT_EQ(due({2026, 10, 28}), u"Hier"_s);
    EXPECT_EQ(due({2026, 10, 29}), u"Aujourd'hui"_s);
    EXPECT_EQ(due({2026, 10, 30}), u"Demain"_s);
}

TEST(DueLabel, PrintsOtherDaysWithoutTheYear)
{
    EXPECT_EQ(due({2026, 10, 27}), u"27 oct."_s);
    EXPECT_EQ(due({2026, 10, 31}), u"31 oct."_s);
    EXPECT_EQ(due({2026, 11, 1}), u"1 nov."_s);
    EXPECT_EQ(due({2027, 10, 29}), u"29 oct."_s);
}

TEST(DueLabel, TodayEndsAtTheUsersMidnight)
{
    const QDateTime justBefore = Samples::parisTime({2026, 10, 29}, {23, 59, 59});
    EXPECT_EQ(dueLabel({2026, 10, 29}, justBefore, Samples::paris()), u"Aujourd'hui"_s);
    EXPECT_EQ(dueLabel({2026, 10, 29}, justBefore.addSecs(1), Samples::paris()), u"Hier"_s);
    EXPECT_EQ(dueLabel({2026, 10, 29}, justBefore.addSecs(1), Samples::newYork()),
              u"Aujourd'hui"_s);
}

TEST(WeekdayDayMonthAndTime, IsInTheUsersZoneAndLanguage)
{
    const QDateTime instant({2026, 10, 29}, {13, 32}, QTimeZone::utc());
    EXPECT_EQ(weekdayDayMonthAndTime(instant, Samples::paris()), u"jeudi 29 octobre à 14:32"_s);
    EXPECT_EQ(weekdayDayMonthAndTime(instant, Samples::newYork()),
              u"Thursday, October 29, 9:32 AM"_s);
}

} // namespace
