#include "screens/issues/board/CardCaptions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"WEB-1"_s;

QList<Caption> captionsOf(const CardContents &contents, bool isOverdue = false)
{
    CardStyle style;
    style.quiet = Qt::gray;
    style.late = Qt::red;
    const auto plan = cardPlan(contents, 280);
    return cardCaptions({key, contents, plan, style, isOverdue});
}

} // namespace

TEST(CardCaptions, ACardWithoutDueDateAndLabelsShowsItsKeyAlone)
{
    const auto captions = captionsOf({});

    ASSERT_EQ(captions.size(), 1);
    EXPECT_EQ(captions.first().text, key);
    EXPECT_EQ(captions.first().place, QPointF(12, 14)) << "in the middle of the upper line";
}

TEST(CardCaptions, ALateDateIsRed)
{
    const CardContents contents{.dueText = u"Hier"_s};

    EXPECT_EQ(captionsOf(contents, false)[1].color, QColor(Qt::gray));
    EXPECT_EQ(captionsOf(contents, true)[1].color, QColor(Qt::red));
}

TEST(CardCaptions, ANameThatDoesNotFitEndsWithinItsChip)
{
    const CardContents contents{
        .labels = {u"web"_s, u"une-étiquette-bien-trop-longue-pour-une-carte"_s}};
    const auto captions = captionsOf(contents);
    const auto plan = cardPlan(contents, 280);

    ASSERT_EQ(captions.size(), 3);
    EXPECT_EQ(captions[1].width, Caption::anyWidth);
    EXPECT_EQ(captions[2].width, plan.labels[1].width - 26);
}

TEST(CardCaptions, EachLineOfTheSummaryIsACaptionBelowThePreviousOne)
{
    const auto captions = captionsOf({.title = {u"Première ligne"_s, u"seconde"_s}});

    ASSERT_EQ(captions.size(), 3);
    EXPECT_EQ(captions[1].text, u"Première ligne");
    EXPECT_EQ(captions[1].place, QPointF(12, CardPlan::titleTop));
    EXPECT_EQ(captions[2].text, u"seconde");
    EXPECT_EQ(captions[2].place, QPointF(12, CardPlan::titleTop + 18));
}
