#include "screens/Bench.h"
#include "screens/kit/controls/CalendarMonth.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QLocale french(QLocale::French, QLocale::France);

int emptyPlaces(const QList<CalendarDay> &days)
{
    int count = 0;
    while (count < days.size() && days[count].number == 0)
        ++count;
    return count;
}

} // namespace

TEST(CalendarDays, OctoberTwentySixBeginsOnTheFourthPlaceOfAFrenchWeek)
{
    const auto days = calendarDays({2026, 10, 12}, french);
    EXPECT_EQ(emptyPlaces(days), 3);
    EXPECT_EQ(days.size(), 3 + 31);
    EXPECT_EQ(days.last(), (CalendarDay{31, u"2026-10-31"_s, u"samedi 31 octobre"_s}));
}

TEST(CalendarDays, AnAmericanWeekBeginsOnSunday)
{
    EXPECT_EQ(
        emptyPlaces(calendarDays({2026, 10, 1}, QLocale(QLocale::English, QLocale::UnitedStates))),
        4);
}

TEST(CalendarDays, FebruaryHasItsLeapDay)
{
    EXPECT_EQ(calendarDays({2028, 2, 1}, french).last().number, 29);
    EXPECT_EQ(calendarDays({2027, 2, 1}, french).last().number, 28);
    EXPECT_TRUE(calendarDays({}, french).isEmpty());
}

TEST(CalendarDays, TheLettersOfTheWeekAreTheLocales)
{
    EXPECT_EQ(weekdayLetters(french).join(u' '), u"L M M J V S D"_s);
}

TEST(CalendarMonth, ShowsTheMonthOfThePickedDayOrOfToday)
{
    CalendarMonth month(french, nullptr);
    month.setToday(u"2026-10-29"_s);
    EXPECT_EQ(month.title(), u"octobre 2026"_s);
    month.setDay(u"2027-02-03"_s);
    EXPECT_EQ(month.title(), u"février 2027"_s);
    month.turn(-3);
    EXPECT_EQ(month.title(), u"novembre 2026"_s);
    EXPECT_EQ(month.day(), u"2027-02-03"_s) << "turning picks nothing";
}

TEST(CalendarMonth, MovesByDaysWeeksAndMonths)
{
    CalendarMonth month(french, nullptr);
    month.setToday(u"2026-10-29"_s);
    month.moveDays(1);
    EXPECT_EQ(month.day(), u"2026-10-29"_s) << "the first move picks today";
    month.moveDays(3);
    EXPECT_EQ(month.day(), u"2026-11-01"_s);
    EXPECT_EQ(month.title(), u"novembre 2026"_s);
    month.setDay(u"2027-01-31"_s);
    month.moveMonths(1);
    EXPECT_EQ(month.day(), u"2027-02-28"_s);
    month.moveToWeekStart();
    EXPECT_EQ(month.day(), u"2027-02-22"_s);
    month.moveToWeekEnd();
    EXPECT_EQ(month.day(), u"2027-02-28"_s);
}

TEST(CalendarMonth, ATextThatIsNoDayIsNone)
{
    CalendarMonth month(french, nullptr);
    month.setDay(u"2026-10-31"_s);
    month.setDay(u"demain"_s);
    EXPECT_EQ(month.day(), QString());
}

TEST(DatePicker, IsWorkedByTheKeyboardAlone)
{
    Bench bench;
    auto *picker =
        bench.show(u"DatePicker { day: '2026-10-31'; today: '2026-10-29'; focus: true }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    QSignalSpy accepted(picker, SIGNAL(accepted()));
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&bench.window(), key);
        return picker->property("day").toString();
    };
    EXPECT_EQ(press(Qt::Key_Left), u"2026-10-30"_s);
    EXPECT_EQ(press(Qt::Key_Up), u"2026-10-23"_s);
    EXPECT_EQ(press(Qt::Key_Down), u"2026-10-30"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"2026-10-31"_s);
    EXPECT_EQ(press(Qt::Key_PageDown), u"2026-11-30"_s);
    EXPECT_EQ(press(Qt::Key_PageUp), u"2026-10-30"_s);
    EXPECT_EQ(press(Qt::Key_Home), u"2026-10-26"_s);
    EXPECT_EQ(press(Qt::Key_End), u"2026-11-01"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(DatePicker, AClickPicksADay)
{
    Bench bench;
    auto *picker = bench.show(u"DatePicker { day: '2026-10-31'; today: '2026-10-29' }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    // The 1st is in the fourth column of the first row.
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {14 + int(3.5 * 262 / 7), 74});
    EXPECT_EQ(picker->property("day").toString(), u"2026-10-01"_s);
    EXPECT_EQ(Bench::accessible(picker)->text(QAccessible::Name), u"Calendrier, octobre 2026"_s);
    EXPECT_EQ(bench.warnings(), "");
}
