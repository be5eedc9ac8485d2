#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto pill = R"(
import Velmora.Issues
RecapPill { symbol: "checkmark.circle.fill"; value: 3; label: "terminés" })";

QString number(const QQuickItem *item)
{
    return item->childItems().at(1)->property("text").toString();
}

} // namespace

TEST(RecapPill, CountsToItsNewValue)
{
    Bench bench;
    auto *item = bench.show(QString::fromUtf8(pill));
    ASSERT_NE(item, nullptr) << bench.warnings();
    bench.setToken("motion", "reduced", false);
    EXPECT_EQ(number(item), u"3"_s) << "the first value is there at once";
    item->setProperty("value", 12);
    EXPECT_EQ(number(item), u"3"_s);
    EXPECT_EQ(Bench::accessible(item)->text(QAccessible::Name), u"12 terminés"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return number(item) == u"12"; }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(RecapPill, IsThereAtOnceWhereMotionIsUnwanted)
{
    Bench bench;
    auto *item = bench.show(QString::fromUtf8(pill));
    ASSERT_NE(item, nullptr) << bench.warnings();
    bench.setToken("motion", "reduced", true);
    item->setProperty("value", 12);
    EXPECT_TRUE(QTest::qWaitFor([&] { return number(item) == u"12"; }, 200));
}
