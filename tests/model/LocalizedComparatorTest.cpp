#include "model/LocalizedComparator.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QLocale &french()
{
    static const QLocale locale(QLocale::French, QLocale::France);
    return locale;
}

QStringList sorted(QStringList names, const QLocale &locale)
{
    std::ranges::sort(names, LocalizedComparator(locale));
    return names;
}

TEST(LocalizedComparator, PutsAccentedNamesAmongTheOthers)
{
    const QStringList names{u"Zoé"_s,  u"Étienne"_s, u"eric"_s, u"Œuvre"_s,
                            u"Ozer"_s, u"adam"_s,    u"Ola"_s};
    const QStringList expected{u"adam"_s, u"eric"_s, u"Étienne"_s, u"Œuvre"_s,
                               u"Ola"_s,  u"Ozer"_s, u"Zoé"_s};
    EXPECT_EQ(sorted(names, french()), expected);
}

TEST(LocalizedComparator, WorksWithoutALanguageOfTheSystem)
{
    EXPECT_EQ(sorted({u"Zoé"_s, u"étienne"_s, u"Eric"_s}, QLocale::c()),
              (QStringList{u"Eric"_s, u"étienne"_s, u"Zoé"_s}));
}

TEST(LocalizedComparator, FollowsTheLanguage)
{
    const QLocale swedish(QLocale::Swedish, QLocale::Sweden);
    EXPECT_EQ(sorted({u"Öl"_s, u"Zon"_s}, swedish), (QStringList{u"Zon"_s, u"Öl"_s}));
    EXPECT_EQ(sorted({u"Öl"_s, u"Zon"_s}, french()), (QStringList{u"Öl"_s, u"Zon"_s}));
}

TEST(LocalizedComparator, FindsTextsEqualThatDifferInCase)
{
    EXPECT_EQ(localizedCompare(u"ÉLODIE"_s, u"élodie"_s, french()), 0);
}

TEST(LocalizedComparator, LetsAccentsDecideOnlyBetweenOtherwiseEqualTexts)
{
    EXPECT_LT(localizedCompare(u"cote"_s, u"côté"_s, french()), 0);
    EXPECT_GT(localizedCompare(u"Élodie"_s, u"Elodie"_s, french()), 0);
    EXPECT_LT(localizedCompare(u"Élodie A"_s, u"Elodie B"_s, french()), 0);
}

TEST(LocalizedComparator, KeysAreInTheOrderOfTheTexts)
{
    const QStringList texts{u"zoé"_s,   u"Étienne"_s, u"etienne"_s, u"Eric"_s,
                            u"Œuvre"_s, u"côté"_s,    QString()};
    const LocalizedComparator comparator(french());
    for (const QString &a : texts) {
        for (const QString &b : texts)
            EXPECT_EQ(comparator.key(a) < comparator.key(b), comparator(a, b))
                << a.toStdString() << b.toStdString();
    }
}

} // namespace
