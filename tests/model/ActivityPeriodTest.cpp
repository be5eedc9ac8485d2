#include "model/ActivityPeriod.h"

#include "Samples.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto week = ActivityRange::Week;
constexpr auto month = ActivityRange::Month;

QDateTime thursday()
{
    return Samples::parisTime({2026, 10, 29}, {14, 32});
}

DateInterval interval(ActivityRange range, int offset, const QDateTime &now = thursday())
{
    return ActivityPeriod{range, offset, false}.interval(now, Samples::paris());
}

DateInterval days(const QDate &first, const QDate &next)
{
    return {Samples::parisTime(first), Samples::parisTime(next)};
}

QString title(ActivityRange range, int offset)
{
    return ActivityPeriod{range, offset, false}.title(thursday(), Samples::paris());
}

QString rangeLabel(ActivityRange range, int offset)
{
    return ActivityPeriod{range, offset, false}.rangeLabel(thursday(), Samples::paris());
}

TEST(ActivityInterval, OfTheCurrentPeriodContainsNow)
{
    EXPECT_EQ(interval(week, 0), days({2026, 10, 26}, {2026, 11, 2}));
    EXPECT_EQ(interval(month, 0), days({2026, 10, 1}, {2026, 11, 1}));
}

TEST(ActivityInterval, MovesByWholePeriods)
{
    EXPECT_EQ(interval(week, -5), days({2026, 9, 21}, {2026, 9, 28}));
    EXPECT_EQ(interval(month, -10), days({2025, 12, 1}, {2026, 1, 1}));
    EXPECT_EQ(interval(month, 2), days({2026, 12, 1}, {2027, 1, 1}));
}

TEST(ActivityInterval, OfAWeekWithAChangeOfClockHasAnHourMore)
{
    const DateInterval autumn = interval(week, -1);
    EXPECT_EQ(autumn, days({2026, 10, 19}, {2026, 10, 26}));
    EXPECT_EQ(autumn.start.secsTo(autumn.end), (7 * 24 + 1) * 3600);
}

TEST(ActivityInterval, FromTheLastDayOfALongMonthReachesTheShortOne)
{
    EXPECT_EQ(interval(month, -1, Samples::parisTime({2026, 3, 31}, {23, 0})),
              days({2026, 2, 1}, {2026, 3, 1}));
}

TEST(ActivityInterval, BeginsWeeksOnTheFirstDayOfTheLocale)
{
    const QDateTime sunday = Samples::parisTime({2026, 11, 1}, {12, 0});
    EXPECT_EQ(interval(week, 0, sunday), days({2026, 10, 26}, {2026, 11, 2}));
    UserCalendar american = Samples::paris();
    american.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ((ActivityPeriod{week, 0, false}.interval(sunday, american)),
              days({2026, 11, 1}, {2026, 11, 8}));
}

TEST(ActivityInterval, DependsOnTheUsersZone)
{
    const QDateTime lateSunday({2026, 11, 1}, {23, 30}, QTimeZone::utc());
    EXPECT_EQ(interval(week, 0, lateSunday), days({2026, 11, 2}, {2026, 11, 9}));
}

TEST(ActivityInterval, BeyondTheCalendarStaysUsable)
{
    for (const int offset : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        for (const ActivityRange range : {week, month}) {
            const DateInterval far = interval(range, offset);
            EXPECT_TRUE(far.start.isValid());
            EXPECT_LT(far.start, far.end);
        }
    }
}

TEST(ActivityTitle, NamesTheNearPeriods)
{
    EXPECT_EQ(title(week, 0), u"Cette semaine"_s);
    EXPECT_EQ(title(week, -1), u"Semaine dernière"_s);
    EXPECT_EQ(title(month, 0), u"Ce mois-ci"_s);
    EXPECT_EQ(title(month, -1), u"Le mois dernier"_s);
}

TEST(ActivityTitle, DatesTheOthers)
{
    EXPECT_EQ(title(week, -2), u"Semaine du 12 octobre"_s);
    EXPECT_EQ(title(week, 1), u"Semaine du 2 novembre"_s);
    EXPECT_EQ(title(month, -2), u"Août 2026"_s);
    EXPECT_EQ(title(month, -10), u"Décembre 2025"_s);
}

TEST(ActivityRangeLabel, OfTheCurrentMonthEndsOnItsLastDay)
{
    EXPECT_EQ(rangeLabel(month, 0), u"du 1 oct. au 31 oct. 2026"_s);
    EXPECT_EQ(rangeLabel(month, -8), u"du 1 févr. au 28 févr. 2026"_s);
}

TEST(ActivityRangeLabel, OfAWeekSpansMonthsAndYears)
{
    EXPECT_EQ(rangeLabel(week, 0), u"du 26 oct. au 1 nov. 2026"_s);
    EXPECT_EQ(rangeLabel(week, 9), u"du 28 déc. au 3 janv. 2027"_s);
}

} // namespace
