#include "model/dates/UserCalendar.h"

#include "model/Samples.h"

#include <gtest/gtest.h>

namespace {

TEST(UserCalendar, OfASystemWithoutLanguageIsFrench)
{
    EXPECT_EQ(UserCalendar::localeFor(QLocale::c()), QLocale(QLocale::French, QLocale::France));
}

TEST(UserCalendar, OfASystemWithALanguageIsTheSystems)
{
    const QLocale quebec(QLocale::French, QLocale::Canada);
    EXPECT_EQ(UserCalendar::localeFor(quebec), quebec);
}

TEST(UserCalendar, OfTheSystemSpeaksFrenchUnderTheseTests)
{
    // The tests run twice: in a locale without a language, and in French.
    const UserCalendar calendar = UserCalendar::system();
    EXPECT_EQ(calendar.locale.language(), QLocale::French);
    EXPECT_EQ(calendar.locale.firstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(calendar.zone, QTimeZone::systemTimeZone());
}

TEST(UserCalendar, TellsTheDayInTheUsersZone)
{
    const QDateTime instant({2026, 10, 29}, {23, 30}, QTimeZone::utc());
    EXPECT_EQ(Samples::paris().day(instant), QDate(2026, 10, 30));
    EXPECT_EQ(Samples::newYork().day(instant), QDate(2026, 10, 29));
}

TEST(UserCalendar, StartsADayAtItsFirstInstantInUtc)
{
    const QDateTime start = Samples::paris().startOfDay(QDate(2026, 10, 29));
    EXPECT_EQ(start, QDateTime({2026, 10, 28}, {23, 0}, QTimeZone::utc()));
    EXPECT_EQ(start.timeSpec(), Qt::UTC);
}

TEST(UserCalendar, StartsADayWithoutMidnightAtItsFirstHour)
{
    const UserCalendar santiago{QLocale::c(), QTimeZone("America/Santiago")};
    const QDateTime start = santiago.startOfDay(QDate(2026, 9, 6));
    EXPECT_EQ(start, QDateTime({2026, 9, 6}, {4, 0}, QTimeZone::utc()));
}

TEST(DateInterval, IsOpenAtItsEnd)
{
    const DateInterval interval{QDateTime({2026, 10, 29}, {0, 0}, QTimeZone::utc()),
                                QDateTime({2026, 10, 30}, {0, 0}, QTimeZone::utc())};
    EXPECT_TRUE(interval.contains(interval.start));
    EXPECT_FALSE(interval.contains(interval.end));
    EXPECT_TRUE(interval.contains(interval.end.addMSecs(-1)));
    EXPECT_FALSE(interval.contains(interval.start.addMSecs(-1)));
}

} // namespace
