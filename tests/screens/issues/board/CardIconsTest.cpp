#include "screens/issues/board/CardIcons.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Card
{
    Issue issue;
    CardStyle style;

    std::vector<PlacedPicture> pictures(const CardContents &contents, HotSpot hotSpot = {}) const
    {
        const auto plan = cardPlan(contents, 280);
        return cardIcons(
            {.issue = issue, .plan = plan, .style = style, .hotSpot = std::move(hotSpot)});
    }
};

} // namespace

TEST(CardIcons, ABareCardShowsAssigneeAndPriority)
{
    const Card card;
    const auto pictures = card.pictures({});

    ASSERT_EQ(pictures.size(), 3u);
    EXPECT_EQ(pictures[0].place, QPointF(280 - 12 - 18, 12)) << "nobody ends with the text";
    EXPECT_EQ(pictures[1].place.x(), 12) << "the outline of the priority";
    EXPECT_EQ(pictures[2].place, pictures[1].place + QPointF(5, 4)) << "the priority in it";
}

TEST(CardIcons, TypeDueDateAndTwoLabelsEachHaveOne)
{
    Card card;
    card.issue.type = IssueType{u"1"_s, u"Bug"_s};
    card.issue.labels = {u"a"_s, u"b"_s, u"c"_s};

    const auto pictures = card.pictures({.hasType = true,
                                         .labels = card.issue.labels,
                                         .dueText = u"Demain"_s,
                                         .title = {u"Titre"_s}});

    EXPECT_EQ(pictures.size(), 3u + 1 + 1 + 2);
}

TEST(CardIcons, TheCellUnderThePointerHasAFillBelowAllElse)
{
    const Card card;
    const QRectF cell(12, 46, 22, 20);

    const auto pictures = card.pictures({}, {cell, {}, PickerKind::Priority});

    ASSERT_EQ(pictures.size(), 4u);
    EXPECT_EQ(pictures.front().place, cell.topLeft());
    EXPECT_EQ(pictures.front().key.size, cell.size());
    EXPECT_EQ(card.pictures({}, {cell, u"Bug"_s}).size(), 3u) << "a hint alone fills nothing";
}
