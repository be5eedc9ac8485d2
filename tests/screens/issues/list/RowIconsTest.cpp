#include "screens/issues/list/RowIcons.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue labelled(qsizetype count)
{
    Issue issue;
    issue.key = u"MOB-1"_s;
    for (qsizetype i = 0; i < count; ++i)
        issue.labels += u"label %1"_s.arg(i);
    return issue;
}

std::vector<PlacedPicture> picturesOf(const Issue &issue, const RowPlan &plan,
                                      bool isOverdue = false)
{
    RowStyle style;
    style.quiet = Qt::gray;
    style.late = Qt::red;
    style.ink = Qt::black;
    style.faint = Qt::lightGray;
    return rowIcons(
        {.issue = issue, .plan = plan, .style = style, .isOverdue = isOverdue, .height = 38});
}

auto countOfSize(const std::vector<PlacedPicture> &pictures, QSizeF size)
{
    return std::ranges::count_if(
        pictures, [size](const PlacedPicture &picture) { return picture.key.size == size; });
}

RowPlan statusOnly()
{
    RowPlan plan;
    plan.status = 36;
    return plan;
}

} // namespace

TEST(RowIcons, ARowWithoutItsOptionalColumnsShowsTheStatusAlone)
{
    const auto pictures = picturesOf(labelled(0), statusOnly());

    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures.front().place, QPointF(40, 12)) << "in the middle of its cell";
}

TEST(RowIcons, AtMostFourDotsStandForLabels)
{
    auto plan = statusOnly();
    plan.labels = 500;
    plan.showsLabelNames = false;

    EXPECT_EQ(countOfSize(picturesOf(labelled(5), plan), {7, 7}), 4);
    EXPECT_EQ(countOfSize(picturesOf(labelled(3), plan), {7, 7}), 3);
}

TEST(RowIcons, TwoLabelsHaveChips)
{
    auto plan = statusOnly();
    plan.labels = 500;
    const auto pictures = picturesOf(labelled(5), plan);

    ASSERT_EQ(pictures.size(), 3u);
    EXPECT_EQ(pictures[1].place.x(), 500);
    EXPECT_EQ(pictures[2].place.x(), 500 + pictures[1].key.size.width() + 4);
}

TEST(RowIcons, AnIssueWithoutATypeLeavesItsColumnEmpty)
{
    auto plan = statusOnly();
    plan.type = 68;
    Issue issue = labelled(0);

    EXPECT_EQ(picturesOf(issue, plan).size(), 1u);
    issue.type = IssueType{u"1"_s, u"Bug"_s};
    EXPECT_EQ(picturesOf(issue, plan).size(), 2u);
}

TEST(RowIcons, ALateDueDateIsAnotherPictureThanOneToCome)
{
    auto plan = statusOnly();
    plan.due = 700;
    plan.dueWidth = 80;
    const auto late = picturesOf(labelled(0), plan, true).back().key;
    const auto coming = picturesOf(labelled(0), plan, false).back().key;

    EXPECT_EQ(late.color, QColor(Qt::red));
    EXPECT_FALSE(late == coming);
}

TEST(RowIcons, NoPriorityIsDrawnFaintly)
{
    auto plan = statusOnly();
    plan.priority = 12;

    EXPECT_EQ(picturesOf(labelled(0), plan).front().key.color, QColor(Qt::lightGray));
}

TEST(RowIcons, TheCellUnderThePointerHasAFillBelowAllElse)
{
    const RowStyle style;
    const Issue issue = labelled(0);
    const auto plan = statusOnly();
    const HotSpot cell{{36, 8, 22, 22}, u"En cours"_s, PickerKind::Status};
    const HotSpot noCell{{36, 8, 22, 22}, u"Bug"_s};

    const auto over =
        rowIcons({.issue = issue, .plan = plan, .style = style, .height = 38, .hotSpot = cell});
    EXPECT_EQ(over.size(), 2u);
    EXPECT_EQ(over.front().place, QPointF(36, 8));
    EXPECT_EQ(
        rowIcons({.issue = issue, .plan = plan, .style = style, .height = 38, .hotSpot = noCell})
            .size(),
        1u);
}

TEST(RowIcons, ThePictureOfAPersonTakesThePlaceOfTheInitials)
{
    auto plan = statusOnly();
    plan.assignee = 900;
    Issue issue = labelled(0);
    issue.assignee = JiraUser{u"1"_s, u"Noam Talvère"_s, std::nullopt, std::nullopt};
    const RowStyle style;
    QImage face(40, 40, QImage::Format_ARGB32_Premultiplied);
    face.fill(Qt::green);
    const auto with =
        rowIcons({.issue = issue, .plan = plan, .style = style, .person = face, .height = 38});
    const auto without = rowIcons({.issue = issue, .plan = plan, .style = style, .height = 38});

    EXPECT_EQ(with.back().place, without.back().place);
    EXPECT_FALSE(with.back().key == without.back().key);
}
