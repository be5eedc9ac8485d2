#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString chipAt(int x, int y)
{
    return u"GlassChip { id: chip; x: %1; y: %2; title: 'Statut'; focus: true; leading: Symbol { "
           u"name: 'tag'; size: 12 } "
           "property alias held: held; property bool made: false; "
           "Item { id: held; width: 290; implicitHeight: 200; height: 200 } "
           "When { shown: chip.isPresented; Item { focus: true; Component.onCompleted: chip.made = true } } }"_s
               .arg(x)
               .arg(y);
}

QRectF boxOf(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

} // namespace

TEST(GlassChip, SpaceOpensWhatItHoldsEscapeClosesItAndTheFocusReturns)
{
    Bench bench;
    auto *chip = bench.show(chipAt(20, 20));
    ASSERT_NE(chip, nullptr) << bench.warnings();
    EXPECT_DOUBLE_EQ(chip->implicitHeight(), 28);
    EXPECT_FALSE(chip->property("made").toBool()) << "what is costly waits";
    EXPECT_EQ(Bench::accessible(chip)->text(QAccessible::Description), u"Ouvre une liste"_s);
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    EXPECT_TRUE(chip->property("isPresented").toBool());
    EXPECT_TRUE(chip->property("made").toBool());
    EXPECT_EQ(Bench::accessible(chip)->text(QAccessible::Description), u"Liste ouverte"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !chip->hasActiveFocus(); }));
    QTest::keyClick(&bench.window(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !chip->property("isPresented").toBool(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return chip->hasActiveFocus(); }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(GlassChip, ItsPopoverStandsBelowItInLineWithItsEdge)
{
    Bench bench;
    auto *chip = bench.show(chipAt(20, 20));
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    const auto *held = chip->property("held").value<QQuickItem *>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return boxOf(held) == QRectF(20, 20 + 28 + 4, 290, 200); }));
}

TEST(GlassChip, ItsPopoverStaysInTheWindow)
{
    Bench bench;
    auto *chip = bench.show(chipAt(500, 360));
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    const auto *held = chip->property("held").value<QQuickItem *>();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return boxOf(held) == QRectF(600 - 8 - 290, 360 - 4 - 200, 290, 200);
    })) << boxOf(held).x()
        << ' ' << boxOf(held).y();
}

TEST(GlassChip, APressOutsideClosesItAndOneOnTheChipTogglesIt)
{
    Bench bench;
    auto *chip = bench.show(chipAt(20, 20));
    const auto isOpen = [&] { return chip->property("isPresented").toBool(); };
    const QPoint onChip(30, 30);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, onChip);
    EXPECT_TRUE(isOpen());
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {580, 380});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, onChip);
    EXPECT_TRUE(isOpen());
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, onChip);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(GlassChip, APressOutsideOnlyClosesItAndPressesNothingBelow)
{
    Bench bench;
    auto *page = bench.show(
        u"Item { width: 600; height: 400; property int presses: 0; property alias chip: chip; "
        "MouseArea { anchors.fill: parent; onPressed: parent.presses++ } "
        "GlassChip { id: chip; x: 20; y: 20; title: 'Statut'; "
        "Item { width: 290; implicitHeight: 200; height: 200 } } }"_s);
    ASSERT_NE(page, nullptr) << bench.warnings();
    const auto *chip = page->property("chip").value<QQuickItem *>();
    const auto isOpen = [&] { return chip->property("isPresented").toBool(); };
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {30, 30});
    ASSERT_TRUE(isOpen());
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {580, 380});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    EXPECT_EQ(page->property("presses").toInt(), 0);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {580, 380});
    EXPECT_EQ(page->property("presses").toInt(), 1) << "once it is gone";
}

TEST(GlassChip, GrowsWithItsTitleAndHasANameAndARole)
{
    Bench bench;
    const qreal narrow = bench.show(u"GlassChip { title: 'A' }"_s)->implicitWidth();
    auto *chip = bench.show(u"GlassChip { title: 'Un titre bien plus long'; prominent: true }"_s);
    EXPECT_GT(chip->implicitWidth(), narrow + 60);
    EXPECT_EQ(Bench::accessible(chip)->role(), QAccessible::Button);
    EXPECT_EQ(Bench::accessible(chip)->text(QAccessible::Name), u"Un titre bien plus long"_s);
}
