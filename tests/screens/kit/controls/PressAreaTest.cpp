#include "screens/kit/controls/PressArea.h"

#include "screens/Bench.h"

#include <QPointingDevice>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// An area at the top of a list that can be scrolled, and one below it.
const QString list = uR"(Flickable {
    width: 300; height: 200; contentHeight: 1000
    PressArea { objectName: 'area'; width: 300; height: 100; isDraggable: true }
    PressArea { objectName: 'next'; y: 100; width: 300; height: 100 }
})"_s;

constexpr QPoint place(40, 30);
constexpr QPoint far(40, 90);
constexpr auto noModifiers = Qt::NoModifier;

class Pressing : public testing::Test
{
protected:
    Pressing() { show(list); }
    ~Pressing() override { EXPECT_EQ(bench.warnings(), ""); }

    void show(const QString &qml)
    {
        root = bench.show(qml);
        ASSERT_NE(root, nullptr) << bench.warnings();
        area = root->findChild<PressArea *>(u"area"_s);
        next = root->findChild<PressArea *>(u"next"_s);
        ASSERT_NE(area, nullptr);
    }
    double scrolled() const { return root->property("contentY").toDouble(); }
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&bench.window(), button, noModifiers, at);
    }
    void moveTo(QPoint at)
    {
        for (int step = 1; step <= 6; ++step)
            QTest::mouseMove(&bench.window(), place + (at - place) * step / 6);
    }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(&bench.window(), button, noModifiers, at);
    }
    void fingerFromTo(QPoint from, QPoint to)
    {
        static auto *screen = QTest::createTouchDevice();
        QTest::touchEvent(&bench.window(), screen).press(0, from);
        for (int step = 1; step <= 6; ++step) {
            QTest::touchEvent(&bench.window(), screen).move(0, from + (to - from) * step / 6);
            showFrame();
        }
        QTest::touchEvent(&bench.window(), screen).release(0, to);
    }
    /// Qt Quick delivers the moves of a finger once per frame.
    void showFrame()
    {
        QSignalSpy frames(&bench.window(), &QQuickWindow::frameSwapped);
        bench.window().update();
        frames.wait(1000);
    }

    Bench bench;
    QQuickItem *root = nullptr;
    PressArea *area = nullptr;
    PressArea *next = nullptr;
};

} // namespace

TEST_F(Pressing, AClickTellsItsPlaceAndTheModifiers)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, Qt::ControlModifier, place);

    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toPointF(), QPointF(place));
    EXPECT_EQ(clicks[0][1].toInt(), int(Qt::ControlModifier));
}

TEST_F(Pressing, AReleaseOutsideIsNoClick)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    press(place);
    EXPECT_TRUE(area->isPressed());
    release(QPoint(40, 150));

    EXPECT_FALSE(area->isPressed());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Pressing, ARightClickAsksForTheMenuAndIsNoClick)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy menus(area, &PressArea::menuRequested);
    QTest::mouseClick(&bench.window(), Qt::RightButton, noModifiers, place);

    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus[0][0].toDouble(), place.x());
    EXPECT_EQ(menus[0][1].toDouble(), place.y());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Pressing, ASecondButtonCancelsThePress)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy menus(area, &PressArea::menuRequested);
    press(place);
    press(place, Qt::RightButton);
    EXPECT_FALSE(area->isPressed());
    release(place, Qt::RightButton);
    release(place);

    EXPECT_EQ(clicks.count() + menus.count(), 0);
}

TEST_F(Pressing, AMouseDragsTheAreaAndDoesNotScrollTheList)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy drags(area, &PressArea::dragBegun);
    press(place);
    moveTo(QPoint(40, 5));
    EXPECT_TRUE(area->isDragging());
    EXPECT_EQ(scrolled(), 0);
    release(QPoint(40, 5));

    EXPECT_EQ(drags.count(), 1);
    EXPECT_FALSE(area->isDragging());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Pressing, AMoveWithinTheDragDistanceIsStillAClick)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy drags(area, &PressArea::dragBegun);
    press(place);
    QTest::mouseMove(&bench.window(), place + QPoint(2, 2));
    release(place + QPoint(2, 2));

    EXPECT_EQ(drags.count(), 0);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Pressing, AFingerScrollsTheListAndDragsNothing)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy drags(area, &PressArea::dragBegun);
    fingerFromTo(far, QPoint(40, 10));

    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(drags.count(), 0);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_FALSE(area->isPressed());
}

TEST_F(Pressing, AFingerThatMovesAcrossTheListIsNoTap)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    fingerFromTo(place, QPoint(200, 30));
    EXPECT_EQ(clicks.count(), 0);

    fingerFromTo(place, place);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Pressing, AnAreaThatIsHiddenInMidPressForgetsIt)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    press(place);
    area->setVisible(false);
    EXPECT_FALSE(area->isPressed());
    area->setVisible(true);
    release(place);

    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Pressing, ADragThatIsCancelledLeavesTheNextPressAlone)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    press(place);
    moveTo(far);
    area->cancel();
    EXPECT_FALSE(area->isDragging());
    release(far);
    EXPECT_EQ(clicks.count(), 0);

    QTest::mouseClick(&bench.window(), Qt::LeftButton, noModifiers, place);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Pressing, BothClicksOfADoubleClickCountOnTheSameArea)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QTest::mouseDClick(&bench.window(), Qt::LeftButton, noModifiers, place);

    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(Pressing, TheSecondClickOfADoubleClickDoesNotCountOnAnAreaThatHasMovedThere)
{
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy others(next, &PressArea::clicked);
    QObject::connect(area, &PressArea::clicked, area, [this] {
        area->setY(100);
        next->setY(0);
    });
    QTest::mouseDClick(&bench.window(), Qt::LeftButton, noModifiers, place);

    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(others.count(), 0);
}

TEST_F(Pressing, NothingReachesAnAreaBelowOneThatTakesThePress)
{
    show(uR"(Item {
        width: 300; height: 200
        PressArea { objectName: 'area'; width: 300; height: 200; isDraggable: true }
        PressArea { objectName: 'next'; width: 100; height: 100 }
    })"_s);
    QSignalSpy clicks(area, &PressArea::clicked);
    QSignalSpy drags(area, &PressArea::dragBegun);
    press(place);
    moveTo(QPoint(200, 150));
    release(QPoint(200, 150));
    QTest::mouseClick(&bench.window(), Qt::LeftButton, noModifiers, place);

    EXPECT_EQ(drags.count(), 0);
    EXPECT_EQ(clicks.count(), 0);
}
