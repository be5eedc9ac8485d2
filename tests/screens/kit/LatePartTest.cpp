#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A part that is a dot of a label.
const QString text = u"LatePart { isKept: %1; shown: false; onWanted: "
                     "setSource('qrc:/qt/qml/Velmora/Kit/drawn/LabelDot.qml', { name: 'x' }) }"_s;

QString part(bool isKept)
{
    return text.arg(isKept ? u"true"_s : u"false"_s);
}

QObject *itemIn(const QQuickItem *part)
{
    return part->property("item").value<QObject *>();
}

} // namespace

TEST(LatePart, IsCreatedWhenItIsFirstShown)
{
    Bench bench;
    auto *part = bench.show(::part(false));
    ASSERT_NE(part, nullptr) << bench.warnings();
    EXPECT_EQ(itemIn(part), nullptr);
    part->setProperty("shown", true);
    EXPECT_NE(itemIn(part), nullptr);
    part->setProperty("shown", false);
    EXPECT_EQ(itemIn(part), nullptr);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(LatePart, IsHiddenAndNotDestroyedIfItIsKept)
{
    Bench bench;
    auto *part = bench.show(::part(true));
    ASSERT_NE(part, nullptr) << bench.warnings();
    part->setProperty("shown", true);
    const auto *item = itemIn(part);
    ASSERT_NE(item, nullptr);
    part->setProperty("shown", false);
    EXPECT_EQ(itemIn(part), item);
    EXPECT_FALSE(part->isVisible());
}

TEST(LatePart, IsCreatedAheadBetweenEventsAndStaysHidden)
{
    Bench bench;
    auto *part = bench.show(::part(true));
    ASSERT_NE(part, nullptr) << bench.warnings();
    part->setProperty("isAhead", true);
    EXPECT_EQ(itemIn(part), nullptr) << "created within the event";
    ASSERT_TRUE(QTest::qWaitFor([part] { return itemIn(part) != nullptr; }));
    EXPECT_FALSE(part->isVisible());
    const auto *item = itemIn(part);
    part->setProperty("shown", true);
    EXPECT_EQ(itemIn(part), item);
    EXPECT_TRUE(part->isVisible());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(LatePart, IsCompletedAtOnceIfItIsShownWhileItIsCreatedAhead)
{
    Bench bench;
    auto *part = bench.show(::part(true));
    ASSERT_NE(part, nullptr) << bench.warnings();
    part->setProperty("isAhead", true);
    ASSERT_EQ(itemIn(part), nullptr);
    part->setProperty("shown", true);
    EXPECT_NE(itemIn(part), nullptr);
    EXPECT_TRUE(part->isVisible());
    EXPECT_EQ(bench.warnings(), "");
}
