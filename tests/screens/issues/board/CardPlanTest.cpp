#include "screens/issues/board/CardPlan.h"

#include "screens/issues/list/RowFit.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double width = 280;
constexpr double edge = width - 12;
constexpr double oneLine = 18;

CardContents contents()
{
    CardContents card;
    card.title = {u"Titre"_s};
    return card;
}

double widthOf(const QString &label)
{
    return RowFitting::labelsWidth({label});
}

} // namespace

TEST(CardPlan, TheThreePartsStandEightApartWithTwelveAround)
{
    const auto plan = cardPlan(contents(), width);

    EXPECT_EQ(CardPlan::titleTop, 12 + 18 + 8);
    EXPECT_EQ(plan.foot, CardPlan::titleTop + oneLine + 8);
    EXPECT_EQ(plan.height, plan.foot + 20 + 12);
}

TEST(CardPlan, EachLineOfTheSummaryMakesTheCardHigher)
{
    auto card = contents();
    card.title = {u"Un"_s, u"deux"_s, u"trois"_s};

    EXPECT_EQ(cardPlan(card, width).height, cardPlan(contents(), width).height + 2 * oneLine);
}

TEST(CardPlan, WithoutATypeTheKeyStandsInItsPlace)
{
    auto card = contents();
    EXPECT_EQ(cardPlan(card, width).type, CardPlan::absent);
    EXPECT_EQ(cardPlan(card, width).key, 12);

    card.hasType = true;
    EXPECT_EQ(cardPlan(card, width).type, 12);
    EXPECT_EQ(cardPlan(card, width).key, 12 + 13 + 6);
}

TEST(CardPlan, TheAssigneesPictureEndsWithTheText)
{
    const auto cell = cardPlan(contents(), width).assignee;

    EXPECT_EQ(cell.size(), QSizeF(22, 22));
    EXPECT_EQ(cell.right() - 2, edge);
    EXPECT_EQ(cell.center().y(), 12 + 9);
}

TEST(CardPlan, WithoutADueDateThereIsNoBadgeAndTheLabelsMoveLeftToFillTheSpace)
{
    auto card = contents();
    card.labels = {u"web"_s};
    const auto without = cardPlan(card, width);
    EXPECT_EQ(without.due, CardPlan::absent);
    EXPECT_EQ(without.labels.first().x, 12 + 22 + 6);

    card.dueText = u"24 déc."_s;
    const auto with = cardPlan(card, width);
    EXPECT_EQ(with.due, without.labels.first().x);
    EXPECT_EQ(with.labels.first().x, with.due + with.dueWidth + 6);
}

TEST(CardPlan, OnlyTheFirstTwoLabelsShow)
{
    auto card = contents();
    card.labels = {u"a"_s, u"b"_s, u"c"_s};

    EXPECT_EQ(cardPlan(card, width).labels.size(), 2);
}

TEST(CardPlan, LabelsThatFitHaveTheirOwnWidths)
{
    auto card = contents();
    card.labels = {u"api"_s, u"web"_s};
    const auto labels = cardPlan(card, width).labels;

    EXPECT_EQ(labels[0].width, widthOf(u"api"_s));
    EXPECT_EQ(labels[1].x, labels[0].x + labels[0].width + 6);
    EXPECT_EQ(labels[1].width, widthOf(u"web"_s));
}

TEST(CardPlan, TheLastLabelGivesWayToTheEdge)
{
    auto card = contents();
    card.labels = {u"internationalisation"_s, u"documentation-technique"_s};
    const auto labels = cardPlan(card, width).labels;

    EXPECT_EQ(labels[0].width, widthOf(u"internationalisation"_s));
    EXPECT_LT(labels[1].width, widthOf(u"documentation-technique"_s));
    EXPECT_EQ(labels[1].x + labels[1].width, edge);
}

TEST(CardPlan, ALongFirstLabelLeavesTheSecondRoomForItsDotWithinTheCard)
{
    auto card = contents();
    card.dueText = u"Aujourd'hui"_s;
    card.labels = {u"une-étiquette-bien-trop-longue-pour-une-carte"_s, u"b"_s};
    const auto labels = cardPlan(card, width).labels;

    EXPECT_EQ(labels[1].width, 26);
    EXPECT_EQ(labels[1].x + labels[1].width, edge);
    EXPECT_EQ(labels[0].x + labels[0].width + 6, labels[1].x);
}
