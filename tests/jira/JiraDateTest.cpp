#include "jira/JiraDate.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QDateTime utc(int year, int month, int day, int hour, int minute, int second, int millisecond = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, millisecond), Qt::UTC);
}

TEST(JiraDate, ReadsWhatJiraSends)
{
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05.123+0100"_s),
              utc(2026, 10, 29, 13, 32, 5, 123));
}

TEST(JiraDate, GivesAnInstantInUTC)
{
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05.123+0100"_s)->timeSpec(), Qt::UTC);
}

TEST(JiraDate, ReadsAZoneWestOfGreenwichOverMidnight)
{
    EXPECT_EQ(JiraDate::parse(u"2026-12-31T21:15:00.000-0330"_s), utc(2027, 1, 1, 0, 45, 0));
}

TEST(JiraDate, ReadsISO8601WithoutAFraction)
{
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05Z"_s), utc(2026, 10, 29, 14, 32, 5));
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05+02:00"_s), utc(2026, 10, 29, 12, 32, 5));
}

TEST(JiraDate, KeepsMillisecondsOfALongerOrShorterFraction)
{
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05.5+0000"_s), utc(2026, 10, 29, 14, 32, 5, 500));
    EXPECT_EQ(JiraDate::parse(u"2026-10-29T14:32:05.123999999+0000"_s),
              utc(2026, 10, 29, 14, 32, 5, 123));
}

TEST(JiraDate, NoTextIsNoDate)
{
    EXPECT_EQ(JiraDate::parse(std::nullopt), std::nullopt);
    EXPECT_EQ(JiraDate::parseDay(std::nullopt), std::nullopt);
}

class UnreadableDate : public testing::TestWithParam<QString>
{
};

TEST_P(UnreadableDate, IsAbsent)
{
    EXPECT_EQ(JiraDate::parse(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    JiraDate, UnreadableDate,
    testing::Values(u""_s, u"hier"_s, u"2026-10-29"_s, u"2026-10-29T14:32:05"_s,
                    u"2026-10-29 14:32:05.123+0100"_s, u"2026-10-29T14:32:05.+0100"_s,
                    u"2026-10-29T14:32:05.123+01"_s, u"2026-10-29T14:32:05.123+2400"_s,
                    u"2026-10-29T14:32:05.123+0160"_s, u"2026-02-30T14:32:05.123+0100"_s,
                    u"2026-13-01T14:32:05.123+0100"_s, u"2026-10-29T24:00:00.000+0100"_s,
                    u"2026-10-29T14:60:05.123+0100"_s, u"2026-10-29T14:32:05.123+0100 "_s,
                    u" 2026-10-29T14:32:05.123+0100"_s, u"2026-10-29T14:32:05.123+0100x"_s,
                    u"٢٠٢٦-10-29T14:32:05.123+0100"_s, u"12026-10-29T14:32:05.123+0100"_s));

TEST(JiraDate, DayIsACalendarDay)
{
    EXPECT_EQ(JiraDate::parseDay(u"2026-10-29"_s), QDate(2026, 10, 29));
}

TEST(JiraDate, DayOfAnotherFormIsAbsent)
{
    for (const QString &text : {u""_s, u"2026-2-3"_s, u"2026-02-30"_s, u"29/10/2026"_s,
                                u"2026-10-29T00:00:00.000+0000"_s, u"2026-10-29 "_s})
        EXPECT_EQ(JiraDate::parseDay(text), std::nullopt) << text.toStdString();
}

TEST(JiraDate, DayIsWrittenAsItIsRead)
{
    EXPECT_EQ(JiraDate::dayText(QDate(2026, 3, 4)), u"2026-03-04"_s);
    EXPECT_EQ(JiraDate::parseDay(JiraDate::dayText(QDate(2026, 3, 4))), QDate(2026, 3, 4));
}

TEST(JiraDate, QueriesNameInstantsInTheZoneOfTheDevice)
{
    const QDateTime instant = utc(2026, 10, 25, 22, 0, 0);
    EXPECT_EQ(JiraDate::jql(instant, QTimeZone("Europe/Paris")), u"2026/10/25 23:00"_s);
    EXPECT_EQ(JiraDate::jql(instant, QTimeZone("Asia/Tokyo")), u"2026/10/26 07:00"_s);
}

} // namespace
