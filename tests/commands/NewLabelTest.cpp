#include "commands/NewLabel.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using enum LabelComparison;

namespace {

QList<OptionItem> labels(const QStringList &titles)
{
    QList<OptionItem> items;
    for (const QString &title : titles)
        items.append({.id = title, .title = title});
    return items;
}

constexpr std::array comparisons{AsTyped, AsMade};

} // namespace

TEST(NewLabel, BlanksOnlyMakeNothing)
{
    for (const auto comparison : comparisons) {
        EXPECT_EQ(newLabel(u" \t\n "_s, labels({u"auth"_s}), comparison), std::nullopt);
        EXPECT_EQ(newLabel({}, {}, comparison), std::nullopt);
    }
}

TEST(NewLabel, OnlyBlanksBecomeHyphensAndTheOuterOnesGo)
{
    for (const auto comparison : comparisons) {
        EXPECT_EQ(newLabel(u"  a  b\tc "_s, {}, comparison), u"a--b\tc"_s);
        EXPECT_EQ(newLabel(u"été"_s, {}, comparison), u"été"_s);
    }
}

TEST(NewLabel, ALabelThatExistsInAnyCaseIsNotMadeAgain)
{
    for (const auto comparison : comparisons) {
        EXPECT_EQ(newLabel(u" AUTH "_s, labels({u"ios"_s, u"auth"_s}), comparison), std::nullopt);
        EXPECT_EQ(newLabel(u"au"_s, labels({u"auth"_s}), comparison), u"au"_s);
    }
}

TEST(NewLabel, AccentsTellTwoLabelsApart)
{
    for (const auto comparison : comparisons)
        EXPECT_EQ(newLabel(u"été"_s, labels({u"ete"_s}), comparison), u"été"_s);
}

TEST(NewLabel, ALigatureTellsTwoLabelsApartThoughEachIsFoundByTheOther)
{
    for (const auto comparison : comparisons)
        EXPECT_EQ(newLabel(u"oeuvre"_s, labels({u"œuvre"_s}), comparison), u"oeuvre"_s);
}

TEST(NewLabel, WhatIsComparedIsTheLabelOrTheTypedWords)
{
    EXPECT_EQ(newLabel(u"bug fix"_s, labels({u"BUG-FIX"_s}), AsMade), std::nullopt);
    EXPECT_EQ(newLabel(u"bug fix"_s, labels({u"BUG-FIX"_s}), AsTyped), u"bug-fix"_s);
    EXPECT_EQ(newLabel(u"bug fix"_s, labels({u"Bug fix"_s}), AsMade), u"bug-fix"_s);
    EXPECT_EQ(newLabel(u"bug fix"_s, labels({u"Bug fix"_s}), AsTyped), std::nullopt);
}

TEST(NewLabel, ItsRowNamesItBetweenGuillemets)
{
    EXPECT_EQ(newLabelTitle(u"dette-tech"_s), u"Créer l'étiquette « dette-tech »"_s);
}
