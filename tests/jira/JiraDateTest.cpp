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
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05.123+0100"), utc(2026, 10, 29, 13, 32, 5, 123));
}

TEST(JiraDate, GivesAnInstantInUTC)
{
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05.123+0100")->timeSpec(), Qt::UTC);
}

TEST(JiraDate, ReadsAZoneWestOfGreenwichOverMidnight)
{
    EXPECT_EQ(JiraDate::parse("2026-12-31T21:15:00.000-0330"), utc(2027, 1, 1, 0, 45, 0));
}

TEST(JiraDate, ReadsISO8601WithoutAFraction)
{
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05Z"), utc(2026, 10, 29, 14, 32, 5));
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05+02:00"), utc(2026, 10, 29, 12, 32, 5));
}

TEST(JiraDate, KeepsMillisecondsOfALongerOrShorterFraction)
{
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05.5+0000"), utc(2026, 10, 29, 14, 32, 5, 500));
    EXPECT_EQ(JiraDate::parse("2026-10-29T14:32:05.123999999+0000"),
              utc(2026, 10, 29, 14, 32, 5, 123));
}

class UnreadableDate : public testing::TestWithParam<std::string_view>
{
};

TEST_P(UnreadableDate, IsAbsent)
{
    EXPECT_EQ(JiraDate::parse(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    JiraDate, UnreadableDate,
    testing::Values("", "hier", "2026-10-29", "2026-10-29T14:32:05", "2026-10-29 14:32:05.123+0100",
                    "2026-10-29T14:32:05.+0100", "2026-10-29T14:32:05.123+01",
                    "2026-10-29T14:32:05.123+2400", "2026-10-29T14:32:05.123+0160",
                    "2026-02-30T14:32:05.123+0100", "2026-13-01T14:32:05.123+0100",
                    "2026-10-29T24:00:00.000+0100", "2026-10-29T14:60:05.123+0100",
                    "2026-10-29T14:32:05.123+0100 ", " 2026-10-29T14:32:05.123+0100",
                    "2026-10-29T14:32:05.123+0100x", "٢٠٢٦-10-29T14:32:05.123+0100",
                    "12026-10-29T14:32:05.123+0100"));

TEST(JiraDate, DayIsACalendarDay)
{
    EXPECT_EQ(JiraDate::parseDay("2026-10-29"), QDate(2026, 10, 29));
}

TEST(JiraDate, DayOfAnotherFormIsAbsent)
{
    for (const std::string_view text : {"", "2026-2-3", "2026-02-30", "29/10/2026",
                                        "2026-10-29T00:00:00.000+0000", "2026-10-29 "})
        EXPECT_EQ(JiraDate::parseDay(text), std::nullopt) << text;
}

TEST(JiraDate, DayIsWrittenAsItIsRead)
{
    EXPECT_EQ(JiraDate::dayText(QDate(2026, 3, 4)), u"2026-03-04"_s);
    EXPECT_EQ(JiraDate::parseDay(JiraDate::dayText(QDate(2026, 3, 4)).toStdString()),
              QDate(2026, 3, 4));
}

TEST(JiraDate, QueriesNameInstantsInTheZoneOfTheDevice)
{
    const QDateTime instant = utc(2026, 10, 25, 22, 0, 0);
    EXPECT_EQ(JiraDate::jql(instant, QTimeZone("Europe/Paris")), u"2026/10/25 23:00"_s);
    EXPECT_EQ(JiraDate::jql(instant, QTimeZone("Asia/Tokyo")), u"2026/10/26 07:00"_s);
}

} // namespace
