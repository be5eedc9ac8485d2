#include "screens/detail/activity/CommentList.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QList<ShownComment> comments(int count, const QString &prefix = u"c"_s)
{
    QList<ShownComment> list;
    for (int i = 0; i < count; ++i) {
        ShownComment comment;
        comment.key = prefix + QString::number(i);
        list.append(comment);
    }
    return list;
}

QList<ShownComment> shownBy(const CommentList &list)
{
    QList<ShownComment> shown;
    for (const auto &row : list.rows())
        shown.append(*row.comment);
    return shown;
}

bool completes(const CommentList &list)
{
    return QTest::qWaitFor([&] { return list.isComplete(); });
}

} // namespace

TEST(CommentList, AFewCommentsAreThereAtOnce)
{
    CommentList list;
    list.setComments(comments(CommentList::firstStep));
    EXPECT_TRUE(list.isComplete());
    EXPECT_EQ(list.rowCount(), CommentList::firstStep);
}

TEST(CommentList, AThousandCommentsFollowInSteps)
{
    CommentList list;
    const auto all = comments(1000);
    list.setComments(all);
    EXPECT_EQ(list.rowCount(), CommentList::firstStep);
    EXPECT_TRUE(completes(list));
    EXPECT_EQ(shownBy(list), all);
}

TEST(CommentList, ANewCommentLeavesTheOthersAlone)
{
    CommentList list;
    auto all = comments(100);
    list.setComments(all);
    ASSERT_TRUE(completes(list));
    const QSignalSpy removals(&list, &CommentList::rowsRemoved);
    const QSignalSpy changes(&list, &CommentList::dataChanged);
    const QSignalSpy insertions(&list, &CommentList::rowsInserted);
    all += comments(1, u"new"_s);
    list.setComments(all);
    EXPECT_EQ(shownBy(list), all);
    EXPECT_EQ(insertions.count(), 1);
    EXPECT_EQ(removals.count(), 0);
    EXPECT_EQ(changes.count(), 0);
}

TEST(CommentList, AChangeInTheMiddleOfTheStepsLeavesTheOthersAlone)
{
    CommentList list;
    auto all = comments(100);
    list.setComments(all);
    const QSignalSpy removals(&list, &CommentList::rowsRemoved);
    all[3].name = u"Elsa"_s;
    all += comments(1, u"new"_s);
    list.setComments(all);
    EXPECT_EQ(shownBy(list).at(3).name, u"Elsa"_s);
    EXPECT_TRUE(completes(list));
    EXPECT_EQ(shownBy(list), all);
    EXPECT_EQ(removals.count(), 0);
}

TEST(CommentList, RemovedCommentsGoAtOnce)
{
    CommentList list;
    list.setComments(comments(100));
    list.setComments({});
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_TRUE(list.isComplete());
}
