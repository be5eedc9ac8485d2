#include "model/dates/DateParts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDate halloween(2026, 10, 31);

QLocale locale(QLatin1StringView name)
{
    return QLocale(QString(name));
}

TEST(DateParts, AreInFrenchOrder)
{
    const QLocale french = locale("fr_FR"_L1);
    EXPECT_EQ(dayAndShortMonth(halloween, french), u"31 oct."_s);
    EXPECT_EQ(dayAndShortMonth(QDate(2026, 5, 1), french), u"1 mai"_s);
    EXPECT_EQ(dayAndMonth(halloween, french), u"31 octobre"_s);
    EXPECT_EQ(dayShortMonthAndYear(halloween, french), u"31 oct. 2026"_s);
    EXPECT_EQ(monthAndYear(halloween, french), u"octobre 2026"_s);
}

TEST(DateParts, FollowTheOrderOfOtherLanguages)
{
    EXPECT_EQ(dayAndShortMonth(halloween, locale("en_US"_L1)), u"Oct 31"_s);
    EXPECT_EQ(dayShortMonthAndYear(halloween, locale("en_US"_L1)), u"Oct 31, 2026"_s);
    EXPECT_EQ(dayAndMonth(halloween, locale("en_GB"_L1)), u"31 October"_s);
    EXPECT_EQ(dayAndMonth(halloween, locale("de_DE"_L1)), u"31. Oktober"_s);
    EXPECT_EQ(dayAndMonth(halloween, locale("es_ES"_L1)), u"31 de octubre"_s);
    EXPECT_EQ(monthAndYear(halloween, locale("es_ES"_L1)), u"octubre de 2026"_s);
    EXPECT_EQ(dayAndShortMonth(halloween, locale("ja_JP"_L1)), u"10月31日"_s);
    EXPECT_EQ(dayShortMonthAndYear(halloween, locale("ja_JP"_L1)), u"2026年10月31日"_s);
}

TEST(DateParts, UseTheStandingFormOfAMonthWithoutDay)
{
    EXPECT_EQ(dayAndMonth(halloween, locale("ru_RU"_L1)), u"31 октября"_s);
    EXPECT_TRUE(monthAndYear(halloween, locale("ru_RU"_L1)).startsWith(u"октябрь 2026"_s));
}

TEST(DateParts, OfAnInvalidDateAreEmpty)
{
    EXPECT_EQ(dayAndShortMonth(QDate(), locale("fr_FR"_L1)), QString());
}

TEST(CapitalizedWords, RaiseTheFirstLetterOfEachWord)
{
    EXPECT_EQ(capitalizedWords(u"décembre 2026"_s, locale("fr_FR"_L1)), u"Décembre 2026"_s);
    EXPECT_EQ(capitalizedWords(u"août"_s, locale("fr_FR"_L1)), u"Août"_s);
    EXPECT_EQ(capitalizedWords(u"été INDIEN"_s, locale("fr_FR"_L1)), u"Été Indien"_s);
}

} // namespace
